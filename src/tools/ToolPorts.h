#pragma once

#include <filesystem>
#include <iostream>
#include <string>
#include <utility>

#include "controls/FileStore.h"
#include "controls/MachineClock.h"
#include "controls/Ports.h"
#include "document/XmlDocument.h"
#include "particulars/frmAnnexureA.h"
#include "shell/mdiInterface.h"

// The machine as a program sees it that opens one file and asks nobody.

namespace plandesk::tools {

/// Opens the one file; what the system has to say goes to the error stream.
class OpenDialogs : public Dialogs {
public:
    explicit OpenDialogs(std::filesystem::path file) : file(std::move(file)) {}

    void showMessage(const Message& message) override { std::cerr << file.string() << ": " << message.text << '\n'; }
    bool askYesNo(const Message& /*question*/) override { return false; }
    std::string openFile(const FileDialog& /*dialog*/) override { return file.string(); }
    std::string saveFile(const FileDialog& dialog) override { return dialog.fileName; }

private:
    std::filesystem::path file;
};

/// What keeps the file from being read as a proposal, in one line; empty when nothing does.
inline std::string fileFault(const std::filesystem::path& file) {
    XmlDocument document;
    if (!document.load(file))
        return file.string() + ": cannot be read, or is no well-formed XML file";
    // The first element of every proposal document.
    if (document.name(document.root()) != "INWARDINFO")
        return file.string() + ": is no proposal document";
    return "";
}

class OwnFolder : public Program {
public:
    std::string folder() const override { return std::filesystem::read_symlink("/proc/self/exe").parent_path(); }
    std::string title() const override { return "Plandesk"; }
    std::string version() const override { return ""; }
    bool startSystemInformation() override { return false; }
    void end() override {}
};

/// Remembers what is said.
class HeardDialogs : public OpenDialogs {
public:
    HeardDialogs() : OpenDialogs({}) {}
    void showMessage(const Message& message) override {
        heard = message.detail.empty() ? message.text : message.detail;
    }
    std::string heard;
};

/// What keeps the list of villages from being read, in one line; empty when nothing does. Without all of it a proposal
/// would lose its village.
inline std::string villagesFault() {
    HeardDialogs dialogs;
    MachineClock clock;
    OwnFolder program;
    FileStore files;
    Proposal proposal({dialogs, clock, files, program});
    const mdiInterface shell(proposal);
    proposal.forms.get<frmAnnexureA>();
    return dialogs.heard;
}

}  // namespace plandesk::tools
