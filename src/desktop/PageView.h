#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "controls/Layout.h"
#include "desktop/ControlView.h"

namespace plandesk::desktop {

class OptionsBox;

/// One page of a form: groups of rows, each a question with the controls that answer it, in columns that run down the
/// whole page. What does not fit beside its question stands below it.
class PageView : public QWidget {
public:
    /// `groups`: those of the form's layout that stand on this page.
    PageView(QWidget& parent, const Form& form, const std::vector<LayoutGroup>& groups, const ViewMaker& maker);

    /// Lays the page out in that width; the page takes the height it needs. `viewHeight`: what one sees of it at once.
    void arrange(int width, int viewHeight);
    /// Width in which every answer stands beside its question.
    int naturalWidth();
    /// Distance of the contents from both sides of a page of that width: beyond readable lines they stand in the
    /// middle.
    int marginFor(int width);
    /// Place of the row in which the widget stands, its question included; that of the widget alone outside of rows.
    QRect rowOf(const QWidget& widget) const;

    /// Rows came in sight, and the page is higher than before.
    std::function<void()> grew = [] {};

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row {
        const LayoutRow* layout = nullptr;
        QLabel* item = nullptr;
        QLabel* question = nullptr;
        ControlView* liveQuestion = nullptr;  ///< set when the question is the caption of a label of the form
        QLabel* mark = nullptr;
        QLabel* unit = nullptr;
        std::vector<ControlView*> controls;
        ControlView* above = nullptr;   ///< the grid under whose column the row's control stands
        OptionsBox* options = nullptr;  ///< holds those of the controls that are options
        bool shown = true;
    };
    struct Group {
        LayoutGroup layout;
        ControlView* frame = nullptr;
        QLabel* title = nullptr;
        std::vector<QLabel*> heads;  ///< the first stands over the questions
        std::vector<Row> rows;
        bool shown = true;
        QRect outline;
    };
    /// Where the columns begin, in pixels of the page.
    struct Columns {
        int item = 0;
        int question = 0;
        int questionWidth = 0;
        int mark = 0;
        int controls = 0;
        int right = 0;
        int naturalWidth = 0;
    };

    Group makeGroup(const Form& form, const LayoutGroup& group, const ViewMaker& maker);
    Row makeRow(const Form& form, const LayoutRow& row, const ViewMaker& maker);
    void makeControls(const Form& form, Row& row, const ViewMaker& maker);
    QLabel* makeLabel(std::string_view text);
    /// Gives everything its name, a number behind it where it is not the first of that name.
    void nameControls(const Form& form);
    static void relateLabels(const Row& row);
    /// Whether the row is one control over the whole width of the page, with its question as a heading.
    static bool fillsWidth(const Row& row);
    /// Whether the row's first control carries the words that others have as their question.
    static bool leadsRow(const Row& row);
    /// Whether the row has one text box, which may then be wide.
    static bool boxStandsAlone(const Row& row);
    /// Finds the grids below which rows stand.
    void relateGrids();
    void updateShown();
    /// A label of the form whose caption is a question here; null when there is none.
    const Control* liveQuestion() const;
    /// Every widget of the row, shown or not.
    static std::vector<QWidget*> parts(const Row& row);
    static void setShown(const Row& row);

    Columns columnsFor(int width) const;
    int readableWidth(int naturalWidth) const;
    int controlsWidth(const Row& row) const;
    std::vector<int> tableColumns(const Group& group) const;
    int headWidth(const Group& group, std::size_t column) const;
    // Each of these puts a part at `top` and tells where it ends.
    int placeGroup(Group& group, const Columns& columns, int top);
    int placeTitle(const Group& group, const Columns& columns, int top);
    int placeHeads(const Group& group, const Columns& columns, const std::vector<int>& widths, int top);
    int placeTableRow(const Group& group, const Row& row, const Columns& columns, const std::vector<int>& widths,
                      int top);
    int placeRow(const Row& row, const Columns& columns, int top);
    int placeQuestion(const Row& row, const Columns& columns, int top, int width);
    int placeUnder(const Row& row, int top);
    int placeFilling(const Row& row, const Columns& columns, int top);
    int placeControls(const Row& row, int left, int right, int top);
    int lineHeight() const;
    int gap() const;

    int questionCharacters;
    std::vector<Group> groups;
    int lastWidth = 0;
    int lastViewHeight = 0;
};

}  // namespace plandesk::desktop
