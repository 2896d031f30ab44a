#include "shell/frmAbout.h"

#include <array>
#include <string>

#include "base/RuntimeError.h"
#include "proposal/mdlProject.h"

namespace plandesk {

namespace {

constexpr LayoutRow rows[] = {
    {"", "", "lblTitle"},
    {"", "", "lblVersion"},
    {"", "", "lblDescription"},
    {"", "", "lblDisclaimer"},
};
constexpr LayoutGroup groups[] = {{"", rows}};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet{.pages = pages, .buttons = "cmdOK cmdSysInfo", .centred = true};

}  // namespace

frmAbout::frmAbout(Proposal& proposal) : Form(proposal.screen, formName, ""), proposal(proposal) {
    cmdOK.click = [this] { close(); };
    cmdSysInfo.click = [this] { StartSysInfo(); };
    procedure("StartSysInfo", [this] { StartSysInfo(); });
}

const Layout& frmAbout::layout() const {
    return sheet;
}

void frmAbout::load() {
    setFormColors(*this, *proposal);
    showTitle(screen().ports.program.title());
    showVersion(screen().ports.program.version());
    readVersionFile();
}

void frmAbout::showTitle(std::string_view title) {
    lblTitle.setCaption(title);
    setCaption("About " + std::string(title));
}

void frmAbout::showVersion(std::string_view version) {
    lblVersion.setCaption("Version " + std::string(version));
}

void frmAbout::readVersionFile() {
    const std::array<std::function<void(std::string_view)>, 4> readers = {
        [this](std::string_view line) { showTitle(line); },
        [this](std::string_view line) { showVersion(line); },
        [this](std::string_view line) { lblDescription.setCaption(line); },
        [this](std::string_view line) { lblDisclaimer.setCaption(line); },
    };
    std::size_t count = 0;
    try {
        screen().ports.files.readLines(screen().ports.program.folder() + "/version.ini", [&](std::string_view line) {
            if (count < readers.size())
                readers.at(count++)(line);
        });
    } catch (const RuntimeError& error) {
        if (error.number != static_cast<int>(ErrorNumber::FileNotFound))
            throw;
        // What the program itself knows stands.
    }
}

void frmAbout::StartSysInfo() {
    if (!screen().ports.program.startSystemInformation())
        screen().message("System Information Is Unavailable At This Time", "");
}

void frmAbout::close() {
    proposal->forms.unload(formName);
}

}  // namespace plandesk
