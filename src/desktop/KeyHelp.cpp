#include "desktop/KeyHelp.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace plandesk::desktop {

namespace {

struct KeyRow {
    const char* keys;
    const char* meaning;
};

constexpr KeyRow rows[] = {
    {"Tab, Shift+Tab", "on to the next answer and back; Enter does the same on most forms"},
    {"Shift+Enter", "breaks the line in a box of several lines"},
    {"Space", "presses a button or link, chooses an option, ticks a box"},
    {"a letter", "picks the option or the item that begins with it: Y, N"},
    {"arrows", "pick in a list; in a group of options they mark, and Space chooses"},
    {"Alt+Down, F4", "opens a list, a date, or what a cell has to offer"},
    {"Delete", "in a table: empties the cell"},
    {"Ctrl+Delete", "in a table: deletes the row, where that is allowed"},
    {"Ctrl+Page Down, Ctrl+Page Up", "the next page and the one before"},
    {"Ctrl+Tab", "the form used before"},
    {"Esc", "closes the form; what was typed stays"},
    {"Ctrl+F10", "lets the form fill the window, and back"},
    {"Ctrl+F8, arrows", "another size of the form"},
    {"Ctrl+S, Ctrl+Shift+S", "Save, Save As"},
    {"Ctrl+P", "prints the paper in front; without one, lists all papers to print"},
    {"F9", "the review: what the proposal still lacks; F6 leads there and back"},
    {"F8, Shift+F8", "the next finding of the review and the one before"},
    {"Ctrl+F", "finds a question"},
    {"F1", "Help"},
};

QTableWidget* makeTable(QWidget& parent) {
    auto* table = new QTableWidget(static_cast<int>(std::size(rows)), 2, &parent);
    table->setAccessibleName(QObject::tr("Keys"));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->setWordWrap(true);
    table->verticalHeader()->hide();
    table->horizontalHeader()->hide();
    for (int row = 0; row < table->rowCount(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(QObject::tr(rows[row].keys)));
        table->setItem(row, 1, new QTableWidgetItem(QObject::tr(rows[row].meaning)));
    }
    table->resizeColumnToContents(0);
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->setCurrentCell(0, 0);
    return table;
}

}  // namespace

void showKeyHelp(QWidget& parent) {
    const QString name = QStringLiteral("keyWindow");
    auto* window = parent.findChild<QDialog*>(name, Qt::FindDirectChildrenOnly);
    if (!window) {
        window = new QDialog(&parent);
        window->setObjectName(name);
        window->setWindowTitle(QObject::tr("Keys"));
        window->setAttribute(Qt::WA_DeleteOnClose);
        auto* column = new QVBoxLayout(window);
        column->addWidget(makeTable(*window));
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, window);
        QObject::connect(buttons, &QDialogButtonBox::rejected, window, &QDialog::close);
        column->addWidget(buttons);
        constexpr int charactersWide = 100;
        constexpr int linesHigh = 32;
        const QFontMetrics metrics = window->fontMetrics();
        window->resize(QSize(charactersWide * metrics.averageCharWidth(), linesHigh * metrics.lineSpacing())
                           .boundedTo(parent.size()));
    }
    window->show();
    window->raise();
    window->activateWindow();
}

}  // namespace plandesk::desktop
