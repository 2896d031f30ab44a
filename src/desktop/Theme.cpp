#include "desktop/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "desktop/Pictures.h"

namespace plandesk::desktop {

namespace {

/// Marks of options and check boxes grow with the font; heads of tables stand over the texts of their columns.
class GrowingStyle : public QProxyStyle {
public:
    GrowingStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const int given = QProxyStyle::pixelMetric(metric, option, widget);
        switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return widget ? std::max(given, widget->fontMetrics().ascent()) : given;
        case PM_HeaderMargin:
            return 6;
        default:
            return given;
        }
    }
};

}  // namespace

void useTheme() {
    QApplication::setStyle(new GrowingStyle);
    const QColor paper(0xF3, 0xEC, 0xE2);
    QPalette palette(QColor(0xF3, 0xF0, 0xEA), paper);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, Qt::black);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x6E, 0x6E, 0x6E));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, Qt::black);
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x5D, 0x8C));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(palette);
    QApplication::setWindowIcon(programIcon());
}

}  // namespace plandesk::desktop
