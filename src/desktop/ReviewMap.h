#pragma once

#include <QTreeWidget>
#include <functional>
#include <vector>

#include "desktop/ReviewLines.h"

namespace plandesk::desktop {

/// The forms and their pages: how many of the questions shown are answered, and where something is missing.
class ReviewMap : public QTreeWidget {
public:
    explicit ReviewMap(QWidget& panel);

    void show(std::vector<ReviewPage> shown);

    std::function<void(const ReviewPage& page)> chosen = [](const ReviewPage&) {};  ///< by Enter or a click
    std::function<void()> left = [] {};                                             ///< by Esc

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QTreeWidgetItem* addForm(const QString& name);
    void fill(QTreeWidgetItem& item, int place);
    void choose(QTreeWidgetItem* item);

    std::vector<ReviewPage> pages;
};

}  // namespace plandesk::desktop
