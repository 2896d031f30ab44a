#include "desktop/DateEdit.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "desktop/Keys.h"

namespace plandesk::desktop {

namespace {

/// A year of two digits is one of the hundred years from 1930 on, as the desktop's programs have always read it.
int wholeYear(int typed) {
    constexpr int century = 100;
    constexpr int firstOfLast = 30;
    if (typed >= century)
        return typed;
    return typed + (typed < firstOfLast ? 20 * century : 19 * century);
}

bool isSeparator(const QString& text) {
    return !text.isEmpty() && QStringLiteral("/-.").contains(text);
}

bool isDigit(const QString& text) {
    return text.size() == 1 && text[0] >= '0' && text[0] <= '9';
}

}  // namespace

DateEdit::DateEdit(QWidget& parent) : QDateEdit(&parent) {}

void DateEdit::keyPressEvent(QKeyEvent* event) {
    if (opensList(*event))
        return openCalendar();
    if (isSeparatorAfterAdvance(*event))
        return;
    const Section before = currentSection();
    const bool digit = isDigit(event->text());
    if (before == DaySection && !digit && !isSeparator(event->text()))
        forgetTypedDay();
    if (before == DaySection && digit)
        typedDay = lineEdit()->hasSelectedText() ? event->text() : typedDay + event->text();
    QDateEdit::keyPressEvent(event);
    constexpr int digitsOfYear = 4;
    if (currentSection() != before ||
        (before == YearSection && digit && sectionText(YearSection).size() == digitsOfYear))
        complete(date().year());
}

/// After the second digit of day or month the box goes on by itself; a separator typed then, as in 15/12/2030, would
/// lead past the next part.
bool DateEdit::isSeparatorAfterAdvance(const QKeyEvent& key) const {
    return isSeparator(key.text()) && currentSectionIndex() > 0 && lineEdit()->hasSelectedText();
}

void DateEdit::focusOutEvent(QFocusEvent* event) {
    constexpr int digitsOfShortYear = 2;
    const QString year = sectionText(YearSection);
    const bool left = event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason;
    QDateEdit::focusOutEvent(event);
    if (!left)
        return;
    if (year.size() == digitsOfShortYear)
        complete(wholeYear(year.toInt()));
    forgetTypedDay();
}

void DateEdit::complete(int year) {
    const QDate shown = date();
    const QDate month(year, shown.month(), 1);
    const int typed = typedDay.isEmpty() ? shown.day() : typedDay.toInt();
    const QDate whole(year, shown.month(), std::clamp(typed, 1, month.daysInMonth()));
    if (!whole.isValid() || whole == shown)
        return;
    const Section section = currentSection();
    setDate(whole);
    setSelectedSection(section);
}

void DateEdit::openCalendar() {
    // The toolkit opens it at a press of the mouse alone.
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.editable = true;
    const QPointF arrow =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this).center();
    QMouseEvent press(QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    mousePressEvent(&press);
}

}  // namespace plandesk::desktop
