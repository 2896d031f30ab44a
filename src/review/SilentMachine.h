#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/Ports.h"

namespace plandesk {

/// The machine that a copy of a proposal runs on: no box is shown, nothing is written to a disk, nothing printed. The
/// day, the program's folder and the files beside it are those of the real machine, which outlives this one.
class SilentMachine {
public:
    explicit SilentMachine(const Ports& real);

    Ports ports() { return {dialogs, real.clock, files, program}; }

    /// What a save chooses as its file where it asks for one.
    static constexpr const char* path = "/proposal.xml";

    /// The boxes that were told since the machine was made. What they are about lives in the copy.
    std::vector<Message> told;
    /// The bytes of the file that was written last.
    std::optional<std::string> written;

private:
    class SilentDialogs : public Dialogs {
    public:
        explicit SilentDialogs(SilentMachine& machine) : machine(machine) {}
        void showMessage(const Message& message) override { machine.told.push_back(message); }
        bool askYesNo(const Message& /*question*/) override { return false; }
        std::string openFile(const FileDialog& dialog) override { return dialog.fileName; }
        std::string saveFile(const FileDialog& /*dialog*/) override { return path; }

    private:
        SilentMachine& machine;
    };

    class MemoryFiles : public Files {
    public:
        explicit MemoryFiles(SilentMachine& machine) : machine(machine) {}
        void readLines(const std::filesystem::path& file, const std::function<void(std::string_view)>& take) override {
            machine.real.files.readLines(file, take);
        }
        void writeWhole(const std::filesystem::path& /*file*/, std::string_view bytes) override {
            machine.written = std::string(bytes);
        }

    private:
        SilentMachine& machine;
    };

    class SameProgram : public Program {
    public:
        explicit SameProgram(Program& real) : real(real) {}
        std::string folder() const override { return real.folder(); }
        std::string title() const override { return real.title(); }
        std::string version() const override { return real.version(); }
        bool startSystemInformation() override { return false; }
        void end() override {}

    private:
        Program& real;
    };

    Ports real;
    SilentDialogs dialogs{*this};
    MemoryFiles files{*this};
    SameProgram program{real.program};
};

}  // namespace plandesk
