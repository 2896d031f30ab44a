// plandesk-pdf FILE FOLDER [--report NAME]...: writes the reports of a saved proposal as PDF files, without a window or
// a display. Status 2, and one line that says why, when it cannot.

#include <QGuiApplication>
#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <set>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/FileStore.h"
#include "proposal/Proposal.h"
#include "reports/ReportCatalogue.h"
#include "reports/ReportDesk.h"
#include "shell/mdiInterface.h"
#include "tools/Streams.h"
#include "tools/ToolPorts.h"
#include "tools/pdf/PdfWork.h"

namespace {

using namespace plandesk;
namespace fs = std::filesystem;
using tools::cannot;

struct Options {
    fs::path file;
    fs::path folder;
    std::vector<std::string_view> reports;  ///< names of the catalogue; empty: all
    std::string fault;                      ///< what is wrong with the command line
};

Options parse(const std::vector<std::string>& arguments) {
    Options options;
    std::vector<std::string> places;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& argument = arguments[at];
        if (argument != "--report") {
            places.push_back(argument);
        } else if (++at == arguments.size()) {
            options.fault = "--report needs a name";
        } else if (!isReport(arguments[at])) {
            options.fault = arguments[at] + ": there is no such report";
        } else {
            const std::string_view name = findReport(arguments[at]).name;
            if (std::ranges::find(options.reports, name) == options.reports.end())
                options.reports.push_back(name);
        }
        if (!options.fault.empty())
            return options;
    }
    if (places.size() != 2 || places[0].starts_with('-') || places[1].starts_with('-'))
        options.fault = "usage: plandesk-pdf FILE FOLDER [--report NAME]...";
    else
        std::tie(options.file, options.folder) = std::pair(places[0], places[1]);
    return options;
}

int writeReports(const Options& options) {
    tools::OpenDialogs dialogs(options.file);
    MachineClock clock;
    tools::OwnFolder program;
    FileStore files;
    Proposal proposal({dialogs, clock, files, program});
    mdiInterface shell(proposal);
    shell.press("mnuOpen");
    proposal.isDirectPrint = true;  // nothing is shown
    std::vector<Paper> papers;
    std::set<const Feed*> fed;
    for (const Report& report : reportCatalogue()) {
        const auto& wanted = options.reports;
        if (!wanted.empty() && std::ranges::find(wanted, report.name) == wanted.end())
            continue;
        if (fed.insert(report.feed).second && !proposal.commands.feed(report.name))
            return cannot;
        papers.push_back(shell.reports().filled(report.name).paper);
    }
    tools::PdfWork work(papers);
    for (std::size_t paper = 0; paper < papers.size(); ++paper) {
        const fs::path written = options.folder / (std::string(papers[paper].name) + ".pdf");
        try {
            files.writeWhole(written, work.bytesOf(paper));
        } catch (const RuntimeError& error) {
            std::cerr << written.string() << ": " << error.description << '\n';
            return cannot;
        }
        std::cout << written.string() << '\n';
    }
    return EXIT_SUCCESS;
}

/// The toolkit's own remarks are not for who runs a program of one line.
void onlyFailures(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::cerr << text.toStdString() << '\n';
}

}  // namespace

int main(int count, char** values) {
    tools::keepStreams();
    try {
        Options options = parse({values + 1, values + count});
        if (options.fault.empty())
            options.fault = tools::fileFault(options.file);
        std::error_code error;
        if (options.fault.empty() && !fs::is_directory(options.folder, error))
            options.fault = options.folder.string() + ": there is no such folder";
        if (options.fault.empty())
            options.fault = tools::villagesFault();
        if (!options.fault.empty()) {
            std::cerr << options.fault << '\n';
            return cannot;
        }
        qInstallMessageHandler(onlyFailures);
        qputenv("QT_QPA_PLATFORM", "offscreen");
        int one = 1;  // the toolkit is to find no options of its own
        const QGuiApplication application(one, values);
        std::setlocale(LC_NUMERIC, "C");
        return tools::ended(writeReports(options));
    } catch (...) {
        std::cerr << failureText() << '\n';
    }
    return cannot;
}
