#include "reports/frmReportNav.h"

#include "proposal/mdlProject.h"
#include "reports/ReportCatalogue.h"
#include "reports/ReportDesk.h"
#include "reports/rptAnnexture.h"

namespace plandesk {

namespace {

constexpr Colour buttonFace{0xF0, 0xF0, 0xF0};
constexpr int lastPage = 4;  // the one before the last: the sixth is reached by its number alone

constexpr std::array pageTips = std::to_array<std::string_view>({
    "1: applicant, plot and zone",
    "2: industry, streets and existing structures",
    "3: floor area, open spaces, chowks and lifts",
    "4: fire protection, parking, balconies and access",
    "5: walls, levels, materials, closets and the declaration",
    "6: materials, closets and the declaration, as another last page",
});

constexpr LayoutRow rows[] = {
    {.question = "Page",
     .controls = "cmdNavPrev cmdFormNo(0) cmdFormNo(1) cmdFormNo(2) cmdFormNo(3) cmdFormNo(4) cmdFormNo(5) cmdNavNext"},
};
constexpr LayoutGroup groups[] = {{"", rows}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet{.questionWidth = 5, .pages = pages};

}  // namespace

frmReportNav::frmReportNav(Proposal& proposal)
    : Form(proposal.screen, formName, "Pages of the report"), proposal(proposal) {
    for (Button& button : cmdFormNo) {
        button.toolTip = pageTips.at(static_cast<std::size_t>(button.index()));
        button.click = [this, page = button.index()] { cmdFormNo_Click(page); };
    }
    cmdNavPrev.click = [this] { cmdFormNo_Click(0); };
    cmdNavNext.click = [this] { cmdFormNo_Click(lastPage); };
    cmdNavNext.toolTip = "Last: page 5; page 6 is another form of it";
    procedure("Form_Activate", [this] { Form_Activate(); });
    paintButtons();
}

void frmReportNav::load() {
    setFormColors(*this, *proposal);
}

const Layout& frmReportNav::layout() const {
    return sheet;
}

void frmReportNav::paintButtons() {
    for (Button& button : cmdFormNo)
        button.setBackColor(buttonFace);
}

void frmReportNav::cmdFormNo_Click(int page) {
    const auto place = static_cast<std::size_t>(page);
    ReportDesk& desk = ReportDesk::of(*proposal);
    paintButtons();
    bindParticularsPages(*proposal, desk);
    cmdFormNo.at(place).setBackColor(white);
    desk.show(particularsPages.at(place));
}

void frmReportNav::Form_Activate() {
    ReportDesk& desk = ReportDesk::of(*proposal);
    bindParticularsPages(*proposal, desk);
    desk.show(particularsPages.front());
}

void openNavigator(Proposal& proposal) {
    auto& navigator = proposal.forms.get<frmReportNav>();
    navigator.show();
    navigator.Form_Activate();
}

}  // namespace plandesk
