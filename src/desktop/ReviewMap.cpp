#include "desktop/ReviewMap.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

namespace plandesk::desktop {

namespace {

enum MapColumn { Page, Answered, Missing, Columns };
constexpr int placeRole = Qt::UserRole;
constexpr QColor missingColour(0xB3, 0x26, 0x1E);

bool samePages(const std::vector<ReviewPage>& a, const std::vector<ReviewPage>& b) {
    return std::ranges::equal(a, b, [](const ReviewPage& one, const ReviewPage& other) {
        return one.form == other.form && one.page == other.page && one.count.form == other.count.form;
    });
}

}  // namespace

ReviewMap::ReviewMap(QWidget& panel) : QTreeWidget(&panel) {
    setObjectName(QStringLiteral("reviewMap"));
    setAccessibleName(tr("Forms and pages"));
    setColumnCount(Columns);
    setHeaderLabels({tr("Page"), tr("Answered"), tr("Missing")});
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(Page, QHeaderView::Stretch);
    header()->setSectionsMovable(false);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    constexpr int indent = 16;
    setIndentation(indent);
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) { choose(item); });
}

void ReviewMap::show(std::vector<ReviewPage> shown) {
    const bool same = samePages(pages, shown);
    pages = std::move(shown);
    if (!same)
        clear();
    QTreeWidgetItemIterator item(this);
    QTreeWidgetItem* form = nullptr;
    for (int place = 0; place < static_cast<int>(pages.size()); ++place) {
        const ReviewPage& page = pages[static_cast<std::size_t>(place)];
        if (same) {
            while (!(*item)->data(Page, placeRole).isValid())
                ++item;
            fill(**item, place);
            ++item;
            continue;
        }
        if (page.page.isEmpty()) {
            fill(*addForm(page.form), place);
            continue;
        }
        // Forms of one name go on with each other's pages.
        if (!form || form->text(Page) != page.form)
            form = addForm(page.form);
        fill(*new QTreeWidgetItem(form), place);
    }
    if (!same)
        expandAll();
    // The names have the room where nothing is missing.
    setColumnHidden(Missing, std::ranges::all_of(pages, [](const ReviewPage& page) { return page.missing == 0; }));
}

QTreeWidgetItem* ReviewMap::addForm(const QString& name) {
    auto* item = new QTreeWidgetItem(this);
    item->setText(Page, name);
    item->setToolTip(Page, name);
    return item;
}

void ReviewMap::fill(QTreeWidgetItem& item, int place) {
    const ReviewPage& page = pages[static_cast<std::size_t>(place)];
    const QString name = page.page.isEmpty() ? page.form : page.page;
    const QString answered = tr("%1 of %2").arg(page.count.answered).arg(page.count.shown);
    const QString missing = page.missing > 0 ? QString::number(page.missing) : QString();
    QFont font = this->font();
    font.setBold(page.missing > 0);
    item.setData(Page, placeRole, place);
    item.setText(Page, name);
    item.setToolTip(Page, name);
    item.setText(Answered, answered);
    item.setText(Missing, missing);
    item.setTextAlignment(Answered, Qt::AlignRight | Qt::AlignVCenter);
    item.setTextAlignment(Missing, Qt::AlignRight | Qt::AlignVCenter);
    item.setFont(Missing, font);
    item.setForeground(Missing, missingColour);
    item.setData(Page, Qt::AccessibleTextRole,
                 missing.isEmpty() ? tr("%1, %2 answered").arg(name, answered)
                                   : tr("%1, %2 answered, %3 missing").arg(name, answered, missing));
}

void ReviewMap::choose(QTreeWidgetItem* item) {
    if (!item)
        return;
    const QVariant place = item->data(Page, placeRole);
    if (place.isValid())
        chosen(ReviewPage(pages[place.toUInt()]));
    else
        item->setExpanded(!item->isExpanded());
}

void ReviewMap::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        return left();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return choose(currentItem());
    QTreeWidget::keyPressEvent(event);
}

}  // namespace plandesk::desktop
