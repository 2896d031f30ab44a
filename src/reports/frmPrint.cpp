#include "reports/frmPrint.h"

#include <array>
#include <span>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "proposal/mdlProject.h"
#include "reports/ReportCatalogue.h"
#include "reports/ReportDesk.h"

namespace plandesk {

/// What a tick prints, and which forms are hidden then; a document without a report prints nothing.
struct PrintedDocument {
    std::string_view caption;
    std::string_view report{};
    std::array<std::string_view, 2> forms{};
};

namespace {

constexpr std::string_view messageTitle = "Print";

constexpr std::array documents = std::to_array<PrintedDocument>({
    {"Application Form", particularsPages.front(), {"frmAnnexureA", "AnnexureACont"}},
    {"Chalan Payment  ", "rptPaymentDetails", {"frmPayDetail"}},
    {"Discretion New", "rptDiscretionNewCase", {"frmDiscretionNewCase"}},
    {"Discretion Revised", "rptDiscretionRevCase", {"frmDiscretionrevisedCase"}},
    {"Form of supervision", "rptFormofSupervision", {"frmofsupervision"}},
    {"Notice for commencement of work", "rptNoticeforcommencementofwork", {"frmnoticeofcommencementofwork"}},
    {"Completion up to plinth level",
     "rptformforintimationofcompletionofworkuptoplinthlevel",
     {"frmcompletionuptoplinthlevel"}},
    {"Building completion certificate", "forbldgcompletion", {"frmbuildingcompletioncertificate"}},
    {"DRC transfer form"},
    {"Transferring ownership", "rptTDRfortransferringownership", {"frmtdrfortransferringownership"}},
    {"DRC utilization form"},
    {"Issue of DRC"},
});
constexpr std::size_t payment = 1;

constexpr LayoutRow rows[] = {
    {"", "", "SelectAllDoc"}, {"", "", "PrintDoc(0)"}, {"", "", "PrintDoc(1)"}, {"", "", "PrintDoc(2)"},
    {"", "", "PrintDoc(3)"},  {"", "", "PrintDoc(4)"}, {"", "", "PrintDoc(5)"}, {"", "", "PrintDoc(6)"},
    {"", "", "PrintDoc(7)"},  {"", "", "PrintDoc(8)"}, {"", "", "PrintDoc(9)"}, {"", "", "PrintDoc(10)"},
    {"", "", "PrintDoc(11)"},
};
constexpr LayoutGroup groups[] = {{"", rows}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet{.questionWidth = 5, .pages = pages, .buttons = "cmdNavPrev cmdCancel"};

/// Raised while documents go to the printer without a preview, whatever ends that.
class DirectPrint {
public:
    explicit DirectPrint(bool& flag) : flag(flag) { flag = true; }
    ~DirectPrint() { flag = false; }
    DirectPrint(const DirectPrint&) = delete;
    DirectPrint& operator=(const DirectPrint&) = delete;

private:
    bool& flag;
};

std::span<const std::string_view> reportsOf(const PrintedDocument& document) {
    if (document.report == particularsPages.front())
        return particularsPages;
    return {&document.report, 1};
}

}  // namespace

frmPrint::frmPrint(Proposal& proposal) : Form(proposal.screen, formName, "Print documents"), proposal(proposal) {
    for (const PrintedDocument& document : documents)
        PrintDoc.emplace_back(*this, "PrintDoc", document.caption, static_cast<int>(PrintDoc.size()));
    SelectAllDoc.click = [this] {
        for (CheckBox& document : PrintDoc)
            document.setValue(SelectAllDoc.value());
    };
    cmdNavPrev.click = [this] { cmdNavPrev_Click(); };
    cmdCancel.click = [this] { this->proposal->forms.unload(formName); };
}

void frmPrint::load() {
    setFormColors(*this, *proposal);
    SelectAllDoc.setValue(1);
}

const Layout& frmPrint::layout() const {
    return sheet;
}

void frmPrint::cmdNavPrev_Click() {
    std::vector<const PrintedDocument*> chosen;
    for (const CheckBox& box : PrintDoc)
        if (const auto& document = documents.at(static_cast<std::size_t>(box.index()));
            box.value() == 1 && !document.report.empty())
            chosen.push_back(&document);
    if (chosen.empty())
        return;
    std::optional<std::filesystem::path> folder;
    if (!screen().ports.printer.ready() && !(folder = askForFolder()))
        return;
    std::string failures;
    {
        ProgressOf progress(screen().ports.progress, "Printing", static_cast<int>(chosen.size()));
        for (const PrintedDocument* document : chosen) {
            try {
                print(*document, folder);
            } catch (const RuntimeError& error) {
                failures += "\n" + std::string(document->caption) + ": " + error.description;
            }
            progress.step();
        }
    }
    if (!failures.empty())
        screen().message("These documents could not be printed:" + failures, messageTitle, Icon::Critical);
    else if (folder)
        screen().message("The PDF files are in " + folder->string(), messageTitle);
}

std::optional<std::filesystem::path> frmPrint::askForFolder() {
    Dialogs& dialogs = screen().ports.dialogs;
    if (!dialogs.askYesNo({std::string(messageTitle), "There is no printer. Write PDF files instead?", Icon::Question}))
        return std::nullopt;
    const std::string folder = dialogs.chooseFolder("Folder for the PDF files");
    return folder.empty() ? std::nullopt : std::optional<std::filesystem::path>(folder);
}

void frmPrint::print(const PrintedDocument& document, const std::optional<std::filesystem::path>& folder) {
    const DirectPrint direct(proposal->isDirectPrint);
    if (!proposal->commands.feed(document.report))
        return;  // it told why
    if (&document == &documents[payment])
        proposal->noReportReturn = true;
    ReportDesk& desk = ReportDesk::of(*proposal);
    for (const std::string_view report : reportsOf(document)) {
        if (folder)
            desk.writePdf(report, *folder);
        else
            desk.print(report);
    }
    for (const std::string_view form : document.forms)
        if (!form.empty())
            proposal->forms.touch(form)->hide();
}

}  // namespace plandesk
