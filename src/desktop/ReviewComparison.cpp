#include "desktop/ReviewComparison.h"

#include <fstream>
#include <iterator>
#include <system_error>

#include "base/RuntimeError.h"
#include "document/XmlDocument.h"
#include "review/CarriedAnswers.h"
#include "review/ReviewCopy.h"

namespace plandesk::desktop {

namespace {

std::string bytesOf(const std::filesystem::path& file) {
    std::error_code unknown;
    if (!std::filesystem::exists(file, unknown))
        throw RuntimeError(ErrorNumber::FileNotFound);
    std::ifstream stream(file, std::ios::binary);
    if (!stream || std::filesystem::is_directory(file, unknown))
        throw RuntimeError(ErrorNumber::PathFileAccess);
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool isProposal(std::string_view bytes) {
    XmlDocument document;
    // The first element of every proposal document.
    return document.loadBytes(bytes) && document.name(document.root()) == "INWARDINFO";
}

}  // namespace

std::optional<ReviewGroups> compareWithFile(const mdiInterface& running, const std::filesystem::path& file) {
    const std::string bytes = bytesOf(file);
    if (!isProposal(bytes))
        return std::nullopt;
    SilentSystem saved(running.opened().screen.ports);
    saved.shell.openBytes(bytes, SilentMachine::path);
    // A form that nobody has opened yet holds what it holds when it is.
    ReviewCopy copy(running);
    for (const auto& [name, form] : saved.proposal.forms.all())
        copy.proposal().forms.touch(name);
    return linesOf(differencesOf(copy.proposal(), saved.proposal), copy.proposal(), saved.proposal);
}

}  // namespace plandesk::desktop
