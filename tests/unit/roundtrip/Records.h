#pragma once

#include <deque>
#include <map>
#include <memory>
#include <utility>

#include "controls/Ports.h"
#include "unit/roundtrip/Texts.h"

namespace plandesk::test {

/// One row of an in-memory table: the cells that are not null, by their column, as texts.
using Row = std::map<std::string, std::string>;

/// An in-memory table with the one kind of filter that an opening leaves behind: a column equals a number.
struct Table {
    Texts columns;
    std::deque<Row> rows{};
    std::pair<std::string, std::string> filter{};

    Row& add();
    std::vector<Row*> visible();
    /// The rows with that number, whatever the filter, which is the same afterwards.
    std::vector<Row*> withNumber(const std::string& extract);
};

/// The text of a cell that may be null.
std::string cell(const Row& row, const std::string& column);

/// What the 7/12 extracts and the property cards each have.
struct Family {
    bool is712;
    std::string plotBlock;
    std::string plots, extracts, owners, holders;  ///< tables
    int total = 0;                                 ///< project-wide number of extracts
    std::string plotsBox{}, totalBox{};            ///< of the relation form
    std::string remark{};
    std::string xml{};
    bool formLoaded = false;
    int formCount = 0;  ///< that the extract form was loaded with
};

/// The land records, orders and discretion rows of an open proposal: tables, and what their forms and the project hold.
class Records {
public:
    explicit Records(const std::string& today);

    Table& table(const std::string& name) { return *tables.at(name); }
    void create(const std::string& name);
    /// Rows of every table, their cells in the order of the columns with "|" between, null told apart from empty.
    std::map<std::string, Texts> contents() const;

    std::string today;
    Family extracts{true, "PLOT-REL", "rsPlot712", "rsExtract712", "rsOwner712", "rsPAH712"};
    Family cards{false, "PLOT-PRCDETAILS", "rsPlotPRC", "rsExtractPRC", "rsOwnerPRC", "rsPAHPRC"};
    Row naOrder;
    std::string ownershipCode;  ///< of the controlling document: "1", "2" or nothing
    bool ownershipSaved = false;
    std::string ordersXML;
    std::vector<Texts> revised;  ///< the three boxes of each row
    Texts newCase;

    /// The number of plots was put into the box; its reaction runs.
    void changePlots(Family& family, const std::string& text);
    /// The save of an extract form, which loads it first.
    void saveExtracts(Family& family);
    /// The controlling document was clicked or the proposal is saved.
    void controllingDocumentClicked();
    /// The variable refers to the other's table from now on.
    void refer(const std::string& name, const std::string& other) { tables[name] = tables.at(other); }

private:
    void load(Family& family);
    void buildOwnership();
    bool takeOver(const Family& family, int shift);

    std::map<std::string, std::shared_ptr<Table>> tables;
};

/// The encumbrances by their number from 1, as they come back from a document.
inline const Texts encumbranceNames = {"BANK LOAN",        "KULACHE NAV",  "WAHIWAT",        "FAMILY MEMBER MORTGAGE",
                                       "FOR GOVT. MATTER", "FOR GOVT EWS", "LEASE PENDANCE", "WATAN",
                                       "EASEMENT"};

/// Sum of the plots' counts that are in sight.
int plotTotal(Table& plots);

/// What an opening makes of the blocks behind the sections; the boxes of failing procedures.
std::vector<Message> readBlocks(Records& records, const std::optional<Element>& root);
/// The forms build their blocks as a save asks them to; gives the document from the land records to its end.
/// RuntimeError when a form fails, which ends the save.
std::string writeBlocks(Records& records);

/// Element text of the extracts or cards. They stand in their order in the table.
std::string extractBlock(Records& records, const Family& family);

}  // namespace plandesk::test
