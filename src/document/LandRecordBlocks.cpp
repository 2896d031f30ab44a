#include "document/LandRecordBlocks.h"

#include <span>
#include <string>
#include <string_view>

#include "base/Text.h"
#include "controls/Controls.h"
#include "landrecords/Encumbrances.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/ExtractFormKind.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "proposal/Element.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

using Text = std::string;

/// What the two blocks do not share.
struct Block {
    std::string_view element;
    std::string_view count;
    std::string_view extract;  ///< element of one extract, numbered
    std::string_view remark;
    const ExtractFormKind& form;
    std::span<const int> statics;  ///< columns of the extract that `Static` holds
};

constexpr int statics712[] = {ExtractColumn::SurveyNo, ExtractColumn::HissaNo,    ExtractColumn::DateOf712,
                              ExtractColumn::FerFarNo, ExtractColumn::NoOfOwners, ExtractColumn::CumulativeArea,
                              ExtractColumn::NoOfPAHs};
constexpr int staticsPRC[] = {  // without FerFarNo
    ExtractColumn::SurveyNo,   ExtractColumn::HissaNo,        ExtractColumn::DateOf712,
    ExtractColumn::NoOfOwners, ExtractColumn::CumulativeArea, ExtractColumn::NoOfPAHs};

constexpr Block block712 = {
    .element = "a712Extract",
    .count = "NoOfExtract",
    .extract = "Extract",
    .remark = "Remark712",
    .form = form712,
    .statics = statics712,
};

constexpr Block blockPRC = {
    .element = "PRC",
    .count = "NoOfPRC",
    .extract = "PRC",
    .remark = "RemarkPRC",
    .form = formPRC,
    .statics = staticsPRC,
};

Text trimmed(Recordset& table, int column) {
    return Text(trim(valueText(table.get(column))));
}

Text statics(const Block& block, Recordset& extracts) {
    Text text;
    for (const int column : block.statics) {
        if (column != block.statics.front())
            text += "#";
        const Text value = trimmed(extracts, column);
        text += block.form.family.is712 ? EscapeXML(value) : value;
    }
    return text;
}

std::string_view statusWord(const Value& status) {
    if (isNull(status))
        return "";
    const Text text = valueText(status);
    // "---- Select ----" of the list is not the untouched default, and so is written as "PAH".
    return trim(text) == trim(noStatus) ? "" : text == "Signed" ? "Sign" : "PAH";
}

Text owner(const Block& block, Recordset& owners) {
    Text text = EscapeXML(trimmed(owners, OwnerColumn::Name)) + "#";
    text.append(statusWord(owners.get(OwnerColumn::SingingStatus))).append("#");
    text += std::to_string(encumbranceCode(trimmed(owners, OwnerColumn::Encumbrances)));
    Text type = trimmed(owners, OwnerColumn::OwnerType);
    if (type == trim(noOwnerType))
        type.clear();
    // The 7/12 block has no "#" before the type: its reader expects three pieces.
    return text + (block.form.family.is712 ? EscapeXML(type) : "#" + type);
}

Text holder(Recordset& holders) {
    return trimmed(holders, HolderColumn::Name) + "#" +
           (valueNumber(holders.get(HolderColumn::PAHSing)) != 0 ? "1" : "0");
}

/// Number of the rows of one extract, then one numbered element for each.
template <class RowText>
void appendRows(Text& xml, Recordset& table, std::string_view key, std::string_view count, std::string_view element,
                RowText rowText) {
    table.setFilter("");
    table.setFilter(key);
    appendElement(xml, count, std::to_string(table.recordCount()));
    for (table.moveFirst(); !table.eof(); table.moveNext())
        appendElement(xml, Text(element) + std::to_string(table.absolutePosition()), rowText());
}

void appendExtract(Text& xml, const Block& block, Proposal& proposal, Recordset& extracts) {
    Recordset& owners = proposal.tables.ensure(block.form.family.owners);
    Recordset& holders = proposal.tables.ensure(block.form.family.holders);
    const Text element = Text(block.extract) + std::to_string(extracts.absolutePosition());
    const Text key = "ExtNo = " + valueText(extracts.get(ExtractColumn::ExtNo));
    xml.append("<").append(element).append(">");
    appendElement(xml, "Static", statics(block, extracts));
    appendRows(xml, owners, key, "NoOfOwner", "OWNER", [&] { return owner(block, owners); });
    appendRows(xml, holders, key, "NoOfPAH", "PAH", [&] { return holder(holders); });
    xml.append("</").append(element).append(">");
}

/// Both blocks end with the remark of the 7/12 form.
Text remark(Proposal& proposal) {
    Form* form = proposal.forms.loaded(frmMain712::formName);
    return form ? static_cast<frmMain712*>(form)->txtRemark.text() : proposal.remark712;
}

void build(const Block& block, Proposal& proposal) {
    Recordset& extracts = proposal.tables.ensure(block.form.family.extracts);
    if (extracts.recordCount() == 0)
        return;
    proposal.is712Current = block.form.family.is712;
    proposal.isSavingLandRecord = true;
    Text xml;
    extracts.setFilter("");
    extracts.moveFirst();
    xml.append("<").append(block.element).append(">");
    appendElement(xml, block.count,
                  block.form.family.is712 ? proposal.forms.get<frmPlotExtractRelation>().txtNoOfExtract712.text()
                                          : std::to_string(extracts.recordCount()));
    {
        ProgressOf progress(proposal.screen.ports.progress, block.form.head, extracts.recordCount());
        for (; !extracts.eof(); extracts.moveNext()) {
            appendExtract(xml, block, proposal, extracts);
            progress.step();
        }
    }
    const Text closing = remark(proposal);
    appendElement(xml, block.remark, EscapeXML(block.form.family.is712 ? trim(closing) : closing));
    xml.append("</").append(block.element).append(">");
    proposal.*block.form.family.extractList = std::move(xml);
    proposal.isSavingLandRecord = false;
}

}  // namespace

void buildExtractBlock(Proposal& proposal) {
    build(block712, proposal);
}

void buildPRCBlock(Proposal& proposal) {
    build(blockPRC, proposal);
}

}  // namespace plandesk
