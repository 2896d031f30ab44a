#include "document/LandRecordBlocks.h"

#include <array>
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
#include "proposal/LandRecordColumns.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

using Text = std::string;

using Row = std::span<const Value>;

void appendStatus(Text& xml, const Value& status) {
    const auto* text = std::get_if<Text>(&status);
    // "---- Select ----" of the list is not the untouched default, and so is written as "PAH".
    if (text && trim(*text) != trim(noStatus))
        xml += *text == "Signed" ? "Sign" : "PAH";
}

void appendEncumbrance(Text& xml, const Value& encumbrance) {
    appendNumber(xml, encumbranceCode(trimmedText(encumbrance)));
}

std::string_view typeOf(const Value& cell) {
    const std::string_view type = trimmedText(cell);
    return type == trim(noOwnerType) ? std::string_view() : type;
}

void appendEscapedType(Text& xml, const Value& type) {
    appendEscapedText(xml, typeOf(type));
}

void appendType(Text& xml, const Value& type) {
    xml += typeOf(type);
}

void appendSign(Text& xml, const Value& sign) {
    xml += valueNumber(sign) != 0 ? '1' : '0';
}

constexpr auto statics712 = piecesOf(
    appendEscaped, {ExtractColumn::SurveyNo, ExtractColumn::HissaNo, ExtractColumn::DateOf712, ExtractColumn::FerFarNo,
                    ExtractColumn::NoOfOwners, ExtractColumn::CumulativeArea, ExtractColumn::NoOfPAHs});
constexpr auto staticsPRC = piecesOf(  // without FerFarNo
    appendTrimmed, {ExtractColumn::SurveyNo, ExtractColumn::HissaNo, ExtractColumn::DateOf712,
                    ExtractColumn::NoOfOwners, ExtractColumn::CumulativeArea, ExtractColumn::NoOfPAHs});

constexpr JoinedPiece owner712[] = {
    {OwnerColumn::Name, appendEscaped},
    {OwnerColumn::SingingStatus, appendStatus},
    {OwnerColumn::Encumbrances, appendEncumbrance},
    {OwnerColumn::OwnerType, appendEscapedType, true},  // glued: the reader expects three pieces
};
constexpr JoinedPiece ownerPRC[] = {
    {OwnerColumn::Name, appendEscaped},
    {OwnerColumn::SingingStatus, appendStatus},
    {OwnerColumn::Encumbrances, appendEncumbrance},
    {OwnerColumn::OwnerType, appendType},
};
constexpr JoinedPiece holder[] = {
    {HolderColumn::Name, appendTrimmed},
    {HolderColumn::PAHSing, appendSign},
};

constexpr std::array blocks = std::to_array<WrittenExtracts>({
    {.element = "a712Extract",
     .count = "NoOfExtract",
     .extract = "Extract",
     .remark = "Remark712",
     .form = form712,
     .statics = {"Static", &Tables::rsExtract712, statics712},
     .members = {{{"NoOfOwner", {"OWNER", &Tables::rsOwner712, owner712}},
                  {"NoOfPAH", {"PAH", &Tables::rsPAH712, holder}}}}},
    {.element = "PRC",
     .count = "NoOfPRC",
     .extract = "PRC",
     .remark = "RemarkPRC",
     .form = formPRC,
     .statics = {"Static", &Tables::rsExtractPRC, staticsPRC},
     .members = {{{"NoOfOwner", {"OWNER", &Tables::rsOwnerPRC, ownerPRC}},
                  {"NoOfPAH", {"PAH", &Tables::rsPAHPRC, holder}}}}},
});
constexpr const WrittenExtracts& block712 = blocks[0];
constexpr const WrittenExtracts& blockPRC = blocks[1];

/// RuntimeError 3001 for a row without one.
std::int32_t extractNumber(Row extract) {
    if (const auto* number = std::get_if<std::int32_t>(&extract[ExtractColumn::ExtNo]))
        return *number;
    throw RuntimeError(ErrorNumber::ArgumentsOfWrongType);
}

void appendExtract(Text& xml, const WrittenExtracts& block, Proposal& proposal, Recordset& extracts) {
    const int place = extracts.absolutePosition();
    const Row extract = extracts.row();
    const std::int32_t number = extractNumber(extract);
    openNumbered(xml, block.extract, place);
    xml.append("<").append(block.statics.element).append(">");
    appendJoined(xml, block.statics.pieces, extract);
    xml.append("</").append(block.statics.element).append(">");
    for (const auto& [count, each] : block.members) {
        const std::vector<Row> rows = proposal.tables.ensure(each.table).rowsOfKey(number);
        appendElement(xml, count, std::to_string(rows.size()));
        int next = 0;
        for (const Row row : rows) {
            openNumbered(xml, each.element, ++next);
            appendJoined(xml, each.pieces, row);
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

void build(const WrittenExtracts& block, Proposal& proposal) {
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
        for (const auto& [count, each] : block.members)
            leaveFiltered(proposal.tables.ensure(each.table), number);
    }
    const Text closing = remark(proposal);
    appendElement(xml, block.remark, EscapeXML(block.form.family.is712 ? trim(closing) : closing));
    xml.append("</").append(block.element).append(">");
    proposal.*block.form.family.extractList = std::move(xml);
    proposal.isSavingLandRecord = false;
}

}  // namespace

std::span<const WrittenExtracts> writtenExtracts() {
    return blocks;
}

void buildExtractBlock(Proposal& proposal) {
    build(block712, proposal);
}

void buildPRCBlock(Proposal& proposal) {
    build(blockPRC, proposal);
}

}  // namespace plandesk
