#include "shell/frmHelp.h"

namespace plandesk {

namespace {

constexpr std::string_view helpText = R"(<h3>File</h3>
<p><b>New</b><br>To create a New Proposal</p>
<p><b>Open</b><br>To open an existing proposal</p>
<p><b>Save</b><br>To Save a Proposal.</p>
<p><b>Save As</b><br>To Save Proposal with a different Name.</p>
<p><b>Exit</b><br>To Exit the Application.</p>
<h3>Application Form</h3>
<p><b>Particulars of development</b><br>To create a New proposal</p>
<p><b>Proposal Title</b><br>A short description about the proposal for e.g. "A New case from KHANDRI".</p>
<h3>Particulars of development</h3>
<p><b>Next</b><br>To go to the next section.</p>
<h3>Document Checklist</h3>
<p><b>Mandatory Documents</b><br>Hard copy of the documents submitted with the proposal and the page number on the proposal file.</p>
<p><b>Optional Documents</b><br>Conditional documents submitted with the proposal and the page number on the proposal file.</p>
<h3>Plot Area Details</h3>
<p>Plot details to be filled up.</p>
<h3>Plot Extract Relationship</h3>
<p>No of Plots and their names provided in the drawing.</p>
<p>Number of extracts for each plot.</p>
<p>This section establishes a relationship between Plots and their (7/12 Extract or PRC).</p>
)";

constexpr Colour paper = fromBlueGreenRed(0xD3EBED);

constexpr LayoutRow rows[] = {{"", "", "rtfHelp"}};
constexpr LayoutGroup groups[] = {{"", rows}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet{.pages = pages};

}  // namespace

frmHelp::frmHelp(Proposal& proposal)
    : Form(proposal.screen, formName, "Help VDMA Architect Utility"), rtfHelp(*this, "rtfHelp", helpText) {}

void frmHelp::load() {
    setBackColor(paper);
    rtfHelp.setBackColor(paper);
}

const Layout& frmHelp::layout() const {
    return sheet;
}

}  // namespace plandesk
