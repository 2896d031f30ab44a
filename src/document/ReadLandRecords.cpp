#include <cstdint>

#include "base/Numbers.h"
#include "document/BlockReaders.h"
#include "document/Pieces.h"
#include "document/XmlChildren.h"
#include "landrecords/Encumbrances.h"
#include "landrecords/frmNaOrder.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

/// Where the plots of a family come from and go.
struct PlotBlock {
    std::string_view element;
    const ExtractFamily& family;
    TextBox frmPlotExtractRelation::*plots;
    TextBox frmPlotExtractRelation::*total;
    Button frmPlotExtractRelation::*add;
};

constexpr PlotBlock plotBlocks[] = {
    {"PLOT-REL", family712, &frmPlotExtractRelation::txtNoOfPlot712, &frmPlotExtractRelation::txtNoOfExtract712,
     &frmPlotExtractRelation::cmdAddPlot},
    {"PLOT-PRCDETAILS", familyPRC, &frmPlotExtractRelation::txtNoOfPlot, &frmPlotExtractRelation::txtNoOfPrc,
     &frmPlotExtractRelation::cmdAddPlotPRC},
};

/// Where the extracts of a family come from, and by which rules. The pieces of `Static` are counted from 0.
struct ExtractBlock {
    std::string_view element;
    std::string_view extract;  ///< element of one extract, behind it its number
    const ExtractFamily& family;
    int ferFarNo;
    int noOfOwners;
    int cumulativeArea;
    int noOfPAHs;
    bool dateMayBeMissing;  ///< today's date then
    bool encumbranceMayBeBlank;
    bool readsOwnerType;
    std::size_t fewestChildren;
};

constexpr ExtractBlock block712 = {
    .element = "a712Extract",
    .extract = "EXTRACT",
    .family = family712,
    .ferFarNo = 3,
    .noOfOwners = 4,
    .cumulativeArea = 5,
    .noOfPAHs = 6,
    .dateMayBeMissing = true,
    .encumbranceMayBeBlank = true,
    .readsOwnerType = false,  // though it is written
    .fewestChildren = 2,
};

constexpr ExtractBlock blockPRC = {
    .element = "PRC",
    .extract = "PRC",
    .family = familyPRC,
    .ferFarNo = 3,  // the block is written without it, so the number of owners comes back here too
    .noOfOwners = 3,
    .cumulativeArea = 4,
    .noOfPAHs = 5,
    .dateMayBeMissing = false,
    .encumbranceMayBeBlank = false,
    .readsOwnerType = true,
    .fewestChildren = 0,
};

constexpr std::size_t mostPieces = 8;

std::string text(const Pieces& pieces, int number) {
    return std::string(at(pieces, static_cast<std::size_t>(number)));
}

double number(const Pieces& pieces, int number) {
    return leadingNumber(at(pieces, static_cast<std::size_t>(number)));
}

/// Name and count of one plot: behind its serial number, which is ignored. In the older form a hyphen in the name ends
/// it.
std::pair<std::string_view, std::string_view> plotPieces(std::string_view entry) {
    constexpr std::size_t whole = 3;
    Pieces pieces = firstPieces(entry, "$-$", whole + 1);
    if (pieces.size() != whole)
        pieces = firstPieces(entry, "-", whole);
    return {at(pieces, 1), at(pieces, 2)};
}

void readPlots(const PlotBlock& block, Proposal& proposal, std::string_view content) {
    const Pieces parts = firstPieces(content, "^#^", 3);
    if (parts.size() < 2)
        return;
    auto& form = proposal.forms.get<frmPlotExtractRelation>();
    (form.*block.plots).setText(parts[0]);
    (form.*block.total).setText(parts[1]);
    (form.*block.plots).setEnabled(false);
    (form.*block.add).setEnabled(true);
    try {
        proposal.*block.family.total = toInteger16(parts[1]);
    } catch (const RuntimeError&) {
        // A total that is no count leaves the earlier one.
    }
    const std::int16_t count = toInteger16(parts[0]);
    std::string_view rest = parts.size() > 2 ? parts[2] : std::string_view();
    Recordset& plots = proposal.tables.ensure(block.family.plots);
    for (std::int32_t i = 1; i <= count; ++i) {
        const auto [name, extracts] = plotPieces(piece(rest, "@->", 0));
        plots.setFilter("SrNo = " + std::to_string(i));
        if (plots.recordCount() == 0)
            plots.addNew();
        plots.set(PlotColumn::SrNo, i);
        plots.set(PlotColumn::PlotDesciption, "For Plot No : " + std::to_string(i));
        plots.set(PlotColumn::PlotName, std::string(name));
        plots.set(PlotColumn::NoOfPRC, static_cast<double>(toInteger16(extracts)));
        plots.update();
        plots.setFilter("");
        const std::size_t end = rest.find("@->");
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 3);
    }
    if (plots.recordCount() > 0)
        plots.setAbsolutePosition(plots.recordCount());  // the row read last is current, as in every table
}

double totalExtracts(Recordset& plots) {
    double sum = 0;
    for (const std::span<const Value> plot : plots.allRows())
        sum += valueNumber(plot[PlotColumn::NoOfPRC]);
    return sum;
}

/// Rows of one extract. The document's own numbers of owners and holders decide how many are read.
class ExtractReader {
public:
    ExtractReader(const ExtractBlock& block, Proposal& proposal, const XmlDocument& document)
        : block(block), proposal(proposal), document(document) {}

    void read(XmlDocument::Node element, std::int32_t extract) {
        const XmlChildren children(document, element);
        const Pieces statics = firstPieces(children.text(0), "#", mostPieces);
        readStatics(statics, extract);
        const int owners = toInteger32(leadingNumber(children.text(1)));
        for (int j = 1; j <= owners; ++j)
            if (children.named(static_cast<std::size_t>(j) + 1, "OWNER" + std::to_string(j)))
                readOwner(children.text(static_cast<std::size_t>(j) + 1), extract, j);
        const double before = number(statics, block.noOfOwners) + 2;
        const int holders = toInteger32(number(statics, block.noOfPAHs));
        for (int k = 1; k <= holders; ++k) {
            const auto place = static_cast<std::size_t>(toInteger32(before + k));
            if (children.named(place, "PAH" + std::to_string(k)))
                readHolder(children.text(place), extract, k);
        }
    }

private:
    void readStatics(const Pieces& statics, std::int32_t extract) {
        Recordset& row = proposal.tables.ensure(block.family.extracts);
        row.addNew();
        row.set(ExtractColumn::ExtNo, extract);
        row.set(ExtractColumn::SurveyNo, text(statics, 0));
        row.set(ExtractColumn::HissaNo, text(statics, 1));
        const std::string date = text(statics, 2);
        if (block.dateMayBeMissing && trim(date).empty())
            row.set(ExtractColumn::DateOf712, proposal.screen.ports.clock.today());
        else
            row.set(ExtractColumn::DateOf712, date);
        row.set(ExtractColumn::FerFarNo, text(statics, block.ferFarNo));
        row.set(ExtractColumn::NoOfOwners, number(statics, block.noOfOwners));
        row.set(ExtractColumn::CumulativeArea, number(statics, block.cumulativeArea));
        row.set(ExtractColumn::NoOfPAHs, number(statics, block.noOfPAHs));
        row.update();
    }

    void readOwner(std::string_view content, std::int32_t extract, int owner) {
        const Pieces pieces = firstPieces(content, "#", mostPieces);
        Recordset& row = proposal.tables.ensure(block.family.owners);
        row.addNew();
        row.set(OwnerColumn::ExtNo, extract);
        row.set(OwnerColumn::OwnNo, owner);
        row.set(OwnerColumn::Name, text(pieces, 0));
        if (const std::string_view status = at(pieces, 1); equalsIgnoringCase(status, "SIGN"))
            row.set(OwnerColumn::SingingStatus, "Signed");
        else if (equalsIgnoringCase(status, "PAH"))
            row.set(OwnerColumn::SingingStatus, "PAH Given");
        std::string_view code = at(pieces, 2);
        if (block.encumbranceMayBeBlank && trim(code).empty())
            code = "0";
        row.set(OwnerColumn::Encumbrances, encumbranceName(toInteger16(code)));
        if (block.readsOwnerType)
            row.set(OwnerColumn::OwnerType, text(pieces, 3));
        row.update();
    }

    void readHolder(std::string_view content, std::int32_t extract, int holder) {
        const Pieces pieces = firstPieces(content, "#", mostPieces);
        Recordset& row = proposal.tables.ensure(block.family.holders);
        row.addNew();
        row.set(HolderColumn::ExtNo, extract);
        row.set(HolderColumn::PAHNo, holder);
        row.set(HolderColumn::Name, text(pieces, 0));
        row.set(HolderColumn::PAHSing, text(pieces, 1));
        row.update();
    }

    const ExtractBlock& block;
    Proposal& proposal;
    const XmlDocument& document;
};

/// `NoOfExtract` of the block is not consulted: the plots say how many extracts there are.
void readExtracts(const ExtractBlock& block, Proposal& proposal, const XmlDocument& document,
                  const XmlChildren& children) {
    if (children.count() < block.fewestChildren)
        return;
    const std::int32_t count = toInteger32(totalExtracts(proposal.tables.ensure(block.family.plots)));
    if (count <= 0)
        return;
    proposal.*block.family.remark = children.text(static_cast<std::size_t>(count) + 1);
    ExtractReader reader(block, proposal, document);
    for (std::int32_t i = 1; i <= count; ++i) {
        const auto place = static_cast<std::size_t>(i);
        if (children.named(place, std::string(block.extract) + std::to_string(i)))
            reader.read(children.at(place), i);
    }
}

}  // namespace

void readPlotRelations(Proposal& proposal, const XmlDocument& document) {
    proposal.tables.create(family712.plots);  // those of the PRCs only where their block stands
    const XmlChildren children(document, requiredRoot(document));
    for (std::size_t child = 0; child < children.count(); ++child) {
        for (const PlotBlock& block : plotBlocks) {
            if (!children.named(child, block.element))
                continue;
            if (!block.family.is712)
                proposal.tables.create(block.family.plots);
            readPlots(block, proposal, children.text(child));
        }
    }
    proposal.forms.get<frmPlotExtractRelation>().dgd712ExtractRelationColSetting();
}

void readExtracts712(Proposal& proposal, const XmlDocument& document) {
    forEachLandRecord(document, block712.element,
                      [&](const XmlChildren& block) { readExtracts(block712, proposal, document, block); });
}

void readExtractsPRC(Proposal& proposal, const XmlDocument& document) {
    forEachLandRecord(document, blockPRC.element,
                      [&](const XmlChildren& block) { readExtracts(blockPRC, proposal, document, block); });
}

void readNAOrder(Proposal& proposal, const XmlDocument& document) {
    forEachLandRecord(document, "NAOrder", [&](const XmlChildren& block) {
        auto& form = proposal.forms.get<frmNaOrder>();
        form.txtNaOrderNo.setText(block.text(0));
        form.DTPicker1.setDate(toDate(block.text(1)));
        form.txtLandArea.setText(block.text(2));
        form.cmbAreaForNA.setText(block.text(3));
        form.txtArea1.setText(block.text(4));
        form.txtArea2.setText(block.text(5));
        form.txtNARemark.setText(block.text(6));
    });
}

}  // namespace plandesk
