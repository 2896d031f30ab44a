#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace plandesk {

class Proposal;
class ReportDesk;

/// What forms ask of higher levels. The shell fills each in; a command that nobody filled in yet does nothing.
struct Commands {
    using Action = std::function<void()>;
    using Fragment = std::string Proposal::*;

    static void nothing() {}

    Action saveProposal = nothing;    ///< every form leaves its answers, then the document is joined and written
    Action SaveData = nothing;        ///< guards, joins the document and writes it
    Action CreateXMLFIle = nothing;   ///< writes the joined document to the path of the proposal
    Action fileNotWritten = nothing;  ///< opens Save As, so that the proposal can be saved elsewhere
    Action readXml = nothing;         ///< the steps of opening a file, without setting the proposal flags
    Action refreshMenus = nothing;
    /// Builds the block of the document whose text is that fragment.
    std::function<void(Fragment)> buildBlock = [](Fragment) {};
    /// Reads that block again from the document last opened.
    std::function<void(Fragment)> readBlock = [](Fragment) {};
    /// Opens the form of that name as the catalogue of forms tells. RuntimeError 3265 when there is none.
    std::function<void(std::string_view name)> open = [](std::string_view) {};
    /// Runs the procedure that feeds the report of that name from the live forms. False when it told of a failure
    /// itself. RuntimeError 3265 for an unknown report.
    std::function<bool(std::string_view report)> feed = [](std::string_view) { return false; };
    /// What the print button of a form does: feeds the report of that name and shows it, if the button shows it at all.
    std::function<void(std::string_view report)> print = [](std::string_view) {};
    /// Where reports are shown and printed, for the forms that belong to it; null until the shell has one.
    ReportDesk* reports = nullptr;
};

}  // namespace plandesk
