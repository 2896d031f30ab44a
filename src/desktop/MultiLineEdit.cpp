#include "desktop/MultiLineEdit.h"

#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>
#include <utility>

namespace plandesk::desktop {

namespace {

bool endsLine(QChar unit) {
    // The editor breaks paragraphs at these, the last two of its own making.
    return unit == '\r' || unit == '\n' || unit == QChar::ParagraphSeparator || unit == QChar(0xFDD0) ||
           unit == QChar(0xFDD1);
}

/// Length in the text of what the editor shows as the one character at `place`.
qsizetype unitLength(const QString& text, qsizetype place) {
    return text[place] == '\r' && place + 1 < text.size() && text[place + 1] == '\n' ? 2 : 1;
}

QString asShown(const QString& text) {
    QString shown;
    shown.reserve(text.size());
    for (qsizetype place = 0; place < text.size(); place += unitLength(text, place))
        shown += endsLine(text[place]) ? QChar(QChar::ParagraphSeparator) : text[place];
    return shown;
}

qsizetype placeInText(const QString& text, qsizetype shownPlace) {
    qsizetype place = 0;
    for (qsizetype shown = 0; shown < shownPlace && place < text.size(); ++shown)
        place += unitLength(text, place);
    return place;
}

}  // namespace

MultiLineEdit::MultiLineEdit(QWidget& parent) : FilteredEdit(&parent) {
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // long words are broken
    // In a narrow box the lines may fit with the bar and not without it, and it would come and go for ever: once needed
    // it stays until the box has another size or text.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int /*least*/, int most) {
        if (most > 0)
            setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    });
    connect(this, &QPlainTextEdit::textChanged, this, [this] { setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded); });
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (editing)
            changed = true;
        else
            typed();
    });
}

// A reaction to a key may set another text, which must not happen while the toolkit is still putting the key in.
void MultiLineEdit::edit(const std::function<void()>& act) {
    {
        const QScopedValueRollback underWay(editing, true);
        act();
    }
    if (std::exchange(changed, false))
        typed();
}

void MultiLineEdit::resizeEvent(QResizeEvent* event) {
    if (std::exchange(laidOut, size()) != size())
        setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    FilteredEdit::resizeEvent(event);
}

void MultiLineEdit::keyPressEvent(QKeyEvent* event) {
    edit([&] { FilteredEdit::keyPressEvent(event); });
}

void MultiLineEdit::inputMethodEvent(QInputMethodEvent* event) {
    edit([&] { FilteredEdit::inputMethodEvent(event); });
}

void MultiLineEdit::show(const QString& text) {
    content = text;
    const QString shown = asShown(text);
    if (document()->toRawText() == shown)
        return;
    const int caret = textCursor().position();
    {
        const QScopedValueRollback quiet(showing, true);
        setPlainText(shown);
    }
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::min(caret, document()->characterCount() - 1));
    setTextCursor(cursor);
}

void MultiLineEdit::breakLine() {
    if (isReadOnly())
        return;
    edit([this] { textCursor().insertBlock(); });
    ensureCursorVisible();
}

void MultiLineEdit::typed() {
    const QString shown = document()->toRawText();
    const QString before = asShown(content);
    if (showing || shown == before)
        return;
    const auto [firstNew, firstOld] = std::mismatch(shown.begin(), shown.end(), before.begin(), before.end());
    const qsizetype same = firstNew - shown.begin();
    qsizetype tail = 0;
    while (tail < std::min(shown.size(), before.size()) - same &&
           shown[shown.size() - 1 - tail] == before[before.size() - 1 - tail])
        ++tail;
    QString piece = shown.mid(same, shown.size() - same - tail);
    piece.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
    replace(same, before.size() - tail, piece);
}

void MultiLineEdit::replace(qsizetype from, qsizetype to, const QString& piece) {
    const qsizetype first = placeInText(content, from);
    const qsizetype last = placeInText(content, to);
    content.replace(first, last - first, piece);
    edited(content);
}

void MultiLineEdit::insertFromMimeData(const QMimeData* source) {
    if (isReadOnly() || !source->hasText())
        return;
    const QString piece = source->text();
    QTextCursor cursor = textCursor();
    const int from = cursor.selectionStart();
    replace(from, cursor.selectionEnd(), piece);
    cursor = textCursor();
    cursor.setPosition(std::min(from + static_cast<int>(asShown(piece).size()), document()->characterCount() - 1));
    setTextCursor(cursor);
    ensureCursorVisible();
}

}  // namespace plandesk::desktop
