#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/User.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"
#include "unit/TestPorts.h"

namespace plandesk::test {

/// A proposal with both forms of the Particulars and three villages.
class ParticularsTest : public ::testing::Test {
protected:
    ParticularsTest() {
        machine.files.contents["/program/VILLAGENAMES.txt"] = "Tervale#1#TRV\nBalundi#2#BLN\nHosavel#30#HSV\n";
        proposal.forms.declare<frmAnnexureA>();
        proposal.forms.declare<AnnexureACont>();
    }

    frmAnnexureA& first() { return proposal.forms.get<frmAnnexureA>(); }
    AnnexureACont& second() { return proposal.forms.get<AnnexureACont>(); }

    /// Fills in all that the fifteen tests of the first page ask for.
    void fillFirstPage() {
        first().txtTitle.setText("A new case");
        for (ComboBox* list :
             {&first().cboCaseType, &first().cboProposalTyp, &first().cboProposProj, &first().cboSector})
            list->setListIndex(0);
        for (TextBox* box : {&first().txtpltno, &first().txtFPNo, &first().txtTikaNo, &first().txtApplicantNm,
                             &first().txtApplicantAddr, &first().txtArchNm, &first().txtArchFirstName,
                             &first().txtRegNm, &first().txtPltArea, &first().txtActualArea})
            box->setText("1");
    }

    static std::vector<Control*> controls(const Form& form, std::string_view keys) {
        std::vector<Control*> found;
        for (const std::string& key : split(keys, " ")) {
            found.push_back(form.findKey(key));
            EXPECT_NE(found.back(), nullptr) << key;
        }
        return found;
    }
    static void click(const Form& form, std::string_view key) {
        auto* option = dynamic_cast<OptionButton*>(form.findKey(key));
        ASSERT_NE(option, nullptr) << key;
        option->choose();
    }
    static void expectVisible(const Form& form, std::string_view keys, bool visible) {
        for (const Control* control : controls(form, keys))
            EXPECT_EQ(control->visible(), visible) << control->key();
    }
    static void expectEnabled(const Form& form, std::string_view keys, bool enabled) {
        for (const Control* control : controls(form, keys))
            EXPECT_EQ(control->enabled(), enabled) << control->key();
    }
    static void expectColour(const Form& form, std::string_view keys, Colour colour) {
        for (const Control* control : controls(form, keys))
            EXPECT_EQ(control->backColor().text(), colour.text()) << control->key();
    }
    static void expectOpen(const Form& form, std::string_view keys) {
        expectEnabled(form, keys, true);
        expectColour(form, keys, white);
    }
    static void expectClosed(const Form& form, std::string_view keys) {
        expectEnabled(form, keys, false);
        expectColour(form, keys, disabledGrey);
    }
    static void write(const Form& form, std::string_view keys, std::string_view text) {
        for (Control* control : controls(form, keys))
            dynamic_cast<TextBox&>(*control).setText(text);
    }
    static void expectText(const Form& form, std::string_view keys, std::string_view text) {
        for (const Control* control : controls(form, keys))
            EXPECT_EQ(dynamic_cast<const TextBox&>(*control).text(), text) << control->key();
    }
    static void expectOff(const Form& form, std::string_view keys) {
        for (const Control* control : controls(form, keys))
            EXPECT_FALSE(dynamic_cast<const OptionButton&>(*control).value()) << control->key();
    }
    /// Exactly one box has been shown since the last call.
    void expectMessage(std::string_view text, std::string_view title, Icon icon = Icon::Information) {
        const std::vector<Message> shown = machine.dialogs.take();
        ASSERT_EQ(shown.size(), 1U) << text;
        EXPECT_EQ(shown[0].text, text);
        EXPECT_EQ(shown[0].title, title);
        EXPECT_EQ(shown[0].icon, icon);
    }
    void expectNoMessage() { EXPECT_TRUE(machine.dialogs.take().empty()); }

    /// Types into the box and gives back what it then holds.
    static std::string typed(TextBox& box, std::string_view text) {
        box.restoreText("");
        box.setVisible(true);
        box.setEnabled(true);
        EXPECT_TRUE(user::type(box, text)) << box.name();
        return box.text();
    }

    TestPorts machine;
    Proposal proposal{machine};
};

}  // namespace plandesk::test
