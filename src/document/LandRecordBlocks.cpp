#include "document/LandRecordBlocks.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "document/BlockText.h"
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

using Row = std::span<const Value>;

void appendStatics(Text& xml, const Block& block, Row extract) {
    xml += "<Static>";
    for (const int column : block.statics) {
        if (column != block.statics.front())
            xml += '#';
        const auto append = block.form.family.is712 ? appendEscaped : appendTrimmed;
        append(xml, extract[static_cast<std::size_t>(column)]);
    }
    xml += "</Static>";
}

std::string_view statusWord(const Value& status) {
    const auto* text = std::get_if<Text>(&status);
    // "---- Select ----" of the list is not the untouched default, and so is written as "PAH".
    return !text || trim(*text) == trim(noStatus) ? "" : *text == "Signed" ? "Sign" : "PAH";
}

void appendOwner(Text& xml, const Block& block, Row owner) {
    appendEscaped(xml, owner[OwnerColumn::Name]);
    xml.append("#").append(statusWord(owner[OwnerColumn::SingingStatus])).append("#");
    appendNumber(xml, encumbranceCode(trimmedText(owner[OwnerColumn::Encumbrances])));
    std::string_view type = trimmedText(owner[OwnerColumn::OwnerType]);
    if (type == trim(noOwnerType))
        type = {};
    // The 7/12 block has no "#" before the type: its reader expects three pieces.
    if (block.form.family.is712)
        appendEscapedText(xml, type);
    else
        xml.append("#").append(type);
}

void appendHolder(Text& xml, const Block& /*block*/, Row holder) {
    appendTrimmed(xml, holder[HolderColumn::Name]);
    xml += valueNumber(holder[HolderColumn::PAHSing]) != 0 ? "#1" : "#0";
}

/// What an extract has several of: an element with their number, then a numbered one for each.
struct Members {
    Tables::Member ExtractFamily::*table;
    std::string_view count;
    std::string_view element;
    void (*append)(Text& xml, const Block& block, Row row);
};

constexpr Members members[] = {
    {&ExtractFamily::owners, "NoOfOwner", "OWNER", appendOwner},
    {&ExtractFamily::holders, "NoOfPAH", "PAH", appendHolder},
};

Recordset& tableOf(const Members& each, const Block& block, Proposal& proposal) {
    return proposal.tables.ensure(block.form.family.*each.table);
}

/// RuntimeError 3001 for a row without one.
std::int32_t extractNumber(Row extract) {
    if (const auto* number = std::get_if<std::int32_t>(&extract[ExtractColumn::ExtNo]))
        return *number;
    throw RuntimeError(ErrorNumber::ArgumentsOfWrongType);
}

void appendExtract(Text& xml, const Block& block, Proposal& proposal, Recordset& extracts) {
    const int place = extracts.absolutePosition();
    const Row extract = extracts.row();
    const std::int32_t number = extractNumber(extract);
    openNumbered(xml, block.extract, place);
    appendStatics(xml, block, extract);
    for (const Members& each : members) {
        const std::vector<Row> rows = tableOf(each, block, proposal).rowsOfKey(number);
        appendElement(xml, each.count, std::to_string(rows.size()));
        int next = 0;
        for (const Row row : rows) {
            openNumbered(xml, each.element, ++next);
            each.append(xml, block, row);
            closeNumbered(xml, each.element, next);
        }
    }
    closeNumbered(xml, block.extract, place);
}

/// The members are looked up without a filter, but the last extract's stays on their table, behind its last row.
void leaveFiltered(Recordset& table, std::int32_t extract) {
    table.setFilter("ExtNo = " + std::to_string(extract));
    while (!table.eof())
        table.moveNext();
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
    xml.reserve((proposal.*block.form.family.extractList).size());
    extracts.setFilter("");
    extracts.moveFirst();
    xml.append("<").append(block.element).append(">");
    appendElement(xml, block.count,
                  block.form.family.is712 ? proposal.forms.get<frmPlotExtractRelation>().txtNoOfExtract712.text()
                                          : std::to_string(extracts.recordCount()));
    {
        ProgressOf progress(proposal.screen.ports.progress, block.form.head, extracts.recordCount());
        std::int32_t number = 0;
        for (; !extracts.eof(); extracts.moveNext()) {
            number = extractNumber(extracts.row());
            appendExtract(xml, block, proposal, extracts);
            progress.step();
        }
        for (const Members& each : members)
            leaveFiltered(tableOf(each, block, proposal), number);
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
