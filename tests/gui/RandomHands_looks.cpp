// What must hold between two events, whatever the user did.

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>
#include <set>

#include "desktop/GridTable.h"
#include "desktop/QtText.h"
#include "gui/RandomHands.h"
#include "proposal/Grid.h"

namespace plandesk::test {

namespace {

using desktop::toQt;

/// Failures that are never an answer to what the user did, but a fault of the program.
const std::set<std::string> faults = {"Internal error", "Out of memory", "Out of stack space", "std::exception",
                                      RuntimeError(ErrorNumber::ItemNotFound).description};

/// What the widget shows that the control does not hold.
std::string difference(const Control& control, const QWidget& widget) {
    if (widget.isEnabledTo(widget.parentWidget()) != control.enabled())
        return "is enabled otherwise";
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
        const auto* line = qobject_cast<const QLineEdit*>(&widget);
        const bool shows = !line || line->text() == toQt(box->text()) || line->isReadOnly();
        return shows ? "" : "shows another text";
    }
    if (const auto* option = dynamic_cast<const OptionButton*>(&control))
        return static_cast<const QRadioButton&>(widget).isChecked() != option->value() ? "is on otherwise" : "";
    if (const auto* check = dynamic_cast<const CheckBox*>(&control))
        return static_cast<const QCheckBox&>(widget).isChecked() != (check->value() != 0) ? "is on otherwise" : "";
    if (const auto* strip = dynamic_cast<const TabStrip*>(&control))
        return static_cast<const QTabBar&>(widget).currentIndex() != strip->tab() ? "shows another tab" : "";
    if (const auto* list = dynamic_cast<const ComboBox*>(&control)) {
        const auto& shown = static_cast<const QComboBox&>(widget);
        return shown.count() != list->listCount() || shown.currentIndex() != list->listIndex() ? "shows another item"
                                                                                               : "";
    }
    if (const auto* grid = dynamic_cast<const Grid*>(&control)) {
        const QAbstractItemModel& model = *static_cast<const desktop::GridTable&>(widget).model();
        if (model.rowCount() != grid->rowCount() || model.columnCount() != grid->columnCount())
            return "shows other rows or columns";
    }
    return "";
}

}  // namespace

std::string RandomHands::whatIsWrong() {
    settle();
    if (ended())
        return "";
    for (const Message& box : dialogs.take())
        if (box.icon == Icon::Critical && faults.contains(box.text))
            return "a box says " + box.text;
    bool ran = false;
    window.forms().act(Qt::OtherFocusReason, [&] { proposal.screen.event([&] { ran = true; }); });
    if (!ran)
        return "no act is taken any longer";
    const Control* focused = proposal.screen.focused();
    bool focusFound = focused == nullptr;
    for (const auto& [name, form] : proposal.forms.all()) {
        const desktop::FormView* view = window.forms().viewOf(*form);
        for (const Control* control : form->controls()) {
            focusFound = focusFound || control == focused;
            const QWidget* widget = view ? view->widgetOf(*control) : nullptr;
            if (const std::string found = widget ? difference(*control, *widget) : ""; !found.empty())
                return name + "." + control->key() + " " + found;
        }
    }
    return focusFound ? "" : "the focus is on no loaded form";
}

}  // namespace plandesk::test
