#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "controls/Form.h"
#include "controls/Ports.h"
#include "reports/ReportDesk.h"

// The machine of a script: what the user answers is queued beforehand, what the system shows is kept to be looked at.

namespace plandesk::driver {

class RecordingDialogs : public Dialogs {
public:
    /// Boxes and questions not yet taken, oldest first.
    std::deque<Message> messages;
    /// "yes", "no", "ok", "cancel" or a path.
    std::deque<std::string> answers;

    void showMessage(const Message& message) override;
    bool askYesNo(const Message& question) override;
    std::string openFile(const FileDialog& dialog) override { return chooseFile(dialog); }
    std::string saveFile(const FileDialog& dialog) override { return chooseFile(dialog); }
    std::string chooseFolder(const std::string& title) override;

private:
    std::string nextAnswer(const std::string& otherwise);
    std::string chooseFile(const FileDialog& dialog);
};

/// A printer that is always there. What goes to it is kept by RecordingReports; a PDF is a file with the report's name.
class ScriptedPrinter : public Printer {
public:
    explicit ScriptedPrinter(Files& files) : files(files) {}

    bool ready() override { return true; }
    void print(const Paper& /*paper*/) override {}
    void writePdf(const Paper& paper, const std::filesystem::path& file) override;

private:
    Files& files;
};

/// The reports that were shown and printed.
class RecordingReports : public ReportObserver {
public:
    /// Names of those not yet taken, oldest first.
    std::deque<std::string> shown;
    std::deque<std::string> printed;
    /// What was shown or printed last under each name.
    std::map<std::string, Preview, IgnoringCase> last;

    void reportShown(const Preview& preview) override;
    void reportChanged(const Preview& preview) override { keep(preview); }
    void reportClosed(std::string_view /*name*/) override {}
    void reportPrinted(const Preview& preview) override;

private:
    void keep(const Preview& preview) { last.insert_or_assign(std::string(preview.name), preview); }
};

/// The machine's date until another one is set.
class SetClock : public Clock {
public:
    std::optional<Date> set;
    Date today() const override;
};

class ScriptedProgram : public Program {
public:
    explicit ScriptedProgram(std::string folder);

    std::string folder() const override { return ownFolder; }
    std::string title() const override { return "Plandesk"; }
    std::string version() const override { return PLANDESK_VERSION; }
    /// A script has no such tool.
    bool startSystemInformation() override { return false; }
    void end() override {}

private:
    std::string ownFolder;
};

/// The word of the script grammar for an icon.
std::string_view iconName(Icon icon);

}  // namespace plandesk::driver
