#include "desktop/LongMessage.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <algorithm>

namespace plandesk::desktop {

void scrollLongText(QMessageBox& box) {
    // What a box shows without filling a screen of 1024 x 700 in a font of twice the size.
    constexpr int mostCharacters = 480;
    constexpr int charactersWide = 50;
    constexpr int linesHigh = 10;
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    // A box does not break a word, however long it is.
    const QStringList words = box.text().split(QRegularExpression(QStringLiteral("\\s")));
    const bool breaks = std::ranges::all_of(words, [](const QString& word) { return word.size() <= charactersWide; });
    if ((box.text().size() <= mostCharacters && breaks) || !label || !grid)
        return;
    auto* text = new QPlainTextEdit(box.text(), &box);
    text->setObjectName(QStringLiteral("longText"));
    text->setAccessibleName(box.windowTitle());
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    const QFontMetrics metrics = text->fontMetrics();
    text->setFixedSize(charactersWide * metrics.averageCharWidth(), linesHigh * metrics.lineSpacing());
    int row = 0;
    int column = 0;
    int rows = 1;
    int columns = 1;
    grid->getItemPosition(grid->indexOf(label), &row, &column, &rows, &columns);
    label->hide();
    grid->addWidget(text, row, column, rows, columns);
}

}  // namespace plandesk::desktop
