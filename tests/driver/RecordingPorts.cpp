#include "driver/RecordingPorts.h"

#include <array>
#include <utility>

#include "controls/MachineClock.h"

namespace plandesk::driver {

void RecordingDialogs::showMessage(const Message& message) {
    messages.push_back(message);
    // A box has one button; an answer that waits for a question or a file dialog is not spent on it.
    if (!answers.empty() && answers.front() == "ok")
        answers.pop_front();
}

bool RecordingDialogs::askYesNo(const Message& question) {
    messages.push_back(question);
    const std::string answer = nextAnswer("no");
    return answer == "yes" || answer == "ok";
}

std::string RecordingDialogs::nextAnswer(const std::string& otherwise) {
    if (answers.empty())
        return otherwise;
    std::string answer = std::move(answers.front());
    answers.pop_front();
    return answer;
}

std::string RecordingDialogs::chooseFile(const FileDialog& dialog) {
    std::string answer = nextAnswer("cancel");
    return answer == "cancel" || answer == "ok" ? dialog.fileName : answer;
}

std::string RecordingDialogs::chooseFolder(const std::string& /*title*/) {
    return chooseFile({});
}

void ScriptedPrinter::writePdf(const Paper& paper, const std::filesystem::path& file) {
    files.writeWhole(file, paper.name);
}

void RecordingReports::reportShown(const Preview& preview) {
    keep(preview);
    shown.emplace_back(preview.name);
}

void RecordingReports::reportPrinted(const Preview& preview) {
    keep(preview);
    printed.emplace_back(preview.name);
}

Date SetClock::today() const {
    return set ? *set : MachineClock().today();
}

ScriptedProgram::ScriptedProgram(std::string folder) : ownFolder(std::move(folder)) {
    while (ownFolder.size() > 1 && ownFolder.ends_with('/'))
        ownFolder.pop_back();
}

std::string_view iconName(Icon icon) {
    constexpr std::array names = std::to_array<std::string_view>({"none", "information", "question", "critical"});
    return names.at(static_cast<std::size_t>(icon));
}

}  // namespace plandesk::driver
