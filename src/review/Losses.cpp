#include "review/Losses.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "proposal/ExtractFamily.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"

namespace plandesk {

namespace {

/// A block of rows behind the sections: the forms whose tables it holds, and what ends its reading early.
struct RowBlock {
    std::string_view element;
    std::string_view forms;
    std::string_view earlier;  ///< why it was not built
    std::string_view end;      ///< why its reading ends
};
constexpr std::array rowBlocks = std::to_array<RowBlock>({
    {"a712Extract", "frmMain712", "The 7/12 extracts are not built while their form lists none",
     "has an owner type, which is written without a separator behind the encumbrance; reading ends there."},
    {"PRC", "frmPRCEXT", "The property cards are not built while none is listed", "has no date; reading ends there."},
    {"ULCORDER-SCRUTINY", "frmScrutinyULC frmUS84 frmULC20aDetails frmUS22",
     "The orders are not built while no ownership is listed, as with \"Property Card\" chosen",
     "has an order whose scheme was never opened; reading ends there, and without the ownership."},
});

bool holds(const RowBlock& block, std::string_view form) {
    return block.forms.find(form) != std::string_view::npos;
}

/// What never comes back as it was, whatever is typed: the document does not carry it, or the reader takes another.
struct Loss {
    std::string_view form;
    std::string_view control;  ///< key, or of a control array its name; empty: any
    std::string_view cause;
    int column = -1;  ///< of a cell; -1: any
};

constexpr std::string_view afterParent = "It is written after the answer to an earlier question that opens it alone.";
constexpr std::string_view afterStreets = "It is read after an answer to the question of two streets alone.";

constexpr std::array losses = std::to_array<Loss>({
    {"frmAnnexureA", "txtTikaNo", "Only the number that it begins with is read."},
    {"frmAnnexureA", "cboCaseType",
     "The office reads the case type from a code: two types share one, some have none, and without a major use of "
     "plot it is cleared."},
    {"frmAnnexureA", "cboProposalTyp", "Only the uses of its own list are read."},
    {"frmAnnexureA", "OptArch", "Without a choice the third kind is written."},
    {"frmAnnexureA", "txtAreaAllowed",
     "It is written after a Yes to the clearance alone, and worked out anew from plot and actual area when it is "
     "read."},
    {"frmAnnexureA", "Opt6Y", afterParent},
    {"frmAnnexureA", "Opt7Y", afterParent},
    {"frmAnnexureA", "Opt8Y", afterParent},
    {"frmAnnexureA", "Opt10Y", afterParent},
    {"frmAnnexureA", "Opt11Y", afterParent},
    {"frmAnnexureA", "Opt12Y", afterParent},
    {"frmAnnexureA", "Opt13Y", afterParent},
    {"frmAnnexureA", "Opt14Y", afterParent},
    {"frmAnnexureA", "Opt15Y", afterParent},
    {"frmAnnexureA", "Opt16Y", afterParent},
    {"frmAnnexureA", "Opt17Y", afterParent},
    {"frmAnnexureA", "Opt2Y", "A Yes is read only beside a plot area and an actual area that are numbers."},
    {"frmAnnexureA", "txtFstStreetWidth", afterStreets},
    {"frmAnnexureA", "txtFstExistingWidth", afterStreets},
    {"AnnexureACont", "Opt21Y", afterParent},
    {"AnnexureACont", "opt26Y", afterParent},
    {"AnnexureACont", "Opt28Y", afterParent},
    {"AnnexureACont", "Opt35Y", afterParent},
    {"AnnexureACont", "opt21bii", "Only its hidden digit is read."},
    {"frmAnnexureA", "txtWhyNot", "The answer to the question before it is read again and empties it."},
    {"AnnexureACont", "Opt30Y", "The answer of the question before it is written in its place."},
    {"AnnexureACont", "Opt23Y",
     "Its digit is written without a separator before the next one, and both are read as one."},
    {"AnnexureACont", "Opt24Y", "It is written after a No to the question before it alone."},
    {"AnnexureACont", "opt21bi", "Only its hidden digit is read."},
    {"AnnexureACont", "Opt31Y", "The question about accessory buildings is read behind it and clears it."},
    {"frmPayDetail", "txtScrutinyRArea2", "The fees of the second scrutiny stay as they were at the first save."},
    {"frmPayDetail", "",
     "Of a payment in cash, date, number, bank and branch are not read; a draft is read as a pay order, "
     "with the values behind the mode one place off."},
    {"frmDocCheckList1", "", "The rows of the conditional checklist are read into other rows of it."},
    {"frmDocCheckList", "", "Page 0 is read as no page, and the last row takes over the first conditional one."},
    {"frmMain712", "dgdInfoOfExtract", "An extract without a date is read with the day of the reading.",
     ExtractColumn::DateOf712},
    {"frmMain712", "dgdOwner", "The owner type is written without a separator behind the encumbrance.",
     OwnerColumn::OwnerType},
    {"frmMain712", "dgdOwner", "Encumbrances are read in upper case, and those that the list does not have as none.",
     OwnerColumn::Encumbrances},
    {"frmPRCEXT", "dgdOwner", "Encumbrances are read in upper case, and those that the list does not have as none.",
     OwnerColumn::Encumbrances},
    {"frmMain712", "dgdOwner", "A status that is neither \"Signed\" nor untouched is read as \"PAH Given\".",
     OwnerColumn::SingingStatus},
    {"frmPRCEXT", "dgdOwner", "A status that is neither \"Signed\" nor untouched is read as \"PAH Given\".",
     OwnerColumn::SingingStatus},
    {"frmPRCEXT", "txtRemark", "The remark of the 7/12 extracts is written for the property cards too."},
    {"frmScrutinyULC", "dgdULCOrderDetails", "The details column of the orders is not written.",
     ULCOrderColumn::Details},
    {"frmUS84", "txtNoOfPlotOwnedByApplicant", "The number of plots is that of the plots in the table."},
    {"frmMain712", "", "Extracts, owners and holders are read by their place and their counts."},
    {"frmPRCEXT", "", "Extracts, owners and holders are read by their place and their counts."},
    {"frmScrutinyULC", "", "Orders are read by their place among the extracts."},
    {"frmUS84", "", "Orders are read by the place of their extract."},
    {"frmULC20aDetails", "", "Orders are read by the place of their extract."},
    {"frmUS22", "", "Orders are read by the place of their extract."},
    {"frmPlotExtractRelation", "", "Plots are read by their place and their number."},
});

bool matches(const Loss& loss, const Answered& answered) {
    if (loss.form != answered.form || (loss.column >= 0 && loss.column != answered.column))
        return false;
    const std::string_view key = answered.control;
    return loss.control.empty() || key == loss.control ||
           (key.starts_with(loss.control) && key.substr(loss.control.size()).starts_with('('));
}

/// The lowest number of a row of the table for which `ends` holds.
template <class Ends>
std::int32_t firstEnd(const Tables& tables, Tables::Member table, std::int32_t never, const Ends& ends) {
    std::int32_t first = never;
    if (const Recordset* rows = (tables.*table).get()) {
        const std::size_t key = keyColumnOf(*rows);
        for (const std::span<const Value> row : rows->allRows())
            if (const auto* number = std::get_if<std::int32_t>(&row[key]);
                number && *number < first && ends(row, *number))
                first = *number;
    }
    return first;
}

double countOf(const Recordset* table, std::int32_t extract, int column) {
    const auto rows = table ? table->rowsOfKey(extract) : std::vector<std::span<const Value>>();
    return rows.empty() ? 0 : valueNumber(rows.front()[static_cast<std::size_t>(column)]);
}

double rowsOf(const Recordset* table, std::int32_t extract) {
    return table ? static_cast<double>(table->rowsOfKey(extract).size()) : 0;
}

std::string countsDiffer(std::string_view what, double said, double listed) {
    return "The number of " + std::string(what) + " is " + numberText(said) + ", and " + numberText(listed) +
           " are listed; they are read by the number.";
}

}  // namespace

Losses::Losses(const Proposal& proposal, const OfficeReading& reading) : proposal(proposal), reading(reading) {
    const Tables& tables = proposal.tables;
    ends[0] = firstEnd(tables, &Tables::rsOwner712, never, [](std::span<const Value> owner, std::int32_t) {
        const std::string type = valueText(owner[OwnerColumn::OwnerType]);
        return !meant(type).empty() && !isNumeric("1" + std::string(trim(type)));
    });
    ends[1] = firstEnd(tables, &Tables::rsExtractPRC, never, [](std::span<const Value> card, std::int32_t) {
        return isNull(card[ExtractColumn::DateOf712]);
    });
    ends[2] = firstEnd(tables, &Tables::rsULCOrderUS20a1, never, [&](std::span<const Value>, std::int32_t extract) {
        return rowsOf(tables.rsSchemeBuilt.get(), extract) == 0;
    });
}

/// A block that stands as it was left earlier, or is not there at all.
std::string Losses::causeOfBlock(const Answered& answered) const {
    if (answered.control == "txtRemark")
        return "";
    for (const RowBlock& block : rowBlocks) {
        if (!holds(block, answered.form))
            continue;
        const auto is = [&block](const DocumentBlock* each) { return each->element == block.element; };
        if (std::ranges::any_of(reading.earlier, is))
            return std::string(block.earlier) + "; the next file carries those that were saved earlier.";
        if (std::ranges::any_of(reading.absent, is))
            return std::string(block.earlier) + "; the next file has none.";
    }
    return "";
}

std::string Losses::causeOfEnd(const Difference& difference) const {
    const Answered& answered = difference.first;
    for (std::size_t block = 0; block < rowBlocks.size(); ++block) {
        const std::int32_t end = ends[block];
        if (end == never || !holds(rowBlocks[block], answered.form))
            continue;
        // The ownership that was read counts only once all orders were.
        const bool ownership = answered.form == "frmScrutinyULC" && answered.control != "dgdULCOrderDetails";
        const bool behind = answered.isCell() && answered.number() >= end && meant(difference.second).empty();
        if (ownership || behind)
            return "Extract " + std::to_string(end) + " " + std::string(rowBlocks[block].end);
    }
    return "";
}

/// Numbers that say something else than what is listed.
std::string Losses::causeOfCounts(const Difference& difference) const {
    const Answered& answered = difference.first;
    const Tables& tables = proposal.tables;
    const Form* relation = proposal.forms.loaded("frmPlotExtractRelation");
    for (const ExtractFamily* family : {&family712, &familyPRC}) {
        const std::string_view form = family->is712 ? "frmMain712" : "frmPRCEXT";
        const Recordset* plots = (tables.*family->plots).get();
        const std::string_view box = family->is712 ? "txtNoOfPlot712" : "txtNoOfPlot";
        const double said = relation ? leadingNumber(relation->at<TextBox>(box).text()) : 0;
        const double listed = plots ? plots->rowCount() : 0;
        const bool rows = answered.isCell() && answered.form == form;
        const bool cards = family->is712 && said > listed && answered.isCell() && answered.form == "frmPRCEXT";
        if (said != listed && (rows || cards || answered.form == "frmPlotExtractRelation"))
            return countsDiffer("plots", said, listed);
        if (answered.form != form || !answered.isCell())
            continue;
        double counted = 0;
        if (plots)
            for (const std::span<const Value> plot : plots->allRows())
                counted += valueNumber(plot[PlotColumn::NoOfPRC]);
        if (answered.number() > counted)
            return countsDiffer("extracts of all plots", counted,
                                (tables.*family->extracts) ? (tables.*family->extracts)->rowCount() : 0);
        if (answered.control != "dgdPAH")
            continue;
        const Recordset* extracts = (tables.*family->extracts).get();
        const std::int32_t extract = answered.number();
        const double owners = countOf(extracts, extract, ExtractColumn::NoOfOwners);
        if (const double there = rowsOf((tables.*family->owners).get(), extract); owners != there)
            return countsDiffer("owners", owners, there);
        const double holders = countOf(extracts, extract, ExtractColumn::NoOfPAHs);
        if (const double there = rowsOf((tables.*family->holders).get(), extract); holders != there)
            return countsDiffer("holders", holders, there);
    }
    return "";
}

std::string Losses::causeOf(const Difference& difference) const {
    for (const std::string& cause : {causeOfBlock(difference.first), causeOfEnd(difference), causeOfCounts(difference)})
        if (!cause.empty())
            return cause;
    const auto loss = std::ranges::find_if(losses, [&](const Loss& each) { return matches(each, difference.first); });
    return loss == losses.end() ? "" : std::string(loss->cause);
}

}  // namespace plandesk
