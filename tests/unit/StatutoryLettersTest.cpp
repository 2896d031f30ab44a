#include "reports/letters/StatutoryLetters.h"

#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/Text.h"
#include "controls/Naming.h"
#include "controls/User.h"
#include "reports/ReportCatalogue.h"
#include "unit/LayoutCheck.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

/// What is known of a letter: its blanks in the order of the letter, each with the column of the paper that it feeds.
struct Known {
    std::string_view form;
    std::string_view menu;
    std::string_view caption;
    std::string_view report;
    std::string_view blanks;   ///< keys of the controls that one fills in
    std::string_view columns;  ///< of the report, in the same order
};

constexpr std::array letters = std::to_array<Known>({
    {"frmofsupervision", "mnuSupervision", "Form of Supervision", "rptFormofSupervision",
     "txtOfficername txtBuilding txtFPNo txtSchemeno txtRoad txtWard txtSector txtEngineer txtLicencea txtAddengineer "
     "DTPicker1",
     "Officername Building FPNo Scheme Road Ward Sector EngineerName Licenceno AddressEngineer DTPicker"},
    {"frmnoticeofcommencementofwork", "mnuCommencement", "Form For Notice For Commencement Of Work",
     "rptNoticeforcommencementofwork",
     "txtNoticeForCommencment(0) txtNoticeForCommencment(1) txtNoticeForCommencment(2) txtNoticeForCommencment(3) "
     "txtNoticeForCommencment(4) txtNoticeForCommencment(5) DTPicker1 txtNoticeForCommencment(7) DTPicker2 "
     "txtNoticeForCommencment(9) txtNoticeForCommencment(10) txtNoticeForCommencment(12) txtNoticeForCommencment(13) "
     "possessionreciept(1) possessionreciept(0) txtNoticeForCommencment(15)",
     "FLD1 FLD2 FLD3 FLD4 FLD5 FLD6 FLD7 FLD8 FLD9 FLD10 FLD11 FLD13 FLD14 FLD15 FLD16"},
    {"frmcompletionuptoplinthlevel", "mnuComPlintLevel", "Form For Intimatin of Completion of Work Upto Plinth Level",
     "rptformforintimationofcompletionofworkuptoplinthlevel",
     "txtCompletionPlint(0) txtCompletionPlint(1) txtCompletionPlint(2) txtCompletionPlint(3) txtCompletionPlint(4) "
     "txtCompletionPlint(5) txtCompletionPlint(6) txtCompletionPlint(7) DTPicker1 txtCompletionPlint(9) "
     "txtCompletionPlint(10) DTPicker2 IsRightsTransfered(1) IsRightsTransfered(0) txtCompletionPlint(13)",
     "FLD1 FLD2 FLD3 FLD4 FLD5 FLD6 FLD7 FLD8 FLD9 FLD10 FLD11 FLD12 FLD13 FLD14"},
    {"frmbuildingcompletioncertificate", "mnuBldgCompCertificate",
     "Form of applicant for Building Completion Certificate", "forbldgcompletion",
     "txtCompletionCertificate(0) txtCompletionCertificate(1) txtCompletionCertificate(2) txtCompletionCertificate(3) "
     "txtCompletionCertificate(4) txtCompletionCertificate(5) DTPicker1 txtCompletionCertificate(7) "
     "txtCompletionCertificate(8) DTPicker2 txtCompletionCertificate(10) txtCompletionCertificate(11) "
     "txtCompletionCertificate(12) DTPicker3",
     "FLD1 FLD2 FLD3 FLD4 FLD5 FLD6 FLD7 FLD8 FLD9 FLD10 FLD11 FLD12 FLD13 FLD14"},
    {"frmforpartoccupancycertificate", "mnuOccCertificate", "Form For Idemnity for Part Occupancy Certificate ",
     "rptforpartoccupancycertificate",
     "txtOccupancyCertificate(0) DTPicker1 txtOccupancyCertificate(2) txtOccupancyCertificate(3) "
     "txtOccupancyCertificate(4) DTPicker2",
     "FLD1 FLD2 FLD3 FLD4 FLD5 FLD6"},
    {"frmtdrfortransferringownership", "mnuTransOwnerShip", "TDR-Transferring Owership",
     "rptTDRfortransferringownership",
     "txtTDRTransOwn(0) txtTDRTransOwn(1) txtTDRTransOwn(2) txtTDRTransOwn(3) txtTDRTransOwn(4) txtTDRTransOwn(5) "
     "txtTDRTransOwn(6) txtTDRTransOwn(7) txtTDRTransOwn(8) txtTDRTransOwn(9) txtTDRTransOwn(10) txtTDRTransOwn(11) "
     "txtTDRTransOwn(12) txtTDRTransOwn(13) txtTDRTransOwn(14) txtTDRTransOwn(15) txtTDRTransOwn(16) "
     "txtTDRTransOwn(17) txtTDRTransOwn(18) txtTDRTransOwn(19) txtTDRTransOwn(20) txtTDRTransOwn(21)",
     "FLD1 FLD2 FLD3 FLD4 FLD5 FLD6 FLD7 FLD8 FLD9 FLD10 FLD11 FLD12 FLD13 FLD14 FLD15 FLD16 FLD17 FLD18 FLD19 FLD20 "
     "FLD21 FLD22"},
});

/// A blank and the words that it reads after, to the last of them.
struct Words {
    std::string_view form;
    std::string_view control;
    std::string_view words;
};

constexpr std::array wording = std::to_array<Words>({
    {"frmofsupervision", "txtOfficername", "The"},
    {"frmofsupervision", "txtBuilding",
     "The  development erection/re-erection/demolition or material alteration of the building"},
    {"frmofsupervision", "txtFPNo", "on S.No./C.T.S. No./F.P.No."},
    {"frmofsupervision", "txtSchemeno", "of  Village / Town planning scheme No"},
    {"frmofsupervision", "txtRoad", "situated at Road/Street"},
    {"frmofsupervision", "txtWard", "ward"},
    {"frmofsupervision", "txtSector", "Sector No."},
    {"frmofsupervision", "txtEngineer", "Name : (in block letters)"},
    {"frmofsupervision", "txtLicencea", "Licence No/C.A.No."},
    {"frmofsupervision", "txtAddengineer", "Address :"},
    {"frmofsupervision", "DTPicker1", "Date :"},
    {"frmnoticeofcommencementofwork", "txtNoticeForCommencment(0)", "in/of buiding No."},
    {"frmnoticeofcommencementofwork", "txtNoticeForCommencment(1)", "Village "},
    {"frmnoticeofcommencementofwork", "txtNoticeForCommencment(2)", "Sector No No."},
    {"frmnoticeofcommencementofwork", "txtNoticeForCommencment(3)", "Ward No."},
    {"frmnoticeofcommencementofwork", "txtNoticeForCommencment(4)", "Situated at"},
    {"frmnoticeofcommencementofwork", "txtNoticeForCommencment(5)", "Road/ Street, S.No./C.S.No./F.P.No."},
    {"frmnoticeofcommencementofwork", "DTPicker1", "will be, Commenced on"},
    {"frmnoticeofcommencementofwork", "txtNoticeForCommencment(7)", "office  communication  No."},
    {"frmnoticeofcommencementofwork", "DTPicker2", "dt"},
    {"frmnoticeofcommencementofwork", "txtNoticeForCommencment(9)", " under  the  supervision of"},
    {"frmnoticeofcommencementofwork", "txtNoticeForCommencment(10)",
     "licenced architect / engineer / structural  engineer /supervisor-licence No"},
    {"frmnoticeofcommencementofwork", "txtNoticeForCommencment(12)", "Name of Owner : (In block letters)"},
    {"frmnoticeofcommencementofwork", "txtNoticeForCommencment(13)", "Address of Owner :"},
    {"frmnoticeofcommencementofwork", "possessionreciept(1)",
     "Whether Declararion and Possesion reciept of plot is surrendered to SMC :"},
    {"frmcompletionuptoplinthlevel", "IsRightsTransfered(1)",
     "Whether record of right is transferred on time name ( 7/12 extract / P.R.Card)  : "},
    {"frmcompletionuptoplinthlevel", "txtCompletionPlint(13)", "Remarks :"},
});

constexpr std::array heads = std::to_array<Words>({
    {"frmofsupervision", "", "APPENDIX - B\n(Regulation 18)"},
    {"frmnoticeofcommencementofwork", "", "Appendix - F\n(Regulation  No.32)"},
    {"frmcompletionuptoplinthlevel", "", "Appendix -G\n(Regulation  No.34)"},
    {"frmbuildingcompletioncertificate", "", "APPENDIX-J-1\n(Regulation  No.36)"},
    {"frmforpartoccupancycertificate", "", "Appendix -I\n(Regulation  No.38)"},
});

std::vector<std::string> keysOf(const std::vector<Control*>& controls) {
    std::vector<std::string> keys;
    for (const Control* control : controls)
        keys.push_back(control->key());
    return keys;
}

std::vector<std::string> words(std::string_view list) {
    return split(list, " ");
}

std::vector<std::string> fieldsOf(std::string_view report) {
    std::vector<std::string> fields;
    for (const PaperSection& section : findLayout(report)->body)
        for (const PaperRow& row : section.rows)
            for (const PaperCell& cell : row.cells)
                for (const PaperItem& item : cell)
                    if (item.isField())
                        fields.emplace_back(item.field);
    return fields;
}

struct Letters : testing::Test, World {
    Letters() {
        proposal.commands.print = [this](std::string_view report) { asked.emplace_back(report); };
    }

    Form& open(const Known& letter) {
        shell.press(letter.menu);
        return *proposal.forms.loaded(letter.form);
    }
    std::span<const LayoutRow> rows(std::string_view form) {
        return proposal.forms.touch(form)->layout().pages[0].groups[0].rows;
    }
    const LayoutRow& rowOf(std::string_view form, std::string_view key) {
        for (const LayoutRow& row : rows(form))
            if ((std::string(row.controls) + " ").starts_with(std::string(key) + " "))
                return row;
        throw RuntimeError(ErrorNumber::ItemNotFound, std::string(key));
    }

    std::vector<std::string> asked;  ///< reports
};

TEST_F(Letters, EachHasItsBlanksInTheOrderOfTheLetterAndNoOthers) {
    for (const Known& letter : letters) {
        const Form& form = *proposal.forms.touch(letter.form);
        EXPECT_EQ(form.caption(), letter.caption);
        EXPECT_EQ(keysOf(form.pageOrder()), words(letter.blanks)) << letter.form;
        std::vector<std::string> inputs;
        for (const Control* control : form.controls())
            if (control->kind() != ControlKind::Label && control->kind() != ControlKind::Button)
                inputs.push_back(control->key());
        EXPECT_EQ(inputs, words(letter.blanks)) << letter.form;
        EXPECT_EQ(layoutFaults(form), std::vector<std::string>()) << letter.form;
    }
}

TEST_F(Letters, TheBlanksOnPaperStandInTheOrderOfThoseOnTheScreen) {
    for (const Known& letter : letters) {
        EXPECT_EQ(fieldsOf(letter.report), words(letter.columns)) << letter.report;
        std::size_t blanks = 0;  // the two options of a question have one blank on paper
        for (const std::string& key : words(letter.blanks))
            blanks += key == "possessionreciept(0)" || key == "IsRightsTransfered(0)" ? 0 : 1;
        EXPECT_EQ(blanks, words(letter.columns).size()) << letter.form;
    }
}

TEST_F(Letters, ABlankStandsBehindItsWords) {
    for (const Words& each : wording) {
        const std::string_view question = rowOf(each.form, each.control).question;
        EXPECT_TRUE(question.ends_with(each.words)) << each.form << " " << each.control << ": " << question;
    }
    for (const Words& head : heads)
        EXPECT_TRUE(rows(head.form)[0].question.starts_with(head.words)) << head.form;
}

TEST_F(Letters, EachIsAddressedToTheCorporationAndSpeaksOfItsMarks) {
    for (const Known& letter : letters) {
        std::string all;
        for (const LayoutRow& row : rows(letter.form))
            all.append(row.question).append("\n");
        EXPECT_NE(all.find("Municipal Corporation of the City of Sindhavali,\nSindhavali."), std::string::npos);
        EXPECT_TRUE(all.ends_with("Items marked with * are mandatory\n"));
        EXPECT_TRUE(std::ranges::any_of(rows(letter.form), [](const LayoutRow& row) { return row.mark == "*"; }));
    }
}

TEST_F(Letters, NoTwoBlanksOfALetterAreCalledTheSame) {
    for (const Known& letter : letters) {
        const Form& form = *proposal.forms.touch(letter.form);
        std::set<std::string> names;
        for (const LayoutRow& row : rows(letter.form))
            for (const Naming& naming : nameRow(form, form.layout().pages[0].groups[0], row).controls)
                if (naming.control->kind() != ControlKind::OptionButton) {
                    EXPECT_FALSE(naming.name.empty()) << naming.control->key();
                    EXPECT_TRUE(names.insert(naming.name).second) << letter.form << ": " << naming.name;
                }
    }
    EXPECT_EQ(placeOf(box("frmnoticeofcommencementofwork", "txtNoticeForCommencment(1)")),
              "Form For Notice For Commencement Of Work: Village");
}

TEST_F(Letters, TheMenuBringsEachToTheFrontInItsColours) {
    for (const Known& letter : letters) {
        const Form& form = open(letter);
        EXPECT_TRUE(form.front()) << letter.form;
        EXPECT_EQ(form.backColor(), proposal.formBackColor);
        for (const Control* control : form.controls())
            EXPECT_EQ(control->backColor(),
                      control->kind() == ControlKind::OptionButton || control->kind() == ControlKind::Label
                          ? proposal.formBackColor
                          : white)
                << control->key();
    }
}

TEST_F(Letters, EveryDateBeginsWithToday) {
    ports.clock.day = {2026, 11, 22};
    std::vector<std::size_t> counts;
    for (const Known& letter : letters) {
        counts.push_back(0);
        proposal.forms.touch(letter.form)->forEach<DatePicker>([&](const DatePicker& date) {
            ++counts.back();
            EXPECT_EQ(date.date(), (Date{2026, 11, 22})) << letter.form << " " << date.key();
        });
    }
    EXPECT_EQ(counts, (std::vector<std::size_t>{1, 2, 2, 3, 2, 0}));
}

TEST_F(Letters, Command5AsksForTheReportAndOneLetterLeavesAMark) {
    for (const Known& letter : letters) {
        proposal.noReportReturn = false;
        open(letter);
        user::click(button(letter.form, "Command5"));
        EXPECT_EQ(asked, std::vector<std::string>{std::string(letter.report)});
        EXPECT_EQ(proposal.noReportReturn, letter.form == "frmofsupervision") << letter.form;
        asked.clear();
    }
}

TEST_F(Letters, CloseAndEscHideALetterAndItKeepsItsText) {
    for (const Known& letter : letters) {
        Form& form = open(letter);
        TextBox& first = form.at<TextBox>(words(letter.blanks).front());
        user::type(first, "kept");
        user::click(form.at<Button>("Command9"));
        EXPECT_FALSE(form.visible());
        open(letter);
        user::pressForm(form, "Esc");
        EXPECT_FALSE(form.visible());
        EXPECT_EQ(&open(letter), &form);
        EXPECT_EQ(first.text(), "kept");
    }
}

TEST_F(Letters, NewDropsThem) {
    for (const Known& letter : letters)
        open(letter);
    shell.press("mnuNew");
    for (const Known& letter : letters)
        EXPECT_EQ(proposal.forms.loaded(letter.form), nullptr) << letter.form;
}

TEST_F(Letters, EnterGoesThroughTheBlanksAndTheSpecialKeysAreDropped) {
    for (const Known& letter : letters) {
        Form& form = open(letter);
        TextBox& first = form.at<TextBox>(words(letter.blanks)[0]);
        user::type(first, "a#$%&*@^~ROW house");
        user::press(first, "Enter");
        EXPECT_EQ(first.text(), letter.form == "frmforpartoccupancycertificate" ? "Arow House" : "aROW house");
        EXPECT_TRUE(form.findKey(words(letter.blanks)[1])->focused()) << letter.form;
    }
}

TEST_F(Letters, ThePageOfTheReceiptIsAskedForAfterAYesAloneAndForgottenAfterANo) {
    const std::string_view form = "frmnoticeofcommencementofwork";
    const auto& label = control<Label>(form, "lblPageNumber");
    TextBox& page = box(form, "txtNoticeForCommencment(15)");
    EXPECT_EQ(label.caption(), "Page Number  :");
    EXPECT_FALSE(label.visible() || page.visible());
    user::click(option(form, "possessionreciept(1)"));
    EXPECT_TRUE(label.visible() && page.visible());
    user::type(page, "14");
    user::click(option(form, "possessionreciept(1)"));
    EXPECT_EQ(page.text(), "14");
    user::click(option(form, "possessionreciept(0)"));
    EXPECT_FALSE(label.visible() || page.visible());
    EXPECT_EQ(page.text(), "");
}

TEST_F(Letters, TheQuestionOfThePlinthShowsAndHidesNothing) {
    const std::string_view form = "frmcompletionuptoplinthlevel";
    for (const std::string_view answer : {"IsRightsTransfered(1)", "IsRightsTransfered(0)"}) {
        user::click(option(form, answer));
        EXPECT_TRUE(option(form, answer).value());
        for (const Control* each : proposal.forms.touch(form)->controls())
            EXPECT_TRUE(each->visible()) << each->key();
    }
}

}  // namespace
}  // namespace plandesk::test
