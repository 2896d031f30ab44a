#pragma once

#include <QDateEdit>
#include <QString>

namespace plandesk::desktop {

/// A box for a date that takes what is typed into it as a whole. The toolkit's own makes each part fit the others at
/// once: of 31/12 typed into a date in April it makes 30/12, of 29/02/2028 in a common year 28/02/2028.
class DateEdit : public QDateEdit {
public:
    explicit DateEdit(QWidget& parent);

    /// The day typed last is the one that is shown, whatever comes.
    void forgetTypedDay() { typedDay.clear(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool isSeparatorAfterAdvance(const QKeyEvent& key) const;
    /// Makes the date what was typed, as far as there is such a day.
    void complete(int year);
    void openCalendar();

    QString typedDay;  ///< digits
};

}  // namespace plandesk::desktop
