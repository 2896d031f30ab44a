#include "desktop/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "desktop/Accessible.h"
#include "desktop/Pictures.h"

namespace plandesk::desktop {

namespace {

/// The focus is marked by a strong line; marks of options and check boxes grow with the font; heads of tables stand
/// over the texts of their columns.
class GrowingStyle : public QProxyStyle {
public:
    GrowingStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    /// A mark that is seen: the toolkit's own is a faint line, and is not there after a click.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element != PE_FrameFocusRect)
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        constexpr int line = 2;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, false);
        painter->setPen(
            QPen(option->palette.color(QPalette::Highlight), line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(line / 2, line / 2, -line / 2, -line / 2));
        painter->restore();
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        QProxyStyle::drawControl(element, option, painter, widget);
        if (element != CE_PushButton || !(option->state & State_HasFocus))
            return;
        constexpr int inset = 2;
        QStyleOptionFocusRect mark;
        mark.QStyleOption::operator=(*option);
        mark.rect = option->rect.adjusted(inset, inset, -inset, -inset);
        drawPrimitive(PE_FrameFocusRect, &mark, painter, widget);
    }

    /// The toolkit's own comes from a file, for which every start would load the readers of all kinds of pictures.
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override {
        return which == SP_ToolBarHorizontalExtensionButton ? moreIcon()
                                                            : QProxyStyle::standardIcon(which, option, widget);
    }

    /// A list shows the focus as a button does, also where the mouse or program code brought it.
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (control != CC_ComboBox || !list || list->editable || !(list->state & State_HasFocus))
            return;
        constexpr int inset = 1;
        QStyleOptionFocusRect mark;
        mark.QStyleOption::operator=(*list);
        mark.rect = list->rect.adjusted(inset, inset, -inset, -inset);
        drawPrimitive(PE_FrameFocusRect, &mark, painter, widget);
    }

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
    installAccessibility();
}

}  // namespace plandesk::desktop
