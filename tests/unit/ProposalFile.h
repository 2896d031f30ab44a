#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "ScratchFolder.h"
#include "World.h"
#include "document/ReadXML.h"

namespace plandesk::test {

/// A proposal document of the tests' own making, one value an element. As it starts, it reads without a box and leaves
/// every question without an answer.
class ProposalFile {
public:
    /// Gives the element this content, as it stands in the file.
    ProposalFile& set(std::string_view element, std::string_view content) {
        at(element).content = content;
        return *this;
    }
    /// The same for one value of a "#" list.
    ProposalFile& setPart(std::string_view element, int part, std::string_view content) {
        std::string& list = at(element).content;
        std::size_t begin = 0;
        for (; part > 0; --part)
            begin = list.find('#', begin) + 1;
        list.replace(begin, list.find('#', begin) - begin, content);
        return *this;
    }
    ProposalFile& rename(std::string_view element, std::string_view name) {
        at(element).name = name;
        return *this;
    }
    /// Takes the last `count` elements of the section away.
    ProposalFile& shorten(std::string_view section, std::size_t count) {
        std::vector<Element>& elements = sectionOf(section).elements;
        elements.resize(elements.size() - count);
        return *this;
    }
    ProposalFile& append(std::string_view section, std::string_view element, std::string_view content) {
        sectionOf(section).elements.push_back({std::string(element), std::string(content)});
        return *this;
    }
    ProposalFile& removeSection(std::string_view section) {
        std::erase_if(sections, [section](const Section& each) { return each.name == section; });
        return *this;
    }
    /// A section behind the others, with its elements and their contents.
    ProposalFile& addSection(std::string_view section,
                             std::initializer_list<std::pair<std::string_view, std::string_view>> elements) {
        sections.push_back({std::string(section), {}});
        for (const auto& [element, content] : elements)
            append(section, element, content);
        return *this;
    }
    /// Gives a section without elements of its own this content, as it stands in the file.
    ProposalFile& setText(std::string_view section, std::string_view content) {
        sectionOf(section).text = content;
        return *this;
    }
    ProposalFile& setChecklist(std::string_view list) {
        checklist = list;
        return *this;
    }

    std::string xml() const {
        std::string text = "<?xml version = '1.0' ?><INWARDINFO DEPARTMENT='BP'>";
        for (const Section& section : sections) {
            text += "<" + section.name + ">";
            text += section.name == "DOCCHKLIST" ? checklist : section.text;
            for (const Element& element : section.elements)
                text += "<" + element.name + ">" + element.content + "</" + element.name + ">";
            text += "</" + section.name + ">";
        }
        return text + "</INWARDINFO>\r\n";
    }

private:
    struct Element {
        std::string name;
        std::string content;
    };
    struct Section {
        std::string name;
        std::vector<Element> elements;
        std::string text{};  ///< before the elements
    };

    Element& at(std::string_view name) {
        for (Section& section : sections)
            for (Element& element : section.elements)
                if (element.name == name)
                    return element;
        throw std::out_of_range("no element " + std::string(name));
    }
    Section& sectionOf(std::string_view name) {
        for (Section& section : sections)
            if (section.name == name)
                return section;
        throw std::out_of_range("no section " + std::string(name));
    }

    std::string checklist =
        "0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-00-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0"
        "#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0";
    std::vector<Section> sections = {
        {"SECTION-I",
         {{"TITLE", ""},
          {"CASETYPE", "NEW"},
          {"PROPOSALTYPE", "Residential"},
          {"PROPOSEDPROJECT", "Development"},
          {"PROPOSALDATE", "01/02/2003"},
          {"SECTOR", ""},
          {"PLOTNO", ""},
          {"FPNO", ""},
          {"HISSANO", ""},
          {"CTSNO", ""},
          {"TIKANO", ""},
          {"GUTNO", ""},
          {"APPLICANTNM", ""},
          {"APPLICANTADDR", ""},
          {"ARCHINFO", "ARCH####"},
          {"THREE-RAD", "2#2"},
          {"THREE-TEXT", "100#100#"},
          {"REMARK1", ""},
          {"FILENO", ""},
          {"REVNO", ""},
          {"ReservationType", ""},
          {"TOTALFSI", "0"}}},
        {"SECTION-II",
         {{"FOUR-RAD", "2"},
          {"FIVE-RAD", "2"},
          {"FIVE-TEXT", "#01/02/2003"},
          {"SIX-A", ""},
          {"SEVEN-RAD", "2#2#2#2"},
          {"EIGHT-RAD", "2#2#2#2#2#2#2#2#2"},
          {"EIGHT-TEXT", "#######"},
          {"NINE-TEXT", "###"},
          {"TEN-TEXT", "#"},
          {"REMARK2", ""}}},
        {"SECTION-III", {{"ELEVEN-RAD", "2"}, {"ELEVEN-TEXT", "###"}, {"REMARK3", ""}}},
        {"SECTION-IV",
         {{"ONETHREE-RAD", "2"},
          {"ONETHREE-TEXT", ""},
          {"ONEFOUR-RAD", "2#2"},
          {"ONESIX-RAD", "2#2#2"},
          {"ONESIX-TEXT", "#"},
          {"ONESEVEN-RAD", "2#2"},
          {"ONESEVEN-TEXT", "####"},
          {"ONEEIGHT-RAD", "2#2"},
          {"REMARK4", ""}}},
        {"SECTION-V",
         {{"TWOZERO", "2"},
          {"TWOONE-RAD", "2"},
          {"TWOONE-TEXT", "#2#2#"},
          {"TWOTHREE-RAD", "2"},
          {"TWOTHREE-TEXT", ""},
          {"TWOFOUR-RAD", "2#2"},
          {"TWOFOUR-TEXT", ""},
          {"TWOFIVE-RAD", "2#2#2#2"},
          {"TWOSIX-TEXT", ""},
          {"TWOEIGHT-TEXT", ""},
          {"TWONINE-RAD", "2#2"},
          {"TWONINE-TEXT", "##"},
          {"THREEZERO-TEXT", "#####"},
          {"THREEONE-TEXT", "###"},
          {"THREETWO-TEXT", ""},
          {"THREETHREE-TEXT", ""},
          {"THREEFOUR-TEXT", ""},
          {"REMARK5", ""}}},
        {"DOCCHKLIST", {}},
        {"PAYMENTDETAIL",
         {{"AREADEVRESI", ""},
          {"RATEDEVRESI", ""},
          {"AMTDEVRESI", ""},
          {"AREADEVCOM", ""},
          {"RATEDEVCOM", ""},
          {"AMTDEVCOM", ""},
          {"AREADEVIND", ""},
          {"RATEDEVIND", ""},
          {"AMTDEVIND", ""},
          {"AREASCRUTINYRESI", ""},
          {"RATESCRUTINYRESI", ""},
          {"AMTSCRUTINYRESI", ""},
          {"AREASCRUTINYCOM", ""},
          {"RATESCRUTINYCOM", ""},
          {"AMTSCRUTINYCOM", ""},
          {"AREASCRUTINYIND", ""},
          {"RATESCRUTINYIND", ""},
          {"AMTSCRUTINYIND", ""},
          {"COMPUNDFEES", ""},
          {"OTHER", ""},
          {"TOTALAMOUNT", ""},
          {"PAYMODE", "CASH"},
          {"PAYDATE", "01/02/2003"},
          {"DRAFTCHQNO", ""},
          {"BANKNAME", ""},
          {"BRANCHNM", ""},
          {"AREA-SCRUT-RESI-2", ""},
          {"RATE-SCRUT-RESI-2", ""},
          {"AMOUNT-SCRUT-RESI-2", ""},
          {"AREA-SCRUT-COMM-2", ""},
          {"RATE-SCRUT-COMM-2", ""},
          {"AMOUNT-SCRUT-COMM-2", ""},
          {"AREA-SCRUT-IND-2", ""},
          {"RATE-SCRUT-IND-2", ""},
          {"AMOUNT-SCRUT-IND-2", ""}}},
        {"ANNEXUREB", {}},
        {"NTS", {}},
        {"PLOT-REL", {}},
        {"PLOT-PRCDETAILS", {}},
        {"DISC-REV", std::vector<Element>(19, {"RULE", "##"})},
        {"DISC-NEW", {}, "##############"},
    };
};

/// Reads documents into the forms of a started system, as an opening does, and keeps the boxes.
class Reading {
public:
    World world;

    /// The boxes that reading the sections of the document showed.
    std::vector<Message> sections(const std::string& xml) {
        reader.LoadDocument(folder.write("proposal.xml", xml));
        world.ports.dialogs.take();
        reader.readSections();
        return world.ports.dialogs.take();
    }
    std::vector<Message> sections(const ProposalFile& file) { return sections(file.xml()); }

    /// The whole opening of a file, with the dialog answered.
    std::vector<Message> open(const std::string& xml) {
        world.ports.dialogs.answers.push_back(folder.write("proposal.xml", xml));
        world.shell.press("mnuOpen");
        return world.ports.dialogs.take();
    }
    std::vector<Message> open(const ProposalFile& file) { return open(file.xml()); }

    std::string path() const { return folder.path("proposal.xml"); }

    const std::string& text(std::string_view form, std::string_view box) { return world.box(form, box).text(); }
    /// "1" Yes, "0" No, "2" neither of a pair ("Opt3") or an array ("IsPlotNarrow").
    std::string answer(std::string_view form, const std::string& question) {
        const bool array = world.proposal.forms.touch(form)->find(question, 1) != nullptr;
        const bool yes = world.option(form, array ? question + "(1)" : question + "Y").value();
        const bool no = world.option(form, array ? question + "(0)" : question + "N").value();
        return yes ? (no ? "both" : "1") : (no ? "0" : "2");
    }

    ScratchFolder folder;
    ReadXML reader{world.proposal};
};

/// The box of a statement of readSections that failed.
inline Message sectionBox(std::string_view numberAndDescription) {
    return {"Particular of Development (Read XML) ", std::string(numberAndDescription), Icon::Critical};
}

inline const Message outOfRange = sectionBox("9 : Subscript out of range");
inline const Message mismatch = sectionBox("13 : Type mismatch");

/// What a file without a root shows: a box for each statement of the sections, one for each procedure behind them.
inline std::vector<Message> hopeless() {
    std::vector<Message> boxes(122 + 15 + 35, outOfRange);
    boxes.insert(boxes.end(), 6,
                 {" Particulars of Development (Read XML) ", "91:Object variable or With block variable not set",
                  Icon::Critical});
    return boxes;
}

}  // namespace plandesk::test
