#pragma once

namespace plandesk {

class Proposal;

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
