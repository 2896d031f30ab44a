#include "driver/Session.h"

#include <algorithm>

#include "driver/Commands.h"

namespace plandesk::driver {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

const Command& findCommand(const std::string& name) {
    for (const std::span<const Command> table : {userCommands(), machineCommands(), lookCommands()})
        if (const auto found = std::ranges::find(table, name, &Command::name); found != table.end())
            return *found;
    throw ScriptError("unknown command " + quote(name));
}

}  // namespace

Session::Session(std::string folder, std::string scriptName, std::ostream& out, std::ostream& err)
    : out(out),
      program(std::move(folder)),
      proposal(Ports{dialogs, clock, files, program}),
      shell(proposal),
      err(err),
      scriptName(std::move(scriptName)) {}

Session::Status Session::run(std::istream& script) {
    std::string text;
    while (std::getline(script, text)) {
        ++line;
        std::string_view content = text;
        if (line == 1 && content.starts_with(byteOrderMark))
            content.remove_prefix(byteOrderMark.size());
        if (content.ends_with('\r'))
            content.remove_suffix(1);
        try {
            runLine(content);
        } catch (const ScriptError& error) {
            tell() << error.what() << std::endl;
            return status = WrongScript;
        }
    }
    out.flush();
    return status;
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
