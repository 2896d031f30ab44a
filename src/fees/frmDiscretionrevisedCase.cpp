#include "fees/frmDiscretionrevisedCase.h"

#include <array>
#include <string>

#include "base/Numbers.h"
#include "fees/DiscretionBoxes.h"
#include "proposal/Element.h"

namespace plandesk {

namespace {

constexpr auto amendments = std::to_array<std::string_view>({
    "Gross plot area",
    "Permissible FSI",
    "Proposed FSI",
    "TDR area",
    "Margin ",
    "Parking ",
    "Demolition area",
    "Temporary construction area",
    "Number of substructures",
    "Change in use ",
    "Balcony area",
    "Staircase area",
    "Podium premium ",
    "Road set-back area",
    "Building height",
    "Recrea. gnd./amenity space ",
    "coverage",
    "passage",
    "Number of tenements",
});

constexpr LayoutRow rows[] = {
    {"1", "", "txtRule(0) txtRuleC(0) txtRuleD(0)", "", "", "lblRule(0)"},
    {"2", "", "txtRule(1) txtRuleC(1) txtRuleD(1)", "", "", "lblRule(1)"},
    {"3", "", "txtRule(2) txtRuleC(2) txtRuleD(2)", "", "", "lblRule(2)"},
    {"4", "", "txtRule(3) txtRuleC(3) txtRuleD(3)", "", "", "lblRule(3)"},
    {"5", "", "txtRule(4) txtRuleC(4) txtRuleD(4)", "", "", "lblRule(4)"},
    {"6", "", "txtRule(5) txtRuleC(5) txtRuleD(5)", "", "", "lblRule(5)"},
    {"7", "", "txtRule(6) txtRuleC(6) txtRuleD(6)", "", "", "lblRule(6)"},
    {"8", "", "txtRule(7) txtRuleC(7) txtRuleD(7)", "", "", "lblRule(7)"},
    {"9", "", "txtRule(8) txtRuleC(8) txtRuleD(8)", "", "", "lblRule(8)"},
    {"10", "", "txtRule(9) txtRuleC(9) txtRuleD(9)", "", "", "lblRule(9)"},
    {"11", "", "txtRule(10) txtRuleC(10) txtRuleD(10)", "", "", "lblRule(10)"},
    {"12", "", "txtRule(11) txtRuleC(11) txtRuleD(11)", "", "", "lblRule(11)"},
    {"13", "", "txtRule(12) txtRuleC(12) txtRuleD(12)", "", "", "lblRule(12)"},
    {"14", "", "txtRule(13) txtRuleC(13) txtRuleD(13)", "", "", "lblRule(13)"},
    {"15", "", "txtRule(14) txtRuleC(14) txtRuleD(14)", "", "", "lblRule(14)"},
    {"16", "", "txtRule(15) txtRuleC(15) txtRuleD(15)", "", "", "lblRule(15)"},
    {"17", "", "txtRule(16) txtRuleC(16) txtRuleD(16)", "", "", "lblRule(16)"},
    {"18", "", "txtRule(17) txtRuleC(17) txtRuleD(17)", "", "", "lblRule(17)"},
    {"19", "", "txtRule(18) txtRuleC(18) txtRuleD(18)", "", "", "lblRule(18)"},
};
constexpr std::string_view heads[] = {"(A) Amendments in revised drawing", "(B) Details/areas in Revised drawing",
                                      "(C)Details/areas in sanctioned drawing",
                                      "(D)Architect's Remarks for discretion"};
constexpr LayoutGroup groups[] = {{.rows = rows, .heads = heads, .lastFills = true}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet{.questionWidth = 28, .head = "lblHead", .pages = pages, .buttons = "Command5 Command9"};

}  // namespace

frmDiscretionrevisedCase::frmDiscretionrevisedCase(Proposal& proposal)
    : DataForm(proposal, formName, "Discretion : Revised Case"),
      txtRule(discretionBoxes(*this, "txtRule", amendments.size())),
      txtRuleC(discretionBoxes(*this, "txtRuleC", amendments.size())),
      txtRuleD(discretionBoxes(*this, "txtRuleD", amendments.size())) {
    for (const std::string_view amendment : amendments)
        lblRule.emplace_back(*this, "lblRule", amendment, static_cast<int>(lblRule.size()));
    for (Series<TextBox>* figures : {&txtRule, &txtRuleC}) {
        for (TextBox& figure : *figures) {
            figure.keyPress = keyFilterDecimal;
            figure.lostFocus = [&figure] { figure.setText(formatAmount(figure.text())); };
            figure.rightAligned = true;
        }
    }
    Command5.click = [this] { this->proposal.commands.print("rptDiscretionRevCase"); };
    Command9.click = [this] { hide(); };
    procedure("setDiscretionForSave", [this] { setDiscretionForSave(); });
    procedure("setRPTDiscretionPrint", [this] { this->proposal.commands.feed("rptDiscretionRevCase"); });
    procedure("setBGColor", [this] { setBGColor(); });
}

void frmDiscretionrevisedCase::load() {
    setBGColor();
}

void frmDiscretionrevisedCase::setBGColor() {
    setFormColors(*this, proposal);
}

const Layout& frmDiscretionrevisedCase::layout() const {
    return sheet;
}

void frmDiscretionrevisedCase::enterPressed() {
    rewriteInProperCase(*this);
}

void frmDiscretionrevisedCase::setDiscretionForSave() {
    std::string children;
    for (std::size_t i = 0; i < amendments.size(); ++i)
        appendElement(children, "RULE-" + std::to_string(i + 1),
                      txtRule[i].text() + "#" + txtRuleC[i].text() + "#" + txtRuleD[i].text());
    proposal.discretionRevisedXML.clear();
    appendElement(proposal.discretionRevisedXML, "DISC-REV", children);
}

}  // namespace plandesk
