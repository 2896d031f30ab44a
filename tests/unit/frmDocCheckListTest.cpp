#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "unit/FeesFixture.h"
#include "unit/LayoutCheck.h"
#include "unit/World.h"

// Both document checklists and the doors behind their icons.

namespace plandesk::test {
namespace {

constexpr std::string_view title = "Document Checklist !";

/// Stand-ins for the forms behind the doors; they write down what is asked of them.
using Calls = std::vector<std::string>;

struct frmPlotExtractRelation : DataForm {
    static constexpr std::string_view formName = "frmPlotExtractRelation";
    explicit frmPlotExtractRelation(Proposal& proposal) : DataForm(proposal, formName, "") {}
    TextBox txtNoOfExtract712{*this, "txtNoOfExtract712"};
    TextBox txtNoOfPrc{*this, "txtNoOfPrc"};
};

struct ExtractForm : DataForm {
    using DataForm::DataForm;
    ComboBox cmbExtract{*this, "cmbExtract"};
};
struct frmMain712 : ExtractForm {
    static constexpr std::string_view formName = "frmMain712";
    explicit frmMain712(Proposal& proposal) : ExtractForm(proposal, formName, "7/12") {}
};
struct frmPRCEXT : ExtractForm {
    static constexpr std::string_view formName = "frmPRCEXT";
    explicit frmPRCEXT(Proposal& proposal) : ExtractForm(proposal, formName, "PRC") {}
};
struct frmNaOrder : DataForm {
    static constexpr std::string_view formName = "frmNaOrder";
    explicit frmNaOrder(Proposal& proposal) : DataForm(proposal, formName, "NA") {
        cmbAreaForNA.click = [this] { calls.emplace_back(visible() ? "click when shown" : "click"); };
    }
    ComboBox cmbAreaForNA{*this, "cmbAreaForNA"};
    Calls calls;
};
struct frmScrutinyULC : ExtractForm {
    static constexpr std::string_view formName = "frmScrutinyULC";
    explicit frmScrutinyULC(Proposal& proposal) : ExtractForm(proposal, formName, "ULC") {
        optOrder.click = [this] { calls.emplace_back("optDocCtrlOwn 0"); };
        optExempt.click = [this] { calls.emplace_back("optDocCtrlOwn 1"); };
        cmbExtract.click = [this] { calls.push_back("cmbExtract " + std::to_string(cmbExtract.listIndex())); };
    }
    OptionGroup group;
    OptionButton optOrder{*this, group, "optDocCtrlOwn", "", 0};
    OptionButton optExempt{*this, group, "optDocCtrlOwn", "", 1};
    Calls calls;
};

class frmDocCheckListTest : public FeesTest {
protected:
    struct Case {
        DocCheckList& form;
        std::string Proposal::*list;
        std::size_t saved;
    };
    std::array<Case, 2> both() {
        return {{{mandatory(), &Proposal::mandatoryDocList, 9}, {conditional(), &Proposal::conditionalDocList, 14}}};
    }

    static std::vector<std::string> captions(const DocCheckList& form) {
        std::vector<std::string> words;
        for (const DocumentRow& row : form.rows)
            words.push_back(row.enclosed.caption());
        return words;
    }
    static std::string repeated(std::string_view piece, std::size_t count) {
        return join(std::vector<std::string>(count, std::string(piece)), "#");
    }
    /// The first row is enclosed with pages 1 to 2.
    static void fillFirstRow(DocCheckList& form) {
        form.rows[0].pageFrom.setText("1");
        form.rows[0].pageTo.setText("2");
    }
    std::string carrier() { return first().txtDocChkList.text(); }

    void relateExtracts() {
        proposal.forms.declare<frmPlotExtractRelation>();
        proposal.forms.declare<frmMain712>();
        proposal.forms.declare<frmPRCEXT>();
        proposal.forms.declare<frmNaOrder>();
        proposal.forms.declare<frmScrutinyULC>();
        auto& relation = proposal.forms.get<frmPlotExtractRelation>();
        relation.txtNoOfExtract712.setText("1");
        relation.txtNoOfPrc.setText("1");
        proposal.plotRelXML = "<R/>";
        proposal.plotPrcDetailsXML = "<P/>";
    }
};

// Documents

const std::vector<std::string> commonDocuments = {"Drainage NOC",
                                                  "Strom water dain/rain harvesting",
                                                  "Reg.sale/ lease deed/ power of attorney",
                                                  "Labour Commissioner NOC",
                                                  "Tax clearance certificate.[Redevelopment,Reconstruction)",
                                                  "NA order",
                                                  "Development agreement",
                                                  "Copy of right of way",
                                                  "Affidavit (for ULC)",
                                                  "Indemnity bond (for ULC)",
                                                  "ULC order",
                                                  "Society NOC (if plot area under society)",
                                                  "Allotment letter of society",
                                                  "B-form (if plot under T.P.scheme)",
                                                  "Structural stability report(if existing structure retained)",
                                                  "MHADA lease deed(if plot from MHADA layout)",
                                                  "Land acquisition opinion",
                                                  "Tenent NOC/occupier NOC",
                                                  "Order under section 32g of BTAL Act",
                                                  "NOC from khari land board",
                                                  "NOC from forest Department",
                                                  "Environment clearance from NOEF",
                                                  "NOC from tourism Department",
                                                  "NOC from dept of explosives",
                                                  "NOC from collector",
                                                  "NOC from Civil Aviation Dept.",
                                                  "NOC from police",
                                                  "N A tax receipt",
                                                  "Water Tax receipt"};

TEST_F(frmDocCheckListTest, MandatoryDocumentsHaveTheirWords) {
    std::vector<std::string> expected = {
        "Five copies of plans showing services",
        "Particulars of development",
        "Ownership title document (7/12 Extract/P.R.Card/Allotment letter)",
        "Actual demarcation Certificate",
        "Copy of receipt of paying Building Permit fee",
        "Tax Clerance Certificate from V.D.M.A. Tax Department",
        "Affidavit and Indemnity Bond/Order under U.L.C. Act",
        "NOC from drainage department Section",
        "NOC from water supply development section",
        "Chief fire controller NOC ",
        "NOC from Railways",
        "NOC from directorate of industries/water poll./dept of safety",
        "NOC from M.S.E.B.",
        "Water NOC (occupation)",
    };
    expected.insert(expected.end(), commonDocuments.begin(), commonDocuments.end());
    expected.emplace_back("NOC from water supply development section ");
    EXPECT_EQ(mandatory().caption(), "Document checklist - Mandatory Documents");
    EXPECT_EQ(captions(mandatory()), expected);
    EXPECT_EQ(expected.size(), 44U);
}

TEST_F(frmDocCheckListTest, ConditionalDocumentsHaveTheirWords) {
    std::vector<std::string> expected = {
        "Appointment letter of Architects/Licensed surveyor",
        "Appointment letter of structural/consulting engineer",
        "Property Register card/B-Form",
        "7/12 Extract/B-Form",
        "Mutation Entry",
        "TILR sketch measurement plan /city survey sheet",
        "Gut book sketch",
        "D.P. remark",
        "Demarcation Certificate showing Road Widening Line/ Reservation",
        "Demarcation Certificate showing Road Widening Line/ Reservation",
        "Power of Attorney",
        "Copy of Sanctioned Layout Plan",
        "NOC from MSEB",
        "NOC from M.I.D.C Office (leasedeed, Possession receipt  demarcation certificate,M.P.C.B.M.C.)",
    };
    expected.insert(expected.end(), commonDocuments.begin(), commonDocuments.end());
    EXPECT_EQ(conditional().caption(), "Document checklist - Conditional Mandatory Documents");
    EXPECT_EQ(captions(conditional()), expected);
    EXPECT_EQ(expected.size(), 43U);
}

TEST_F(frmDocCheckListTest, RowsAreControlArraysWithTwoPagesForEachDocument) {
    for (const auto& [form, list, saved] : both()) {
        for (const DocumentRow& row : form.rows) {
            const int i = row.enclosed.index();
            EXPECT_EQ(form.find("Check1", i), &row.enclosed);
            EXPECT_EQ(form.find("txtDocPageNo", 2 * i), &row.pageFrom);
            EXPECT_EQ(form.find("txtDocPageNo", 2 * i + 1), &row.pageTo);
        }
    }
}

TEST_F(frmDocCheckListTest, RowsThatNothingReadsStayOffTheScreen) {
    for (const auto& [form, list, saved] : both()) {
        for (std::size_t i = 0; i < form.rows.size(); ++i) {
            EXPECT_EQ(form.rows[i].enclosed.visible(), i < saved) << i;
            EXPECT_EQ(form.rows[i].pageFrom.visible(), i < saved) << i;
            EXPECT_EQ(form.rows[i].pageTo.visible(), i < saved) << i;
            EXPECT_EQ(form.rows[i].enclosed.backColor(), proposal.formBackColor) << i;
        }
    }
}

TEST_F(frmDocCheckListTest, LayoutHasAPlaceForEveryVisibleControlAndForNoOther) {
    for (const auto& [form, list, saved] : both()) {
        EXPECT_EQ(layoutFaults(form), std::vector<std::string>());
        for (const std::string& name : layoutNames(form))
            EXPECT_TRUE(form.findKey(name)->visible()) << name;
        const LayoutGroup& documents = form.layout().pages[0].groups[0];
        ASSERT_EQ(documents.heads.size(), 3U);
        EXPECT_EQ(documents.heads[1], "Page From");
        EXPECT_EQ(documents.heads[2], "Page To");
    }
}

// Page boxes

TEST_F(frmDocCheckListTest, TypingAPageTicksTheRow) {
    for (const auto& [form, list, saved] : both()) {
        for (std::size_t i = 0; i < saved; ++i) {
            for (TextBox* page : {&form.rows[i].pageFrom, &form.rows[i].pageTo}) {
                form.rows[i].enclosed.setValue(0);
                user::type(*page, "10");
                EXPECT_EQ(page->text(), "10");
                EXPECT_EQ(form.rows[i].enclosed.value(), 1) << page->key();
            }
        }
    }
    expectNoMessage();
}

TEST_F(frmDocCheckListTest, TypingZeroClearsTheBoxAndUnticksTheRow) {
    for (const auto& [form, list, saved] : both()) {
        fillFirstRow(form);
        user::type(form.rows[0].pageFrom, "0");
        EXPECT_EQ(form.rows[0].pageFrom.text(), "");
        EXPECT_EQ(form.rows[0].enclosed.value(), 0);
        EXPECT_EQ(form.rows[0].pageTo.text(), "2");
    }
    expectNoMessage();
}

TEST_F(frmDocCheckListTest, EmptyingEitherPageUnticksTheRow) {
    fillFirstRow(mandatory());
    user::clear(mandatory().rows[0].pageTo);
    EXPECT_EQ(mandatory().rows[0].enclosed.value(), 0);
    EXPECT_EQ(mandatory().rows[0].pageFrom.text(), "1");
}

TEST_F(frmDocCheckListTest, PageBelowZeroIsCleared) {
    mandatory().rows[0].pageFrom.setText("-3");
    EXPECT_EQ(mandatory().rows[0].pageFrom.text(), "");
    EXPECT_EQ(mandatory().rows[0].enclosed.value(), 0);
    expectNoMessage();
}

TEST_F(frmDocCheckListTest, LetterInAPageBoxIsRefusedAndUnticksTheRow) {
    for (const auto& [form, list, saved] : both()) {
        TextBox& page = form.rows[3].pageTo;
        user::type(page, "7");
        user::append(page, "a");
        expectMessage("Enter Numeric Data", "Payment Detail");
        EXPECT_EQ(page.text(), "");
        EXPECT_EQ(form.rows[3].enclosed.value(), 0);
        EXPECT_TRUE(page.focused());
    }
}

TEST_F(frmDocCheckListTest, SpecialCharacterInAPageBoxIsRefused) {
    TextBox& page = mandatory().rows[0].pageFrom;
    page.setText("7!");
    expectMessage("Do not enter any special character [!@#$%^&*]", "Payment Details");
    EXPECT_EQ(page.text(), "");
    EXPECT_EQ(mandatory().rows[0].enclosed.value(), 0);
    EXPECT_TRUE(page.focused());
}

TEST_F(frmDocCheckListTest, BlankAndPointAndTheSpecialKeysAreDropped) {
    for (const auto& [form, list, saved] : both()) {
        for (const DocumentRow& row : form.rows) {
            for (const TextBox* page : {&row.pageFrom, &row.pageTo}) {
                for (const int key : {' ', '.', '#', '$', '%', '&', '*', '@', '^', '~'})
                    EXPECT_EQ(user::filteredKey(*page, key), 0) << page->key() << " " << key;
                for (const int key : {8, int{'0'}, int{'9'}, int{'-'}, int{'a'}})
                    EXPECT_EQ(user::filteredKey(*page, key), key) << page->key() << " " << key;
            }
        }
        user::type(form.rows[0].pageFrom, " 1.2 ");
        EXPECT_EQ(form.rows[0].pageFrom.text(), "12");
    }
}

TEST_F(frmDocCheckListTest, TickIsTheUsersOwnToo) {
    user::click(mandatory().rows[2].enclosed);
    EXPECT_EQ(mandatory().rows[2].enclosed.value(), 1);
    EXPECT_EQ(mandatory().rows[2].pageFrom.text(), "");
}

// Save

TEST_F(frmDocCheckListTest, UntickedRowsGiveNineAndFourteenPieces) {
    conditional().cmdSave_Click();
    EXPECT_EQ(proposal.conditionalDocList, repeated("0-0-0", 14));
    EXPECT_EQ(carrier(), repeated("0-0-0", 14));
    mandatory().cmdSave_Click();
    EXPECT_EQ(proposal.mandatoryDocList, repeated("0-0-0", 9));
    EXPECT_EQ(carrier(), repeated("0-0-0", 9) + repeated("0-0-0", 14));
    expectNoMessage();
}

TEST_F(frmDocCheckListTest, EveryRowIsSavedAtItsPlace) {
    for (const auto& [form, list, saved] : both()) {
        std::vector<std::string> expected;
        for (std::size_t i = 0; i < saved; ++i) {
            const std::string from = std::to_string(100 + 2 * i);
            const std::string to = std::to_string(101 + 2 * i);
            form.rows[i].pageFrom.setText(from);
            form.rows[i].pageTo.setText(to);
            expected.push_back("1-" + from + "-" + to);
        }
        form.cmdSave_Click();
        EXPECT_EQ(proposal.*list, join(expected, "#"));
    }
}

TEST_F(frmDocCheckListTest, RowsBehindTheSavedOnesAreNotRead) {
    for (const auto& [form, list, saved] : both()) {
        form.rows[saved].pageFrom.setText("5");
        form.cmdSave_Click();
        EXPECT_EQ(proposal.*list, repeated("0-0-0", saved));
    }
    expectNoMessage();
}

TEST_F(frmDocCheckListTest, TwoHalvesRunIntoEachOtherInTheDocument) {
    fillFirstRow(conditional());
    conditional().cmdSave_Click();
    mandatory().rows[8].pageFrom.setText("8");
    mandatory().rows[8].pageTo.setText("9");
    mandatory().cmdSave_Click();
    EXPECT_EQ(carrier(), repeated("0-0-0", 8) + "#1-8-91-1-2#" + repeated("0-0-0", 13));
}

TEST_F(frmDocCheckListTest, MandatoryFormAloneLeavesItsOwnHalf) {
    mandatory().cmdSave_Click();
    EXPECT_EQ(carrier(), repeated("0-0-0", 9));
}

TEST_F(frmDocCheckListTest, ConditionalFormSavedLastLosesTheMandatoryHalf) {
    mandatory().cmdSave_Click();
    conditional().cmdSave_Click();
    EXPECT_EQ(carrier(), repeated("0-0-0", 14));
    mandatory().cmdSave_Click();
    EXPECT_EQ(carrier(), repeated("0-0-0", 9) + repeated("0-0-0", 14));
}

TEST_F(frmDocCheckListTest, EachSaveBuildsTheListAnew) {
    fillFirstRow(mandatory());
    mandatory().cmdSave_Click();
    mandatory().rows[0].pageFrom.setText("");
    mandatory().rows[0].pageTo.setText("");
    mandatory().cmdSave_Click();
    EXPECT_EQ(proposal.mandatoryDocList, repeated("0-0-0", 9));
}

TEST_F(frmDocCheckListTest, PagesAreSavedUntrimmed) {
    mandatory().rows[0].pageFrom.setText(" 3");
    mandatory().rows[0].pageTo.setText("4 ");
    mandatory().cmdSave_Click();
    EXPECT_EQ(proposal.mandatoryDocList, "1- 3-4 #" + repeated("0-0-0", 8));
}

TEST_F(frmDocCheckListTest, SaveHidesTheFormAndShowsTheParticulars) {
    for (const auto& [form, list, saved] : both()) {
        form.show();
        user::click(form.cmdSave);
        EXPECT_FALSE(form.visible());
        EXPECT_TRUE(first().front());
        EXPECT_EQ(proposal.*list, repeated("0-0-0", saved));
        EXPECT_TRUE(form.run("cmdSave_Click"));
    }
}

TEST_F(frmDocCheckListTest, TickedRowWithoutFromPageStopsTheSave) {
    for (const auto& [form, list, saved] : both()) {
        for (std::size_t i = 0; i < saved; ++i) {
            form.cmdSave_Click();
            const std::string earlier = carrier();
            DocumentRow& row = form.rows[i];
            row.enclosed.setValue(1);
            form.cmdSave_Click();
            expectMessage("Enter Document From Page No ! for : = " + row.enclosed.caption(), title);
            EXPECT_EQ(proposal.*list, "");
            EXPECT_TRUE(row.pageFrom.focused()) << i;
            EXPECT_TRUE(form.front());
            EXPECT_EQ(carrier(), earlier);
            row.enclosed.setValue(0);
        }
    }
}

TEST_F(frmDocCheckListTest, TickedRowWithoutToPageStopsTheSave) {
    for (const auto& [form, list, saved] : both()) {
        for (std::size_t i = 0; i < saved; ++i) {
            DocumentRow& row = form.rows[i];
            user::type(row.pageFrom, "3");
            form.cmdSave_Click();
            expectMessage("Enter Document To Page No ! for : = " + row.enclosed.caption(), title);
            EXPECT_EQ(proposal.*list, "");
            EXPECT_TRUE(row.pageTo.focused()) << i;
            EXPECT_TRUE(form.front());
            user::type(row.pageTo, "4");
        }
    }
}

TEST_F(frmDocCheckListTest, FromPageInAnUntickedRowStopsTheSave) {
    for (const auto& [form, list, saved] : both()) {
        for (std::size_t i = 0; i < saved; ++i) {
            DocumentRow& row = form.rows[i];
            row.pageFrom.setText("3");
            row.enclosed.setValue(0);
            form.cmdSave_Click();
            expectMessage("Select the document enclosed and provide the page No!!", title);
            EXPECT_EQ(proposal.*list, "");
            EXPECT_TRUE(form.front());
            row.pageFrom.setText("");
        }
    }
}

TEST_F(frmDocCheckListTest, ToPageAloneInAnUntickedRowPasses) {
    for (const auto& [form, list, saved] : both()) {
        form.rows[1].pageTo.setText("3");
        form.rows[1].enclosed.setValue(0);
        form.cmdSave_Click();
        expectNoMessage();
        EXPECT_EQ(proposal.*list, repeated("0-0-0", saved));
    }
}

TEST_F(frmDocCheckListTest, PagesOfBlanksCountAsEmpty) {
    mandatory().rows[0].enclosed.setValue(1);
    mandatory().rows[0].pageFrom.restoreText("  ");
    mandatory().cmdSave_Click();
    expectMessage("Enter Document From Page No ! for : = Five copies of plans showing services", title);
    mandatory().rows[0].pageFrom.restoreText("1");
    mandatory().rows[0].pageTo.restoreText("  ");
    mandatory().cmdSave_Click();
    expectMessage("Enter Document To Page No ! for : = Five copies of plans showing services", title);
}

TEST_F(frmDocCheckListTest, FirstFaultFromTheTopIsTheOneTold) {
    mandatory().rows[5].enclosed.setValue(1);
    mandatory().rows[2].enclosed.setValue(1);
    mandatory().cmdSave_Click();
    expectMessage(
        "Enter Document From Page No ! for : = Ownership title document (7/12 Extract/P.R.Card/Allotment letter)",
        title);
}

TEST_F(frmDocCheckListTest, RefusedSaveShowsAFormThatWasNotThere) {
    EXPECT_FALSE(conditional().visible());
    conditional().rows[0].enclosed.setValue(1);
    first().show();
    conditional().cmdSave_Click();
    EXPECT_TRUE(conditional().front());
    EXPECT_FALSE(mandatory().visible());
}

// Icons

TEST_F(frmDocCheckListTest, IconsCarryTheirTip) {
    for (const auto& [form, list, saved] : both()) {
        for (const Image& image : form.Image1)
            EXPECT_EQ(image.toolTip, "Click Here to add the Details");
        EXPECT_EQ(form.find("Image1", 3), &form.Image1[3]);
    }
}

TEST_F(frmDocCheckListTest, ExtractsAreRefusedWhileNoneIsRelated) {
    struct Refusal {
        int icon;
        std::string Proposal::*fragment;
        std::string_view message;
    };
    const std::array<Refusal, 2> refusals = {
        {{0, &Proposal::plotRelXML, "Please Enter Relationship Details  for 7/12 Extract !"},
         {1, &Proposal::plotPrcDetailsXML, "Please Enter Relationship Details for Property Register Card !"}}};
    for (const auto& [icon, fragment, message] : refusals) {
        for (const auto& [form, list, saved] : both()) {
            user::click(form.Image1.at(static_cast<std::size_t>(icon)));
            expectMessage(message, "");
            proposal.*fragment = "<R/>";  // but there is no relation form
            user::click(form.Image1.at(static_cast<std::size_t>(icon)));
            expectMessage(message, "");
            (proposal.*fragment).clear();
        }
    }
    EXPECT_TRUE(opened.empty());
}

TEST_F(frmDocCheckListTest, ExtractsNeedACountAboveZero) {
    relateExtracts();
    auto& relation = proposal.forms.get<frmPlotExtractRelation>();
    for (const std::string_view count : {"", "0", "-1", "none"}) {
        relation.txtNoOfExtract712.setText(count);
        relation.txtNoOfPrc.setText("1");
        mandatory().Image1_Click(0);
        expectMessage("Please Enter Relationship Details  for 7/12 Extract !", "");
        relation.txtNoOfExtract712.setText("1");
        relation.txtNoOfPrc.setText(count);
        mandatory().Image1_Click(1);
        expectMessage("Please Enter Relationship Details for Property Register Card !", "");
    }
    EXPECT_TRUE(opened.empty());
}

TEST_F(frmDocCheckListTest, FirstIconOpensThe712Extracts) {
    relateExtracts();
    auto& form = proposal.forms.get<frmMain712>();
    form.cmbExtract.addItem("1");
    form.cmbExtract.addItem("2");
    for (const auto& [checklist, list, saved] : both()) {
        form.cmbExtract.setListIndex(1);
        proposal.is712Current = false;
        user::click(checklist.Image1[0]);
        EXPECT_TRUE(proposal.is712Current);
        EXPECT_EQ(form.caption(), "Scrutiny Of 7/12  Extract");
        EXPECT_EQ(form.cmbExtract.listIndex(), 0);
        EXPECT_TRUE(form.front());
    }
    EXPECT_EQ(opened, (std::vector<std::string>{"frmMain712", "frmMain712"}));
    expectNoMessage();
}

TEST_F(frmDocCheckListTest, SecondIconOpensThePropertyCards) {
    relateExtracts();
    auto& form = proposal.forms.get<frmPRCEXT>();
    form.cmbExtract.addItem("1");
    proposal.is712Current = true;
    user::click(mandatory().Image1[1]);
    EXPECT_FALSE(proposal.is712Current);
    EXPECT_EQ(form.caption(), "Scrutiny Of PRC Extract");
    EXPECT_EQ(form.cmbExtract.listIndex(), 0);
    EXPECT_EQ(opened, std::vector<std::string>{"frmPRCEXT"});
}

TEST_F(frmDocCheckListTest, EmptyListOfExtractsStaysWithoutAChoice) {
    relateExtracts();
    user::click(mandatory().Image1[1]);
    EXPECT_EQ(proposal.forms.get<frmPRCEXT>().cmbExtract.listIndex(), -1);
    expectNoMessage();
}

TEST_F(frmDocCheckListTest, ThirdIconOpensTheNaOrderWithoutATest) {
    proposal.forms.declare<frmNaOrder>();
    proposal.is712Current = true;
    user::click(conditional().Image1[2]);
    auto& form = proposal.forms.get<frmNaOrder>();
    EXPECT_FALSE(proposal.is712Current);
    EXPECT_EQ(form.caption(), "NA");
    EXPECT_EQ(form.calls, Calls{"click"});
    EXPECT_EQ(proposal.screen.modalForm(), &form);
    expectNoMessage();
}

TEST_F(frmDocCheckListTest, FourthIconOpensTheUlcOrdersWithoutATest) {
    proposal.forms.declare<frmScrutinyULC>();
    auto& form = proposal.forms.get<frmScrutinyULC>();
    form.cmbExtract.addItem("1");
    proposal.is712Current = true;
    user::click(mandatory().Image1[3]);
    EXPECT_FALSE(proposal.is712Current);
    EXPECT_EQ(form.caption(), "ULC");
    EXPECT_EQ(form.calls, (Calls{"optDocCtrlOwn 0", "cmbExtract -1", "cmbExtract 0"}));
    EXPECT_EQ(opened, std::vector<std::string>{"frmScrutinyULC"});
    expectNoMessage();
}

TEST_F(frmDocCheckListTest, DoorToAFormThatIsNotThereAsksForItAllTheSame) {
    mandatory().Image1_Click(2);
    mandatory().Image1_Click(3);
    EXPECT_EQ(opened, (std::vector<std::string>{"frmNaOrder", "frmScrutinyULC"}));
}

// Buttons and links

TEST_F(frmDocCheckListTest, ButtonsCarryTheirWords) {
    for (const auto& [form, list, saved] : both()) {
        EXPECT_EQ(form.cmdSave.caption(), "Save");
        EXPECT_EQ(form.cmdSaveALL.caption(), "Save Document Scrutiny Details");
        EXPECT_EQ(form.cmdClose.caption(), "Close");
        EXPECT_EQ(form.cmdPrevious.caption(), "Move to previous form");
        EXPECT_EQ(form.cmdNext.caption(), "Move to next form");
        EXPECT_EQ(form.Command5.caption(), "Print Particulars of Development");
        EXPECT_FALSE(form.cmdNext.enabled());
        EXPECT_TRUE(form.run("cmdNext_Click"));
    }
    EXPECT_TRUE(opened.empty());
}

TEST_F(frmDocCheckListTest, SaveDocumentScrutinyDetailsSavesTheWholeProposal) {
    user::click(mandatory().cmdSaveALL);
    user::click(conditional().cmdSaveALL);
    EXPECT_EQ(savedProposals, 2);
}

TEST_F(frmDocCheckListTest, PreviousLeadsBackToTheLastPageBeforeTheChecklists) {
    for (const auto& [form, list, saved] : both()) {
        form.show();
        second().SectFourDet.setTab(0);
        user::click(form.cmdPrevious);
        EXPECT_TRUE(second().front());
        EXPECT_EQ(second().SectFourDet.tab(), 2);
    }
}

TEST_F(frmDocCheckListTest, PrintAsksForTheReportOfTheChecklist) {
    user::click(mandatory().Command5);
    user::click(conditional().Command5);
    EXPECT_EQ(printed, (std::vector<std::string>{"rptDocChecklist", "rptDocChecklist"}));
}

TEST_F(frmDocCheckListTest, CloseEndsTheProgramAndUnloadsTheMandatoryFormAlone) {
    mandatory();
    user::click(conditional().cmdClose);
    EXPECT_EQ(machine.program.ends, 1);
    EXPECT_EQ(proposal.forms.loaded("frmDocCheckList"), nullptr);
    EXPECT_NE(proposal.forms.loaded("frmDocCheckList1"), nullptr);
}

TEST_F(frmDocCheckListTest, LinksLeadToThePaymentAndTheSections) {
    proposal.feeArea = 77;
    for (const auto& [form, list, saved] : both()) {
        form.show();
        user::click(form.links.lblPayment);
        EXPECT_TRUE(fees().front());
        EXPECT_EQ(fees().txtArea.text(), "77");
        EXPECT_EQ(fees().links.lblPayment.foreColor(), red);
        user::click(form.links.lblAnnextureA);
        EXPECT_TRUE(first().front());
        user::click(form.links.lblAnnexureB);
        EXPECT_TRUE(second().front());
        EXPECT_EQ(second().SectFourDet.tab(), 0);
    }
}

TEST_F(frmDocCheckListTest, EnterMovesOnLikeTab) {
    mandatory().show();
    user::press(mandatory().rows[0].pageFrom, "Enter");
    EXPECT_TRUE(mandatory().rows[0].pageTo.focused());
    user::press(mandatory().rows[0].pageTo, "Enter");
    EXPECT_TRUE(mandatory().rows[1].enclosed.focused());
}

// In the save of the whole proposal

class ChecklistsInTheSaveTest : public ::testing::Test {
protected:
    ChecklistsInTheSaveTest() {
        world.shell.press("mnuNew");
        world.fillFirstPage();
        world.ports.dialogs.take();
    }
    DocCheckList& form(std::string_view name) { return dynamic_cast<DocCheckList&>(*world.proposal.forms.touch(name)); }
    /// Saves; the row 0 of that checklist has a tick and no pages.
    void expectStoppedBy(std::string_view name) {
        form(name).rows[0].enclosed.setValue(1);
        world.shell.press("mnuSave");
        const std::vector<Message> shown = world.ports.dialogs.take();
        ASSERT_EQ(shown.size(), 1U);
        EXPECT_EQ(shown[0].text, "Enter Document From Page No ! for : = " + form(name).rows[0].enclosed.caption());
        EXPECT_TRUE(form(name).front());
        EXPECT_TRUE(form(name).rows[0].pageFrom.focused());
        EXPECT_TRUE(world.ports.dialogs.fileDialogs.empty());
        EXPECT_EQ(world.box("frmAnnexureA", "txtSectFourVal").text(), "");
    }
    World world;
};

TEST_F(ChecklistsInTheSaveTest, ConditionalDocumentsStopTheSaveFirst) {
    expectStoppedBy("frmDocCheckList1");
    EXPECT_EQ(world.box("frmAnnexureA", "txtDocChkList").text(), "");
    EXPECT_NE(world.box("frmAnnexureA", "txtPayDetail").text(), "");
}

TEST_F(ChecklistsInTheSaveTest, MandatoryDocumentsStopTheSaveNext) {
    expectStoppedBy("frmDocCheckList");
    EXPECT_EQ(split(world.box("frmAnnexureA", "txtDocChkList").text(), "#").size(), 14U);
}

TEST_F(ChecklistsInTheSaveTest, BothListsReachTheDocumentInTheirOrder) {
    form("frmDocCheckList").rows[0].pageFrom.setText("1");
    form("frmDocCheckList").rows[0].pageTo.setText("2");
    form("frmDocCheckList1").rows[0].pageFrom.setText("3");
    form("frmDocCheckList1").rows[0].pageTo.setText("4");
    world.ports.dialogs.answers.emplace_back("/p.xml");
    world.shell.press("mnuSave");
    std::string expected = "<DOCCHKLIST>1-1-2";
    for (int row = 1; row < 9; ++row)
        expected += "#0-0-0";
    expected += "1-3-4";
    for (int row = 1; row < 14; ++row)
        expected += "#0-0-0";
    EXPECT_NE(world.ports.files.contents["/p.xml"].find(expected + "</DOCCHKLIST>"), std::string::npos);
}

}  // namespace
}  // namespace plandesk::test
