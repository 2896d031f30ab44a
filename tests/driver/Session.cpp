#include "driver/Session.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

#include "driver/Commands.h"

namespace plandesk::driver {

namespace {

constexpr int deepestInclude = 16;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

const Command& findCommand(const std::string& name) {
    for (const std::span<const Command> table :
         {userCommands(), machineCommands(), lookCommands(), reportCommands(), reviewCommands()})
        if (const auto found = std::ranges::find(table, name, &Command::name); found != table.end())
            return *found;
    throw ScriptError("unknown command " + quote(name));
}

}  // namespace

Session::Session(std::string folder, std::string scriptName, std::ostream& out, std::ostream& err)
    : out(out),
      program(std::move(folder)),
      proposal(Ports{dialogs, clock, files, program, Progress::unheard(), printer}),
      shell(proposal),
      err(err),
      scriptName(std::move(scriptName)) {
    shell.reports().observer = &reports;
}

Session::Status Session::run(std::istream& script) {
    try {
        runLines(script);
    } catch (const ScriptError& error) {
        tell() << error.what() << std::endl;
        status = WrongScript;
    }
    out.flush();
    return status;
}

void Session::runLines(std::istream& script) {
    std::string text;
    for (line = 1; std::getline(script, text); ++line) {
        std::string_view content = text;
        if (line == 1 && content.starts_with(byteOrderMark))
            content.remove_prefix(byteOrderMark.size());
        if (content.ends_with('\r'))
            content.remove_suffix(1);
        runLine(content);
    }
}

// A script that is wrong leaves the name and the line of the file that it stands in.
void Session::include(const std::string& path) {
    const std::filesystem::path file = std::filesystem::path(scriptName).parent_path() / path;
    std::ifstream script(file, std::ios::binary);
    if (!script || std::filesystem::is_directory(file))
        throw ScriptError(file.string() + ": cannot be read");
    if (depth == deepestInclude)
        throw ScriptError("files include each other too deeply");
    ++depth;
    std::string includer = std::exchange(scriptName, file.string());
    const int here = line;
    runLines(script);
    scriptName = std::move(includer);
    line = here;
    --depth;
}

void Session::runLine(std::string_view content) {
    std::vector<Word> words = splitWords(content);
    if (words.empty())
        return;
    const Command& command = findCommand(words.front().text);
    words.erase(words.begin());
    const int count = static_cast<int>(words.size());
    if (count < command.least || count > command.most)
        throw ScriptError("wrong number of words: " + std::string(command.name) + " " + std::string(command.takes));
    command.run(*this, words);
}

std::ostream& Session::tell() {
    out.flush();
    return err << scriptName << ':' << line << ": ";
}

void Session::failed(std::string_view expected, std::string_view found) {
    tell() << "expected " << expected << ", found " << found << std::endl;
    status = Failed;
}

void Session::unavailable(const Word& what) {
    out << "unavailable " << what.text << '\n';
}

Form& Session::form(const std::string& name) {
    if (Form* found = proposal.forms.touch(name))
        return *found;
    throw ScriptError("unknown form " + quote(name));
}

}  // namespace plandesk::driver
