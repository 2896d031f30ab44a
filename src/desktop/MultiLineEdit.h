#pragma once

#include <QPlainTextEdit>
#include <functional>

#include "desktop/FilteredEdit.h"

namespace plandesk::desktop {

/// An editor of several lines over a text that it does not own. The editor knows only one kind of line end, so it works
/// out each edit as a cut and a piece put in; what the user did not touch keeps the line ends it had.
class MultiLineEdit : public FilteredEdit<QPlainTextEdit> {
public:
    explicit MultiLineEdit(QWidget& parent);

    /// Shows a text; the caret stays where it was. Nothing happens when it is shown already.
    void show(const QString& text);
    /// The user breaks the line at the caret.
    void breakLine();
    /// Told the whole new text after each edit of the user.
    std::function<void(const QString& text)> edited = [](const QString&) {};

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    /// Tells of what the act changed once the act is done.
    void edit(const std::function<void()>& act);
    void typed();
    /// Puts `piece` in place of the characters from `from` up to `to`, counted as the editor counts them.
    void replace(qsizetype from, qsizetype to, const QString& piece);

    QString content;
    QSize laidOut;  ///< size of the whole box that the scroll bar was last decided for
    bool showing = false;
    bool editing = false;
    bool changed = false;
};

}  // namespace plandesk::desktop
