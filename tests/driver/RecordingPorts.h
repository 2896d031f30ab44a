#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "controls/Ports.h"

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

private:
    std::string nextAnswer(const std::string& otherwise);
    std::string chooseFile(const FileDialog& dialog);
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
