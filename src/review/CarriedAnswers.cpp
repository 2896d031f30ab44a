#include "review/CarriedAnswers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>

#include "base/Text.h"
#include "proposal/Grid.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"

namespace plandesk {

namespace {

constexpr std::array forms = std::to_array<CarriedForm>({
    {.name = "frmAnnexureA", .without = "txtReservationArea txtExistingTotalFloorArea txtProposedTotalFloorArea"},
    {.name = "AnnexureACont", .hidden = "txtRightWay txtAttachDoc"},
    {.name = "frmDocCheckList"},
    {.name = "frmDocCheckList1"},
    {.name = "frmPayDetail"},
    {.name = "frmNaOrder"},
    {.name = "frmPlotExtractRelation"},
    {.name = "frmMain712", .only = "txtRemark", .unloaded = &Proposal::remark712},
    {.name = "frmPRCEXT", .only = "txtRemark", .unloaded = &Proposal::remarkPRC},
    {.name = "frmScrutinyULC", .only = "optDocCtrlOwn(0)"},
    {.name = "frmDiscretionrevisedCase"},
    {.name = "frmDiscretionNewCase"},
});

constexpr std::array us84Boxes = std::to_array<std::string_view>(
    {"txtCaseNumber", "dtpResultDate", "txtApplicantName", "txtApplicantAddress", "txtNoOfPlotOwnedByApplicant",
     "txtTotAreaOwnerShip", "txtAreaDeduction", "txtGreenBelt", "txtSurplusArea", "txtSurveyNo", ""});
constexpr std::array us20a1Boxes = std::to_array<std::string_view>({
    "cmbSchemaType",
    "IsUlCUS84Submitted(1)",
    "txtDetails",
    "txtCommonScheme(0)",
    "txtCommonScheme(1)",
    "txtCommonScheme(2)",
    "txtCommonScheme(3)",
    "txtCommonScheme(4)",
    "txtCommonScheme(5)",
    "txtCommonScheme(6)",
    "txtCommonScheme(7)",
    "txtCommonScheme(8)",
    "txtCommonScheme(9)",
    "txtCommonScheme(10)",
    "txtCommonScheme(11)",
    "IsReservationCondition(1)",
    "txtSpeDisScheme",
    "",
});
constexpr std::array us22Boxes = std::to_array<std::string_view>({"txtAreaExistingStruct", "txtLandAppurantArea", ""});
static_assert(us84Boxes.size() == US84OrderColumn::count && us20a1Boxes.size() == US20a1OrderColumn::count &&
              us22Boxes.size() == US22OrderColumn::count);

template <class... Columns>
constexpr std::uint32_t columns(Columns... column) {
    return ((1U << static_cast<unsigned>(column)) | ...);
}

constexpr std::array tables = std::to_array<CarriedTable>({
    {.table = &Tables::rsPlot712,
     .form = "frmPlotExtractRelation",
     .grid = "dgd712ExtractRelation",
     .without = columns(PlotColumn::PlotDesciption)},
    {.table = &Tables::rsPlotPRC,
     .form = "frmPlotExtractRelation",
     .grid = "dgdPRCPlotRel",
     .without = columns(PlotColumn::PlotDesciption)},
    {.table = &Tables::rsExtract712, .form = "frmMain712", .grid = "dgdInfoOfExtract"},
    {.table = &Tables::rsOwner712,
     .form = "frmMain712",
     .grid = "dgdOwner",
     .byPlace = columns(OwnerColumn::OwnNo),
     .rowsMayBeBlank = true},
    {.table = &Tables::rsPAH712,
     .form = "frmMain712",
     .grid = "dgdPAH",
     .byPlace = columns(HolderColumn::PAHNo),
     .rowsMayBeBlank = true},
    // The grid of the property cards does not show the ferfar number.
    {.table = &Tables::rsExtractPRC,
     .form = "frmPRCEXT",
     .grid = "dgdInfoOfExtract",
     .without = columns(ExtractColumn::FerFarNo)},
    {.table = &Tables::rsOwnerPRC,
     .form = "frmPRCEXT",
     .grid = "dgdOwner",
     .byPlace = columns(OwnerColumn::OwnNo),
     .rowsMayBeBlank = true},
    {.table = &Tables::rsPAHPRC,
     .form = "frmPRCEXT",
     .grid = "dgdPAH",
     .byPlace = columns(HolderColumn::PAHNo),
     .rowsMayBeBlank = true},
    // Names and areas come from the extracts at each save.
    {.table = &Tables::rsOwnership,
     .form = "frmScrutinyULC",
     .grid = "dgdOwner",
     .without = columns(OwnershipColumn::Name, OwnershipColumn::Area),
     .firstIsNone = columns(OwnershipColumn::DocStatus),
     .rowsMayBeBlank = true},
    {.table = &Tables::rsULCOrder,
     .form = "frmScrutinyULC",
     .grid = "dgdULCOrderDetails",
     .without = columns(ULCOrderColumn::Name),
     .firstIsNone = columns(ULCOrderColumn::ULCOrderSelection),
     .rowsMayBeBlank = true},
    {.table = &Tables::rsULCOrderUS84, .form = "frmUS84", .boxes = us84Boxes, .rowsMayBeBlank = true},
    {.table = &Tables::rsUS84Plots,
     .form = "frmUS84",
     .grid = "dgdTableAB",
     .without = columns(US84PlotColumn::No),
     .rowsMayBeBlank = true},
    {.table = &Tables::rsULCOrderUS20a1,
     .form = "frmULC20aDetails",
     .boxes = us20a1Boxes,
     .firstIsNone = columns(US20a1OrderColumn::TypeOfScheme),
     .rowsMayBeBlank = true},
    {.table = &Tables::rsSchemeBuilt, .form = "frmULC20aDetails", .grid = "dgdSchemeDetails", .rowsMayBeBlank = true},
    {.table = &Tables::rsSchemeSold, .form = "frmULC20aDetails", .grid = "dgdSchemeDetails", .rowsMayBeBlank = true},
    {.table = &Tables::rsULCOrderUS22, .form = "frmUS22", .boxes = us22Boxes, .rowsMayBeBlank = true},
});

bool named(std::string_view keys, std::string_view key) {
    for (std::size_t at = keys.find(key); at != std::string_view::npos; at = keys.find(key, at + 1)) {
        const std::size_t end = at + key.size();
        if ((at == 0 || keys[at - 1] == ' ') && (end == keys.size() || keys[end] == ' '))
            return true;
    }
    return false;
}

/// A column of the scheme's figures is a row of the scheme's grid.
std::string headOfFigure(const Grid* grid, Tables::Member table, int column) {
    const int side = table == &Tables::rsSchemeBuilt ? SchemeGridColumn::FLD2 : SchemeGridColumn::FLD3;
    const std::string_view caption = grid && grid->table() ? trim(grid->column(side).caption) : "";
    return std::string(caption.empty() ? "Figures of the scheme" : caption) + ", row " + std::to_string(column + 1);
}

/// Head of the column that the grid shows, else its name in the table.
std::string headOf(const Proposal& proposal, const Control* control, const Answered& answered) {
    const CarriedTable& carried = tables.at(static_cast<std::size_t>(answered.table));
    const auto* grid = dynamic_cast<const Grid*>(control);
    if (carried.table == &Tables::rsSchemeBuilt || carried.table == &Tables::rsSchemeSold)
        return headOfFigure(grid, carried.table, answered.column);
    const std::string_view head = grid ? trim(grid->column(answered.column).caption) : "";
    const Recordset* table = (proposal.tables.*carried.table).get();
    if (!head.empty() || !table)
        return std::string(head);
    return std::string(trim(table->columns()[static_cast<std::size_t>(answered.column)].name));
}

}  // namespace

int Answered::number() const {
    int number = 0;
    std::from_chars(rowKey.data(), rowKey.data() + rowKey.size(), number);
    return number;
}

bool CarriedForm::carries(std::string_view key) const {
    return (only.empty() || named(only, key)) && !named(without, key);
}

std::string CarriedTable::text(const Recordset& rows, std::size_t column, const Value& value) const {
    const bool zeroIsNone = (firstIsNone >> column & 1U) || rows.columns()[column].kind != ColumnKind::Text;
    std::string text = valueText(value);
    if (meant(text).empty() || (zeroIsNone && (trim(text) == "0" || text == "False")))
        text.clear();
    return text;
}

bool CarriedTable::isNone(const Recordset& rows, std::span<const Value> row) const {
    const std::size_t key = keyColumnOf(rows);
    for (std::size_t column = 0; column < row.size() && rowsMayBeBlank; ++column)
        if (carries(column, key) && !numbers(column) && !isNull(row[column]) &&
            !trim(text(rows, column, row[column])).empty())
            return false;
    return rowsMayBeBlank;
}

std::span<const CarriedForm> carriedForms() {
    return forms;
}

std::span<const CarriedTable> carriedTables() {
    return tables;
}

std::size_t keyColumnOf(const Recordset& table) {
    const auto columns = table.columns();
    return static_cast<std::size_t>(std::ranges::find(columns, ColumnKind::Integer, &Column::kind) - columns.begin());
}

std::vector<RowKey> rowKeysOf(const Recordset& table) {
    const std::size_t key = keyColumnOf(table);
    std::vector<RowKey> keys;
    keys.reserve(static_cast<std::size_t>(table.rowCount()));
    std::map<std::int32_t, int> ofNumber;
    for (const std::span<const Value> row : table.allRows()) {
        const auto* number = key < row.size() ? std::get_if<std::int32_t>(&row[key]) : nullptr;
        const std::int32_t found = number ? *number : 0;
        keys.push_back({found, ++ofNumber.try_emplace(ofNumber.end(), found, 0)->second});
    }
    return keys;
}

std::string_view meant(std::string_view text) {
    const std::string_view trimmed = trim(text);
    return trimmed.starts_with("--") ? std::string_view() : trimmed;
}

std::string questionOf(const Proposal& proposal, const Answered& answered) {
    const Form* form = proposal.forms.loaded(answered.form);
    const Control* control = form ? form->findKey(answered.control) : nullptr;
    std::string words = answered.control;
    if (answered.isCell() && (!control || control->kind() == ControlKind::Grid))
        words = headOf(proposal, control, answered);
    else if (form)
        for (const Question& question : questionsOf(*form))
            if (std::ranges::find(question.controls, control) != question.controls.end())
                words = wordsOf(question);
    if (!answered.isCell())
        return words;
    const std::size_t slash = answered.rowKey.find('/');
    const std::string number = answered.rowKey.substr(0, slash);
    const std::string place = slash == std::string::npos ? "" : answered.rowKey.substr(slash + 1);
    return words + " (no. " + number + (place.empty() || place == "1" ? "" : ", row " + place) + ")";
}

Spot spotOf(const Answered& answered) {
    Spot spot{answered.row, answered.column, 0};
    if (!answered.isCell())
        return spot;
    const Tables::Member table = tables.at(static_cast<std::size_t>(answered.table)).table;
    if (table != &Tables::rsPlot712 && table != &Tables::rsPlotPRC)
        spot.extract = answered.number();
    if (table == &Tables::rsSchemeBuilt || table == &Tables::rsSchemeSold) {
        // A column of the figures is a row of the grid that shows them.
        spot.row = answered.column;
        spot.column = table == &Tables::rsSchemeBuilt ? SchemeGridColumn::FLD2 : SchemeGridColumn::FLD3;
    }
    return spot;
}

}  // namespace plandesk
