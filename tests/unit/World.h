#pragma once

#include <string>
#include <string_view>

#include "FirstPage.h"
#include "TestPorts.h"
#include "controls/Controls.h"
#include "proposal/Grid.h"
#include "proposal/Proposal.h"
#include "shell/mdiInterface.h"

namespace plandesk::test {

/// The whole system, started, on a machine in memory.
struct World {
    World() { ports.files.contents["/program/VILLAGENAMES.txt"] = "Tervale#1#TRV\nBalundi#2#BLN\nKhandri#11#KND\n"; }

    TestPorts ports;
    Proposal proposal{ports};
    mdiInterface shell{proposal};

    /// The control of that name. RuntimeError with the name when the form does not have it.
    template <class Kind>
    Kind& control(std::string_view form, std::string_view key) {
        return proposal.forms.touch(form)->at<Kind>(key);
    }
    TextBox& box(std::string_view form, std::string_view key) { return control<TextBox>(form, key); }
    Grid& grid(std::string_view form, std::string_view key) { return control<Grid>(form, key); }
    DatePicker& date(std::string_view form, std::string_view key) { return control<DatePicker>(form, key); }
    Button& button(std::string_view form, std::string_view key) { return control<Button>(form, key); }
    OptionButton& option(std::string_view form, std::string_view key) { return control<OptionButton>(form, key); }
    ComboBox& list(std::string_view form, std::string_view key) { return control<ComboBox>(form, key); }

    void fillFirstPage() { test::fillFirstPage(*proposal.forms.touch("frmAnnexureA")); }

    /// New, the first page filled in, and saved to `path`; its boxes are taken.
    void saveNewProposal(const std::string& path) {
        shell.press("mnuNew");
        fillFirstPage();
        saveTo(path);
    }

    /// A first save of what stands, to `path`; its boxes are taken.
    void saveTo(const std::string& path) {
        ports.dialogs.answers.push_back(path);
        shell.press("mnuSave");
        ports.dialogs.take();
    }
};

}  // namespace plandesk::test
