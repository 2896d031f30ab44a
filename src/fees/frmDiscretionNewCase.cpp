#include "fees/frmDiscretionNewCase.h"

#include <string>

#include "fees/DiscretionBoxes.h"
#include "proposal/Element.h"

namespace plandesk {

namespace {

constexpr LayoutRow rules[] = {
    {"1", "Front, rear side1, side2 margin.", "txtRule(0)"},
    {"2", "Balcony margin", "txtRule(1)"},
    {"3", "Parking", "txtRule(2)"},
    {"4", "Building Height", "txtRule(3)"},
    {"5", "Coverage", "txtRule(4)"},
    {"6", "Balcony", "txtRule(5)"},
    {"7", "Passage", "txtRule(6)"},
    {"8", "No Of Tenements", "txtRule(7)"},
    {"9", "Recreational ground size", "txtRule(8)"},
    {"10", "internal road", "txtRule(9)"},
    {"11", "Amenity ", "txtRule(10)"},
    {"12", "Ventilation shaft size", "txtRule(11)"},
    {"13", "Artificial ventilation shaft ", "txtRule(12)"},
    {"14", "Room dimensions", "txtRule(13)"},
    {"15", "Lobby/passage", "txtRule(14)"},
};
constexpr std::string_view heads[] = {"Rule", "Architect Remarks"};
constexpr LayoutGroup groups[] = {{.rows = rules, .heads = heads, .lastFills = true}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet{.questionWidth = 32, .head = "lblHead", .pages = pages, .buttons = "Command5 Command9"};

}  // namespace

frmDiscretionNewCase::frmDiscretionNewCase(Proposal& proposal)
    : DataForm(proposal, formName, "Discretion : New Case"),
      txtRule(discretionBoxes(*this, "txtRule", std::size(rules))) {
    Command5.click = [this] { this->proposal.commands.print("rptDiscretionNewCase"); };
    Command9.click = [this] { hide(); };
    procedure("setDiscretionNewForSave", [this] { setDiscretionNewForSave(); });
    procedure("setRptDiscretion", [this] { this->proposal.commands.feed("rptDiscretionNewCase"); });
    procedure("setBGColor", [this] { setBGColor(); });
}

void frmDiscretionNewCase::load() {
    setBGColor();
}

void frmDiscretionNewCase::setBGColor() {
    setFormColors(*this, proposal);
}

const Layout& frmDiscretionNewCase::layout() const {
    return sheet;
}

void frmDiscretionNewCase::enterPressed() {
    rewriteInProperCase(*this);
}

void frmDiscretionNewCase::setDiscretionNewForSave() {
    std::string remarks;
    for (const TextBox& remark : txtRule)
        remarks.append(&remark == &txtRule.front() ? "" : "#").append(remark.text());
    proposal.discretionNewXML.clear();
    appendElement(proposal.discretionNewXML, "DISC-NEW", remarks);
}

}  // namespace plandesk
