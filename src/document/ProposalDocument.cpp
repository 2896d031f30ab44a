#include "document/ProposalDocument.h"

#include <span>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "document/DocumentBlocks.h"
#include "document/SectionRows.h"
#include "fees/PackedFees.h"
#include "particulars/PackedSections.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/Element.h"
#include "proposal/Proposal.h"
#include "proposal/mdlProject.h"

namespace plandesk {

namespace {

void appendSection(std::string& xml, const frmAnnexureA& form, const WrittenSection& section) {
    xml.append("<").append(section.element).append(">");
    for (const auto& [row, escape] : section.rows) {
        const std::string value = packedValue(form, row);
        appendElement(xml, row.element, escape == Escape::Yes ? EscapeXML(value) : value);
    }
    xml.append("</").append(section.element).append(">");
}

/// One element for each row, with the packed values from `start` on; a value that is not there gives an empty element.
void appendPacked(std::string& xml, std::span<const PackedRow> rows, std::string_view packed, std::size_t start = 0) {
    const std::vector<std::string> values = split(packed, "$$");
    for (std::size_t i = 0; i < rows.size(); ++i)
        appendElement(xml, rows[i].element, start + i < values.size() ? values[start + i] : "");
}

void appendBlocks(std::string& xml, const Proposal& proposal, BlockPlace place) {
    for (const DocumentBlock& block : documentBlocks()) {
        if (block.place != place)
            continue;
        if (block.bare)
            appendElement(xml, block.element, proposal.*block.fragment);
        else
            xml += proposal.*block.fragment;
    }
}

}  // namespace

std::string joinDocument(Proposal& proposal) {
    const auto& form = proposal.forms.get<frmAnnexureA>();
    std::string xml;
    std::size_t size = 64 * 1024;
    for (const DocumentBlock& block : documentBlocks())
        size += (proposal.*block.fragment).size();
    xml.reserve(size);
    xml += "<?xml version = '1.0' ?><INWARDINFO DEPARTMENT='BP'>";
    for (const WrittenSection& section : writtenSections())
        appendSection(xml, form, section);
    xml += "<SECTION-IV>";
    appendPacked(xml, sectionFourRows, EscapeXML(form.txtSectFourVal.text()));
    xml += "</SECTION-IV><SECTION-V>";
    appendPacked(xml, sectionFiveRows, EscapeXML(form.txtSecFiveVal.text()));
    xml += "</SECTION-V>";
    appendElement(xml, "DOCCHKLIST", EscapeXML(form.txtDocChkList.text()));
    xml += "<PAYMENTDETAIL>";
    appendPacked(xml, paymentRows, EscapeXML(form.txtPayDetail.text()));
    appendPacked(xml, secondScrutinyRows, proposal.secondScrutinyFees,
                 1);  // each value stands behind a "$$": the first piece is empty
    xml += "</PAYMENTDETAIL>";
    appendBlocks(xml, proposal, BlockPlace::BehindSections);
    xml += "<NTS>";
    appendBlocks(xml, proposal, BlockPlace::LandRecords);
    xml += "</NTS>";
    appendBlocks(xml, proposal, BlockPlace::BehindLandRecords);
    xml += "</INWARDINFO>";
    return xml;
}

}  // namespace plandesk
