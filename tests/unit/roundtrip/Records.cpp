#include "unit/roundtrip/Records.h"

#include "base/Numbers.h"

namespace plandesk::test {

namespace {

/// The columns of each table, and the other variables that have the same ones.
const std::vector<std::pair<std::string, std::string>> columnsOfTables = {
    {"rsExtract712 rsExtractPRC", "ExtNo,SurveyNo,HissaNo,DateOf712,FerFarNo,NoOfOwners ,CumulativeArea,NoOfPAHs"},
    {"rsOwner712 rsOwnerPRC", "ExtNo,OwnNo,Name,SingingStatus,Encumbrances,OwnerType"},
    {"rsPAH712 rsPAHPRC", "ExtNo,PAHNo,Name,PAHSing"},
    {"rsPlot712 rsPlotPRC", "SrNo,PlotDesciption,Plot Name,No of PRC"},
    {"rsOwnership rsOwnership712 rsOwnershipPRC", "ExtNo,Name,Area,DocStatus"},
    {"rsULCOrder", "ExtNo,Name,ULCOrderSelection,OrderNo,Details,Remarks"},
    {"rsSchemeGrid", "No,FLD1,FLD2,FLD3,ExtNo"},
    {"rsUS84Plots",
     "No,Village,Taluka,SrNo,TotalArea,ResrvType,ResArea,GreenBelt,RoadWideing,ResrvArea,NetDevArea,UnDevArea,"
     "OpenSpace,"
     "Recreational,areaRemained,Surplus,ExtNo"},
    {"rsULCOrderUS84",
     "CaseNo,ResultDate,AppName,AppAddress,NoOfPlots,TotalAreaUnderOwnerShip,AreaDeduction,GreenBelt,Surplus,Survey,"
     "ExtNo"},
    {"rsULCOrderUS20a1",
     "TypeOfScheme,AMGSubmitted,Details,i,ii,iii,iv,v,vi,vii,viii,ix,x,xi,xii,Condition,SpecDisc,ExtNo"},
    {"rsSchemeBuilt rsSchemeSold", "FLD1,FLD2,FLD3,FLD4,FLD5,FLD6,FLD7,ExtNo"},
    {"rsULCOrderUS22", "FLD1,FLD2,ExtNo"},
};

constexpr std::size_t revisedRows = 19;
constexpr std::size_t newRows = 15;

}  // namespace

Row& Table::add() {
    rows.emplace_back();
    return rows.back();
}

std::vector<Row*> Table::visible() {
    std::vector<Row*> seen;
    for (Row& row : rows)
        if (filter.first.empty() || (row.contains(filter.first) && row[filter.first] == filter.second))
            seen.push_back(&row);
    return seen;
}

std::vector<Row*> Table::withNumber(const std::string& extract) {
    std::vector<Row*> found;
    for (Row& row : rows)
        if (cell(row, "ExtNo") == extract)
            found.push_back(&row);
    return found;
}

std::string cell(const Row& row, const std::string& column) {
    const auto found = row.find(column);
    return found == row.end() ? "" : found->second;
}

int plotTotal(Table& plots) {
    int sum = 0;
    for (const Row* plot : plots.visible())
        sum += static_cast<int>(leadingNumber(cell(*plot, "No of PRC")));
    return sum;
}

Records::Records(const std::string& today)
    : today(today), naOrder{{"1", today}}, revised(revisedRows, Texts(3)), newCase(newRows) {
    for (const auto& [names, columns] : columnsOfTables)
        for (const std::string& name : pieces(names, " "))
            create(name);
}

void Records::create(const std::string& name) {
    for (const auto& [names, columns] : columnsOfTables)
        for (const std::string& known : pieces(names, " "))
            if (known == name)
                tables[name] = std::make_shared<Table>(Table{pieces(columns, ",")});
}

std::map<std::string, Texts> Records::contents() const {
    std::map<std::string, Texts> all;
    for (const auto& [name, table] : tables) {
        Texts& lines = all[name];
        for (const Row& row : table->rows) {
            Texts cells;
            for (const std::string& column : table->columns)
                cells.push_back(row.contains(column) ? row.at(column) : "(null)");
            lines.push_back(joined(cells, "|"));
        }
    }
    return all;
}

void Records::changePlots(Family& family, const std::string& text) {
    if (family.plotsBox == text)
        return;
    family.plotsBox = text;
    if (withoutBlanks(text).empty())
        return;
    const int number = toInteger16(withoutBlanks(text));
    Table& plots = table(family.plots);
    if (number > 0 || !family.is712)
        plots.filter = {};
    for (int i = 1; i <= number; ++i) {
        const std::string serial = std::to_string(i);
        Row* plot = nullptr;
        for (Row& row : plots.rows)
            if (cell(row, "SrNo") == serial)
                plot = &row;
        Row& changed = plot ? *plot : plots.add();
        changed["SrNo"] = serial;
        changed["PlotDesciption"] = "For Plot No : " + serial;
    }
    if (!family.is712)
        std::erase_if(plots.rows, [number](const Row& row) { return leadingNumber(cell(row, "SrNo")) > number; });
    family.totalBox = std::to_string(plotTotal(plots));
}

/// An extract form fills an empty table when it is loaded, and shows the first extract.
void Records::load(Family& family) {
    if (family.formLoaded)
        return;
    family.formLoaded = true;
    family.formCount = family.total;
    if (family.formCount == 0 || (family.is712 && table(family.plots).rows.empty()))
        return;
    const int listed = plotTotal(table(family.plots));
    Table& extracts = table(family.extracts);
    if (extracts.rows.empty()) {
        for (int number = 1; number <= family.formCount; ++number) {
            Row& row = extracts.add();
            row = {{"ExtNo", std::to_string(number)}, {"DateOf712", today}};
            for (const char* column : {"FerFarNo", "NoOfOwners ", "CumulativeArea", "NoOfPAHs"})
                row[column] = "0";
        }
    }
    if (listed > 0)
        extracts.filter = {"ExtNo", "1"};
}

void Records::saveExtracts(Family& family) {
    load(family);
    if (family.is712 && family.formCount == 0)
        return;
    Table& rows = table(family.extracts);
    // The block is built while the form shows an extract that there is.
    if (!rows.visible().empty()) {
        rows.filter = {};
        family.xml = extractBlock(*this, family);
    }
    buildOwnership();
    refer("rsOwnership712", "rsOwnership");
}

void Records::buildOwnership() {
    if (takeOver(extracts, 0) && takeOver(cards, static_cast<int>(leadingNumber(extracts.totalBox))))
        ownershipSaved = true;
}

bool Records::takeOver(const Family& family, int shift) {
    Table& rows = table(family.extracts);
    Table& ownership = table("rsOwnership");
    rows.filter = {};
    for (const Row& extract : rows.rows) {
        const int number = static_cast<int>(leadingNumber(cell(extract, "ExtNo")));
        const std::string global = std::to_string(number + shift);
        const std::vector<Row*> known = ownership.withNumber(global);
        Row& row = known.empty() ? ownership.add() : *known.front();
        if (known.empty())
            row["DocStatus"] = "0";
        row["ExtNo"] = global;
        Texts names;
        for (const Row* owner : table(family.owners).withNumber(std::to_string(number)))
            names.push_back(withoutBlanks(cell(*owner, "Name")));
        row["Name"] = joined(names, ",");
        row["Area"] = numberText(leadingNumber(cell(extract, "CumulativeArea")));
    }
    return !rows.rows.empty();
}

void Records::controllingDocumentClicked() {
    if (!ownershipSaved)
        return;
    if (ownershipCode == "1") {
        saveExtracts(extracts);
        refer("rsOwnership", "rsOwnership712");
    } else if (ownershipCode == "2") {
        create("rsOwnershipPRC");
        saveExtracts(cards);
        refer("rsOwnership", "rsOwnershipPRC");
    }
    for (const Row& row : table("rsOwnership").rows) {
        const std::vector<Row*> known = table("rsULCOrder").withNumber(cell(row, "ExtNo"));
        Row& order = known.empty() ? table("rsULCOrder").add() : *known.front();
        order["ExtNo"] = cell(row, "ExtNo");
        if (row.contains("Name"))
            order["Name"] = cell(row, "Name");
        else
            order.erase("Name");
    }
}

}  // namespace plandesk::test
