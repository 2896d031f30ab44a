#pragma once

#include <span>
#include <string>
#include <string_view>

namespace plandesk {

class Proposal;

/// One step of the save: a form's own save, or, without a form, a block built or something set.
struct SaveStep {
    std::string_view form{};
    std::string_view procedure{};
    std::string Proposal::*needed = nullptr;  ///< when it is empty afterwards, the save stops
    std::string Proposal::*block = nullptr;
    void (*action)(Proposal& proposal) = nullptr;
};
/// In the order of the save.
std::span<const SaveStep> saveSteps();

/// Every form leaves its answers in the fixed order, then the document is joined and written. Stops without a message
/// when a checklist is left empty, having told of its own trouble.
void saveProposal(Proposal& proposal);

/// Refuses, with a message, while a carrier is empty; otherwise joins the document, asks for a file name while the
/// proposal has no file, and writes it.
void SaveData(Proposal& proposal);

/// Writes the joined document to the path of the proposal as one line in the system's code page and tells where.
/// Without a path nothing happens. RuntimeError when the file system refuses; the earlier file is whole then.
void CreateXMLFIle(Proposal& proposal);

}  // namespace plandesk
