#include "desktop/TextBoxView.h"

#include <QClipboard>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <algorithm>
#include <limits>
#include <utility>

#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/Form.h"
#include "controls/User.h"
#include "desktop/FilteredEdit.h"
#include "desktop/LongText.h"
#include "desktop/MultiLineEdit.h"
#include "desktop/QtText.h"
#include "desktop/ScreenView.h"

namespace plandesk::desktop {

namespace {

// Widths of boxes in average characters.
constexpr int numberWidth = 14;
constexpr int textWidth = 42;
constexpr int readableWidth = 92;  // that a text box takes where there is room
constexpr int leastTextWidth = 8;
constexpr int linesOfRemarks = 4;

/// Place in `text` behind as many characters as `before` has, some of which take two units; its end when it is shorter.
int samePlace(const QString& before, const QString& text) {
    const std::string bytes = fromQt(text);
    const std::size_t size = sizeOfFirst(bytes, codePointCount(fromQt(before)));
    return static_cast<int>(toQt(std::string_view(bytes).substr(0, size)).size());
}

class TextBoxView : public ControlView {
public:
    TextBoxView(TextBox& box, QWidget& widget, ScreenView& screen) : ControlView(box, widget, screen) {}

    int leastWidth() const override { return leastTextWidth * characterWidth(); }

protected:
    TextBox& box() const { return static_cast<TextBox&>(*subject); }
    QPalette::ColorRole backRole() const override { return QPalette::Base; }
    int characterWidth() const { return picture.fontMetrics().averageCharWidth(); }
    int filter(int key) const {
        return screen.guarded([&] { return subject ? user::filteredKey(box(), key) : 0; });
    }
    void hand(const std::string& text) {
        if (!subject)  // its filter may have ended it, and the widget types on
            return;
        // A text dropped in from elsewhere brings the focus, and is not to be selected with all the rest.
        act([&] { user::edit(box(), text); }, box().focused() ? Qt::OtherFocusReason : Qt::MouseFocusReason);
    }
    /// Whether the user can edit the text here. A longer one shows its beginning; Backspace takes a character from its
    /// end, and Delete with all of it selected empties the box.
    bool edits() const { return fitsEditor(box().text(), box().multiLine); }
    QString shownText() const { return edits() ? toQt(box().text()) : beginning(box().text()); }
    bool systemKey(const QKeyEvent& event) override {
        if (box().locked || edits())
            return ControlView::systemKey(event);
        if (event.key() == Qt::Key_Backspace)
            act([this] { user::press(*subject, "Backspace"); });
        else if (event.key() == Qt::Key_Delete && allSelected())
            act([this] { user::clear(box()); });
        else
            return ControlView::systemKey(event);
        return true;
    }
    virtual bool allSelected() const = 0;
};

using LineEdit = FilteredEdit<QLineEdit>;

class LineView : public TextBoxView {
public:
    LineView(TextBox& box, LineEdit& line, ScreenView& screen) : TextBoxView(box, line, screen), line(line) {
        line.setMaxLength(std::numeric_limits<int>::max());
        if (box.rightAligned)
            line.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        line.filter = [this](int key) { return filter(key); };
        connect(&line, &QLineEdit::textEdited, this, [this](const QString& text) { hand(fromQt(text)); });
    }

    bool filterEvent(QObject* watched, QEvent* event) override {
        // A click beside a figure, before its first digit, would make 20 of the 2 that is typed over a 0.
        if (event->type() == QEvent::MouseButtonPress)
            arriving = line.alignment().testFlag(Qt::AlignRight) && !line.hasFocus();
        if (event->type() == QEvent::MouseButtonRelease && std::exchange(arriving, false) && line.hasFocus() &&
            !line.hasSelectedText())
            line.selectAll();
        if (event->type() == QEvent::FocusOut) {
            // A box that was left shows how its text begins.
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
                reason != Qt::MenuBarFocusReason)
                line.setCursorPosition(0);
        }
        return TextBoxView::filterEvent(watched, event);
    }
    void selectContent() override { line.selectAll(); }
    int naturalWidth(bool alone) const override {
        return (alone && !takesNumber() ? textWidth : numberWidth) * characterWidth();
    }
    QSize sizeFor(int available, bool alone) override {
        const int wanted = alone && !takesNumber() ? readableWidth * characterWidth() : naturalWidth(alone);
        return {std::min(available, wanted), line.sizeHint().height()};
    }

private:
    bool takesNumber() const { return subject && (box().keyPress || box().rightAligned); }
    QString hiddenText() const override {
        constexpr int padding = 12;
        const bool whole = line.fontMetrics().horizontalAdvance(line.text()) <= line.width() - padding;
        return whole ? QString() : line.text();
    }
    void syncContent() override {
        line.setReadOnly(box().locked || !edits());
        if (const QString text = shownText(); line.text() != text) {
            const int caret = box().focused() ? line.cursorPosition() : 0;
            const QString before = line.text().left(caret);
            line.setText(text);
            line.setCursorPosition(samePlace(before, text));
        }
    }

    bool allSelected() const override { return line.selectedText().size() == line.text().size(); }
    /// A long text is pasted past the line, which would lay it out as a whole first.
    bool systemKey(const QKeyEvent& event) override {
        if (!event.matches(QKeySequence::Paste) || line.isReadOnly())
            return TextBoxView::systemKey(event);
        const QString piece = QGuiApplication::clipboard()->text();
        if (piece.size() <= longestPaste)
            return false;
        const qsizetype start = line.hasSelectedText() ? line.selectionStart() : line.cursorPosition();
        hand(fromQt(line.text().replace(start, line.selectedText().size(), piece)));
        return true;
    }

    static constexpr qsizetype longestPaste = 10'000;
    LineEdit& line;
    bool arriving = false;  ///< a click is bringing the focus
};

class MultiLineView : public TextBoxView {
public:
    MultiLineView(TextBox& box, MultiLineEdit& edit, ScreenView& screen) : TextBoxView(box, edit, screen), edit(edit) {
        edit.filter = [this](int key) { return filter(key); };
        edit.edited = [this](const QString& text) { hand(fromQt(text)); };
    }

    void showLines(int lines) override { linesShown = lines > 0 ? lines : linesOfRemarks; }
    int naturalWidth(bool /*alone*/) const override { return textWidth * characterWidth(); }
    QSize sizeFor(int available, bool /*alone*/) override {
        const int height = (linesShown + 1) * edit.fontMetrics().lineSpacing();
        return {std::min(available, readableWidth * characterWidth()), height};
    }

private:
    void syncContent() override {
        edit.setReadOnly(box().locked || !edits());
        edit.show(shownText());
    }
    bool allSelected() const override { return edit.textCursor().selectedText().size() == edit.toPlainText().size(); }
    bool systemKey(const QKeyEvent& event) override {
        // Where Enter moves on, a line is broken with Shift or Ctrl.
        const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
        if (enter && event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) {
            edit.breakLine();
            return true;
        }
        const bool breaksLine = systemKeyName(event) == "Enter" && !box().form().enterActsAsTab();
        return !breaksLine && TextBoxView::systemKey(event);
    }

    MultiLineEdit& edit;
    int linesShown = linesOfRemarks;
};

}  // namespace

ControlView& makeTextBoxView(TextBox& box, QWidget& parent, ScreenView& screen) {
    if (box.multiLine)
        return *new MultiLineView(box, *new MultiLineEdit(parent), screen);
    return *new LineView(box, *new LineEdit(&parent), screen);
}

}  // namespace plandesk::desktop
