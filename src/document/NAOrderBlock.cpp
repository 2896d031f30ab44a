#include <array>

#include "document/LandRecordBlocks.h"
#include "landrecords/frmNaOrder.h"
#include "proposal/Element.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

constexpr std::array rows = std::to_array<PackedRow>({
    {"OrderNo", "txtNaOrderNo"},
    {"OrderDate", "DTPicker1"},
    {"LandArea", "txtLandArea", asTyped},
    {"AreaForNAOrder", "cmbAreaForNA"},
    {"TxtArea1", "txtArea1"},
    {"TxtArea2", "txtArea2"},
    {"Remark", "txtNARemark", asTyped},
});

}  // namespace

std::span<const PackedRow> naOrderRows() {
    return rows;
}

void buildNAOrder(Proposal& proposal) {
    const auto& form = proposal.forms.get<frmNaOrder>();
    std::string& xml = proposal.naOrderXML;
    xml = "<NAOrder>";
    for (const PackedRow& row : rows)
        appendElement(xml, row.element, packedValue(form, row));
    xml += "</NAOrder>";
}

}  // namespace plandesk
