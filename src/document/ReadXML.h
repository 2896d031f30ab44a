#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "document/Pieces.h"
#include "document/XmlDocument.h"

namespace plandesk {

class Control;
class DocCheckList;
class OptionButton;
class Proposal;
class RuntimeError;

/// Turns a proposal document back into filled forms. Sections are read by position, never by element name, and setting
/// a control runs its reactions, so the order of the tables decides what survives. Nothing is validated: each statement
/// that fails shows its own message, and reading goes on.
class ReadXML {
public:
    explicit ReadXML(Proposal& proposal) : proposal(proposal) {}

    /// What a message about a failure of the reading means when the file could not be loaded; else empty.
    const std::string& unread() const { return unreadText; }

    /// Takes over the document last loaded there and what is known of it.
    void copyFrom(const ReadXML& original);

    /// Loads the file into `proposalDom`, which lives until the next load. A file that cannot be loaded shows nothing
    /// here and leaves a document without a root.
    void LoadDocument(const std::string& path);

    /// The same of a file's bytes that are in memory. False when they cannot be loaded.
    bool LoadBytes(std::string_view bytes);

    /// Reads the sections, checklists and fees by position and ANNEXUREB by name. One critical message for each failing
    /// statement: the error's number, " : " and its description.
    void readSections();

    /// The document last loaded, which the readers of the blocks work on.
    const XmlDocument& document() const { return *proposalDom; }

private:
    /// A text box or option of the Particulars, by the name of the element of ANNEXUREB that it takes.
    struct Named {
        std::string_view element;
        Control* control;
    };

    template <class Body>
    void statement(const Body& body);
    /// `control`: the one that the value goes to, which the message of a failure means; may be null.
    template <class Body>
    void statement(const Control* control, const Body& body);
    void tell(const RuntimeError& error);
    std::string flatten() const;
    /// In the order of the forms and of their controls.
    std::vector<Named> namedControls();
    void readChecklists(const Pieces& groups);
    void readChecklist(DocCheckList& form, int first, int last, std::string_view entries);
    void readFees(const Pieces& fields);
    void readAnnexureB();
    void readNamed(XmlDocument::Node element, std::span<const Named> controls);
    void readStreetsAndTrees(std::string_view text);

    Proposal& proposal;
    std::shared_ptr<const XmlDocument> proposalDom = std::make_shared<XmlDocument>();  ///< never changed once loaded
    std::string unreadText;  ///< why there is no document; empty when there is one
    int optionNumber = 0;    ///< number of the option element of ANNEXUREB read last
};

/// For a member of an option array: index 1 becomes (number = 1), index 0 becomes (number = 0). Nothing for any other
/// option.
void setOptionFromText(OptionButton& option, int number);

}  // namespace plandesk
