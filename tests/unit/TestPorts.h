#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/RuntimeError.h"
#include "controls/Paper.h"
#include "controls/Ports.h"

// A machine that lives in memory: the tests queue what the user answers and read afterwards what was asked.

namespace plandesk {

inline void PrintTo(const Message& message, std::ostream* out) {
    *out << '"' << message.text << "\" titled \"" << message.title << "\" with icon " << static_cast<int>(message.icon);
}

namespace test {

class RecordingDialogs : public Dialogs {
public:
    /// Every box and question so far, oldest first.
    std::vector<Message> messages;
    std::vector<FileDialog> fileDialogs;
    /// "yes", "no", "cancel" or a path for the next questions and file dialogs. With none left a question is answered
    /// No and a file dialog is cancelled.
    std::deque<std::string> answers;

    void showMessage(const Message& message) override { messages.push_back(message); }
    bool askYesNo(const Message& question) override {
        messages.push_back(question);
        return nextAnswer("no") == "yes";
    }
    std::string openFile(const FileDialog& dialog) override { return chooseFile(dialog); }
    std::string saveFile(const FileDialog& dialog) override { return chooseFile(dialog); }
    std::string chooseFolder(const std::string& /*title*/) override {
        const std::string answer = nextAnswer("cancel");
        return answer == "cancel" ? "" : answer;
    }

    /// The boxes since the last call.
    std::vector<Message> take() { return std::exchange(messages, {}); }

private:
    std::string nextAnswer(std::string_view otherwise) {
        if (answers.empty())
            return std::string(otherwise);
        std::string answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::string chooseFile(const FileDialog& dialog) {
        fileDialogs.push_back(dialog);
        const std::string answer = nextAnswer("cancel");
        return answer == "cancel" ? dialog.fileName : answer;
    }
};

class FixedClock : public Clock {
public:
    Date day{2024, 3, 15};
    Date today() const override { return day; }
};

class MemoryFiles : public Files {
public:
    std::map<std::filesystem::path, std::string> contents;
    /// Thrown by every write while it is set; nothing is written then.
    std::optional<RuntimeError> failure;

    void readLines(const std::filesystem::path& path, const std::function<void(std::string_view)>& take) override {
        const auto file = contents.find(path);
        if (file == contents.end())
            throw RuntimeError(ErrorNumber::FileNotFound);
        std::istringstream in(file->second);
        for (std::string line; std::getline(in, line);) {
            if (line.ends_with('\r'))
                line.pop_back();
            take(line);
        }
    }
    void writeWhole(const std::filesystem::path& path, std::string_view bytes) override {
        if (failure)
            throw RuntimeError(*failure);
        contents[path] = bytes;
    }
};

class RecordingProgram : public Program {
public:
    int ends = 0;  ///< how often the system ended the program
    bool hasSystemInformation = false;
    int systemInformationStarts = 0;

    std::string folder() const override { return "/program"; }
    std::string title() const override { return "Plandesk"; }
    std::string version() const override { return "1.0.0"; }
    bool startSystemInformation() override {
        systemInformationStarts += hasSystemInformation ? 1 : 0;
        return hasSystemInformation;
    }
    void end() override { ++ends; }
};

/// Keeps what was printed and written as PDF, and fails as told.
class RecordingPrinter : public Printer {
public:
    bool isReady = true;
    std::vector<std::string> printed;  ///< names of the reports
    std::vector<std::filesystem::path> files;
    std::vector<Paper> papers;  ///< all that was put on paper or into a file, oldest first
    /// Thrown for a report of that name.
    std::map<std::string, RuntimeError> failures;

    bool ready() override { return isReady; }
    void print(const Paper& paper) override {
        take(paper);
        printed.emplace_back(paper.name);
    }
    void writePdf(const Paper& paper, const std::filesystem::path& file) override {
        take(paper);
        files.push_back(file);
    }

private:
    void take(const Paper& paper) {
        if (const auto failure = failures.find(std::string(paper.name)); failure != failures.end())
            throw RuntimeError(failure->second);
        papers.push_back(paper);
    }
};

/// The surroundings of one system under test; they must outlive it.
struct TestPorts {
    RecordingDialogs dialogs;
    FixedClock clock;
    MemoryFiles files;
    RecordingProgram program;
    RecordingPrinter printer;

    operator Ports() { return {dialogs, clock, files, program, Progress::unheard(), printer}; }
};

}  // namespace test
}  // namespace plandesk
