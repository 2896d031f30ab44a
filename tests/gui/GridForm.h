#pragma once

#include <QLineEdit>
#include <QTest>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "controls/Controls.h"
#include "desktop/FormView.h"
#include "desktop/GridTable.h"
#include "desktop/ScreenView.h"
#include "proposal/DataForm.h"
#include "proposal/Grid.h"
#include "unit/TestPorts.h"

namespace plandesk::test {

/// A form with a grid of every kind of column, and editors that float over two of them.
class GridForm : public DataForm {
public:
    static constexpr std::string_view formName = "GridForm";
    enum Place { No, Fixed, Name, Area, On, Kind, Done };

    explicit GridForm(Proposal& proposal) : DataForm(proposal, formName, "Grid ") {
        picker.setVisible(false);
        list.setVisible(false);
        grid.setColumns(settings);
        grid.editStart = [this](int column) {
            if (column == On)
                place(picker, On);
            return column != On;
        };
        grid.click = [this](int column) {
            clicks.push_back(column);
            if (column == Kind)
                place(list, Kind);
        };
        grid.buttonClick = [this](int column) {
            buttons.push_back(column);
            if (column == On)
                place(picker, On);
        };
        grid.afterColumnUpdate = [this](int column) { updates.push_back(column); };
        picker.change = [this] { write(On, picker.date()); };
        list.lostFocus = [this] {
            list.setVisible(false);
            write(Kind, list.text());
        };
    }

    const Layout& layout() const override {
        static constexpr LayoutRow rows[] = {
            {.question = "Before", .controls = "before"},
            {.question = "Owners", .controls = "grid", .lines = 4},
            {.question = "Behind", .controls = "behind"},
        };
        static constexpr LayoutRow framed[] = {{.controls = "other", .lines = 1}};
        static constexpr LayoutGroup groups[] = {{"", rows}, {.rows = framed, .frame = "frame"}};
        static constexpr LayoutPage pages[] = {{groups}};
        static constexpr Layout sheet{.pages = pages};
        return sheet;
    }
    void functionKey(std::string_view key) override { keys += std::string(key) + " "; }

    TextBox before{*this, "before"};
    Grid grid{*this, "grid"};
    GridEditor<DatePicker> picker{grid, "picker"};
    GridEditor<ComboBox> list{grid, "list"};
    TextBox behind{*this, "behind"};
    Frame frame{*this, "frame", "Plots"};
    Grid other{*this, "other"};

    std::vector<int> clicks;
    std::vector<int> buttons;
    std::vector<int> updates;
    std::string keys;

    static std::shared_ptr<Recordset> makeTable(int rows) {
        static constexpr std::array columns = {Column{"No", ColumnKind::Integer},  Column{"Fixed", ColumnKind::Text},
                                               Column{"Name", ColumnKind::Text},   Column{"Area", ColumnKind::Double},
                                               Column{"On", ColumnKind::Date},     Column{"Kind", ColumnKind::Text},
                                               Column{"Done", ColumnKind::Boolean}};
        auto table = std::make_shared<Recordset>(columns);
        for (int row = 0; row < rows; ++row) {
            table->addNew();
            table->set(No, row);
            table->set(Fixed, "No " + std::to_string(row));
            table->set(Name, "name " + std::to_string(row));
            table->set(Area, row + 0.5);
            table->set(On, Date{2024, 1, 15});
            table->set(Kind, std::string("New"));
            table->set(Done, false);
            table->update();
        }
        table->moveFirst();
        return table;
    }

private:
    static constexpr std::array settings = std::to_array<GridColumn>({
        {.caption = "", .width = 0},
        {.caption = "Fixed ", .width = 1000, .locked = true},
        {.caption = "Name Of Owner", .width = 3000},
        {.caption = "Cumulative Area in Sq.Mt", .width = 1200},
        {.caption = "Date", .width = 1500, .button = true},
        {.caption = "Kind", .width = 1500},
        {.caption = "Done", .width = 800, .locked = true, .button = true, .yesNo = true},
    });

    void place(Control& editor, int column) {
        grid.place(editor, column);
        editor.setFocus();
    }
    template <class Held>
    void write(int column, Held value) {
        grid.table()->set(column, value);
        grid.table()->update();
        grid.refresh();
    }
};

/// The form on a desk of its own, without a main window.
struct GridStage {
    TestPorts machine;
    Proposal proposal{machine};
    QWidget desk;
    desktop::ScreenView view{proposal.screen, desk};
    std::shared_ptr<Recordset> table;

    explicit GridStage(int rows = 3) : table(GridForm::makeTable(rows)) {
        proposal.forms.declare<GridForm>();
        form().list.addItem("New");
        form().list.addItem("Old");
        form().grid.bind(table);
        desk.resize(1024, 660);
        desk.show();
        form().show();
        settle();
    }

    GridForm& form() { return proposal.forms.get<GridForm>(); }
    void settle() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }
    QWidget& widget(const Control& control) { return *view.viewOf(control.form())->widgetOf(control); }
    desktop::GridTable& shown() { return static_cast<desktop::GridTable&>(widget(form().grid)); }
    QRect place(int row, int column) { return shown().visualRect(shown().model()->index(row, column)); }
    QString text(int row, int column) { return shown().model()->index(row, column).data().toString(); }
    std::string cell(int row, int column) { return form().grid.cellText(row, column); }
    QWidget& keyboard() { return *desk.focusWidget(); }

    /// The line in which a cell is typed; null while none is.
    QLineEdit* line() {
        auto* line = qobject_cast<QLineEdit*>(&keyboard());
        return line && shown().viewport()->isAncestorOf(line) ? line : nullptr;
    }

    void click(int row, int column) { clickAt(place(row, column).center()); }
    void clickAt(QPoint point) {
        QTest::mouseClick(shown().viewport(), Qt::LeftButton, {}, point);
        settle();
    }
    void doubleClick(int row, int column) {
        click(row, column);
        QTest::mouseDClick(shown().viewport(), Qt::LeftButton, {}, place(row, column).center());
        settle();
    }
    void clickButton(int row, int column) { clickAt(shown().buttonRect(shown().model()->index(row, column)).center()); }
    void type(const QString& keys) {
        for (const QChar key : keys)  // an edit begins with the first
            QTest::keyClick(&keyboard(), key.toLatin1());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&keyboard(), key, modifiers);
        settle();
    }
    bool at(int row, int column) {
        const Grid& grid = form().grid;
        return grid.currentRow() == row && grid.currentColumn() == column &&
               shown().currentIndex() == shown().model()->index(row, column);
    }
};

}  // namespace plandesk::test
