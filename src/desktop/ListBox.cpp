#include "desktop/ListBox.h"

#include <QAbstractItemView>
#include <QStylePainter>
#include <algorithm>

namespace plandesk::desktop {

ListBox::ListBox(QWidget& parent) : QComboBox(&parent) {
    setSizeAdjustPolicy(AdjustToContents);
}

void ListBox::setForeignText(const QString& text) {
    if (text != placeholderText())
        setPlaceholderText(text);
}

QString ListBox::shownText() const {
    return currentIndex() < 0 ? placeholderText() : currentText();
}

bool ListBox::elided() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    return fontMetrics().horizontalAdvance(shownText().trimmed()) > field.width();
}

void ListBox::startSearch() {
    view()->keyboardSearch({});
}

void ListBox::showPopup() {
    const int wanted = view()->sizeHintForColumn(0) + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    view()->setMinimumWidth(std::max(width(), wanted));
    QComboBox::showPopup();
}

void ListBox::paintEvent(QPaintEvent* /*event*/) {
    // As Qt draws it, but a foreign text in full colour, without blanks around it, and a text that does not fit with
    // its end left out.
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = fontMetrics().elidedText(shownText().trimmed(), Qt::ElideRight, field.width());
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

}  // namespace plandesk::desktop
