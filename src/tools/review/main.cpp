// plandesk-review [--json] FILE: what a saved proposal lacks, what would not arrive as typed, what is worth a second
// look. plandesk-review [--json] --compare FILE FILE: what differs between two saved proposals. Status 0 when there is
// nothing to tell, 1 when there is; 2, and one line that says why, when a file cannot be read.

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "base/RuntimeError.h"
#include "controls/FileStore.h"
#include "review/CarriedAnswers.h"
#include "review/Review.h"
#include "tools/Streams.h"
#include "tools/ToolPorts.h"

namespace {

using namespace plandesk;
using Json = nlohmann::ordered_json;

constexpr int something = 1;

struct Options {
    bool json = false;
    bool compare = false;
    std::vector<std::string> files;
    std::string fault;  ///< what is wrong with the command line or a file
};

Options parse(const std::vector<std::string>& arguments) {
    Options options;
    bool unknown = false;
    for (const std::string& argument : arguments) {
        if (argument == "--json")
            options.json = true;
        else if (argument == "--compare")
            options.compare = true;
        else if (argument.starts_with('-'))
            unknown = true;
        else
            options.files.push_back(argument);
    }
    if (unknown || options.files.size() != (options.compare ? 2 : 1))
        options.fault = "usage: plandesk-review [--json] FILE, or plandesk-review [--json] --compare FILE FILE";
    for (const std::string& file : options.files)
        if (options.fault.empty())
            options.fault = tools::fileFault(file);
    if (options.fault.empty())
        options.fault = tools::villagesFault();
    return options;
}

/// Opens and says nothing: what the office could not read is told by the review.
class QuietDialogs : public tools::OpenDialogs {
public:
    using OpenDialogs::OpenDialogs;
    void showMessage(const Message& /*message*/) override {}
};

/// A saved proposal, opened.
struct Opened {
    explicit Opened(const std::string& file) : dialogs(file) { shell.press("mnuOpen"); }

    QuietDialogs dialogs;
    MachineClock clock;
    tools::OwnFolder program;
    FileStore files;
    Proposal proposal{{dialogs, clock, files, program}};
    mdiInterface shell{proposal};
};

/// Bytes that are no text of the machine's become question marks.
void print(const Json& json) {
    std::cout << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

int tellFindings(const Options& options) {
    const Opened opened(options.files.front());
    const std::vector<Finding> findings = review(opened.shell);
    if (options.json) {
        Json all = Json::array();
        for (const Finding& finding : findings) {
            Json one{{"kind", kindWord(finding.kind)}, {"form", finding.form},         {"control", finding.control},
                     {"question", finding.question},   {"sentence", finding.sentence}, {"cause", finding.cause}};
            if (finding.row >= 0) {
                one["row"] = finding.row;
                one["column"] = finding.column;
            }
            all.push_back(std::move(one));
        }
        print(all);
    } else {
        for (const Finding& finding : findings)
            std::cout << lineOf(finding) << '\n';
    }
    return findings.empty() ? EXIT_SUCCESS : something;
}

std::string_view rowWord(Difference::Row row) {
    switch (row) {
    case Difference::Row::FirstOnly:
        return "removed";
    case Difference::Row::SecondOnly:
        return "added";
    default:
        return "changed";
    }
}

int tellDifferences(const Options& options) {
    const Opened first(options.files[0]);
    const Opened second(options.files[1]);
    const auto differences = differencesOf(first.proposal, second.proposal);
    Json all = Json::array();
    for (const Difference& difference : differences) {
        const Answered& answered = difference.first;
        const bool added = difference.row == Difference::Row::SecondOnly;
        const std::string question = questionOf(added ? second.proposal : first.proposal, answered);
        if (options.json) {
            all.push_back({{"change", rowWord(difference.row)},
                           {"form", answered.form},
                           {"control", answered.control},
                           {"row", answered.rowKey},
                           {"question", question},
                           {"first", answered.text},
                           {"second", difference.second}});
            continue;
        }
        std::cout << rowWord(difference.row) << ' ' << answered.form << '.' << answered.control;
        if (!answered.rowKey.empty())
            std::cout << ' ' << answered.rowKey;
        std::cout << " \"" << question << "\"";
        if (difference.row == Difference::Row::Both)
            std::cout << ": \"" << answered.text << "\" became \"" << difference.second << '"';
        std::cout << '\n';
    }
    if (options.json)
        print(all);
    return differences.empty() ? EXIT_SUCCESS : something;
}

}  // namespace

int main(int count, char** values) {
    tools::keepStreams();
    try {
        const Options options = parse({values + 1, values + count});
        if (options.fault.empty())
            return tools::ended(options.compare ? tellDifferences(options) : tellFindings(options));
        std::cerr << options.fault << '\n';
    } catch (...) {
        std::cerr << failureText() << '\n';
    }
    return tools::cannot;
}
