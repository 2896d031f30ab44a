#include "base/Numbers.h"
#include "unit/roundtrip/Records.h"

namespace plandesk::test {

namespace {

std::string trimmed(const Row& row, const std::string& column) {
    return withoutBlanks(cell(row, column));
}

/// The trimmed values of those columns with "#" between.
std::string list(const Row& row, const std::string& columns, bool escape = false) {
    Texts values;
    for (const std::string& column : pieces(columns, ","))
        values.push_back(escape ? escaped(trimmed(row, column)) : trimmed(row, column));
    return joined(values, "#");
}

std::string ownerText(const Row& owner, bool is712) {
    const std::string status = cell(owner, "SingingStatus");
    std::string word = status == "Signed" ? "Sign" : "PAH";
    if (!owner.contains("SingingStatus") || withoutBlanks(status) == "-- Select --")
        word = "";
    std::string number = "0";
    for (std::size_t i = 0; i < encumbranceNames.size(); ++i)
        if (inCapitals(trimmed(owner, "Encumbrances")) == encumbranceNames[i])
            number = std::to_string(i + 1);
    std::string type = trimmed(owner, "OwnerType");
    if (type == "------ Select------")
        type = "";
    return escaped(trimmed(owner, "Name")) + "#" + word + "#" + number + (is712 ? escaped(type) : "#" + type);
}

std::string numbered(const std::string& name, std::size_t number, const std::string& content) {
    return element(name + std::to_string(number), content);
}

/// Count and rows of what belongs to an extract.
template <class Text>
std::string listed(const std::vector<Row*>& rows, const std::string& count, const std::string& name, const Text& text) {
    std::string all = element(count, std::to_string(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i)
        all += numbered(name, i + 1, text(*rows[i]));
    return all;
}

std::string naBlock(const Row& order) {
    return element("NAOrder", element("OrderNo", trimmed(order, "0")) + element("OrderDate", cell(order, "1")) +
                                  element("LandArea", cell(order, "2")) +
                                  element("AreaForNAOrder", trimmed(order, "3")) +
                                  element("TxtArea1", trimmed(order, "4")) + element("TxtArea2", trimmed(order, "5")) +
                                  element("Remark", cell(order, "6")));
}

/// The relation form is saved: empty boxes become 0, and the list of plots is left behind.
std::string savePlots(Records& records, Family& family) {
    if (withoutBlanks(family.totalBox).empty())
        family.totalBox = "0";
    if (withoutBlanks(family.plotsBox).empty())
        records.changePlots(family, "0");
    std::string list = family.plotsBox + "^#^" + family.totalBox + "^#^";
    family.total = toInteger16(family.totalBox);
    for (const Row* plot : records.table(family.plots).visible())
        list += cell(*plot, "SrNo") + "$-$" + trimmed(*plot, "Plot Name") + "$-$" +
                std::to_string(static_cast<int>(leadingNumber(cell(*plot, "No of PRC")))) + "@->";
    return list;
}

std::string schemeText(Records& records, const std::string& number) {
    const std::vector<Row*> orders = records.table("rsULCOrderUS20a1").withNumber(number);
    if (orders.empty())
        return "";
    std::string text = list(
        *orders.front(), "TypeOfScheme,AMGSubmitted,Details,i,ii,iii,iv,v,vi,vii,viii,ix,x,xi,xii,Condition,SpecDisc");
    text += "#";
    const std::vector<Row*> built = records.table("rsSchemeBuilt").withNumber(number);
    const std::vector<Row*> sold = records.table("rsSchemeSold").withNumber(number);
    Texts pairs;
    for (int pair = 1; pair <= 7 && !built.empty(); ++pair) {
        const std::string column = "FLD" + std::to_string(pair);
        pairs.push_back(trimmed(*built.front(), column) + "^" + (sold.empty() ? "" : trimmed(*sold.front(), column)));
    }
    return text + joined(pairs, "#");
}

std::string orderText(Records& records, const Row& ownership, const Row& order, std::size_t place) {
    const std::string number = cell(ownership, "ExtNo");
    const std::vector<Row*> us84 = records.table("rsULCOrderUS84").withNumber(number);
    const std::vector<Row*> us22 = records.table("rsULCOrderUS22").withNumber(number);
    const std::string name = "EXTRACT-" + std::to_string(place);
    const bool card = static_cast<int>(place) > records.extracts.total;
    const auto plotText = [](const Row& plot) {
        return list(plot,
                    "Village,Taluka,SrNo,TotalArea,ResrvType,ResArea,GreenBelt,RoadWideing,ResrvArea,NetDevArea,"
                    "UnDevArea,OpenSpace,Recreational,areaRemained,Surplus");
    };
    return "<" + name + " DOCTYPE = '" + (card ? "PRC" : "712") + "' >" +
           element("AREADIVISION", list(ownership, "Name,Area,DocStatus", true)) +
           element("ULCORDER", list(order, "Name,ULCOrderSelection,OrderNo,Remarks", true)) +
           element("ULC-US-84", us84.empty()
                                    ? ""
                                    : list(*us84.front(),
                                           "CaseNo,ResultDate,AppName,AppAddress,TotalAreaUnderOwnerShip,AreaDeduction,"
                                           "GreenBelt,Surplus,Survey")) +
           listed(records.table("rsUS84Plots").withNumber(number), "NO-OF-PLOT", "US-84-PLOT-", plotText) +
           element("ULC-US-20a1", schemeText(records, number)) +
           element("ULC-US-22", us22.empty() ? "#" : list(*us22.front(), "FLD1,FLD2")) + "</" + name + ">";
}

/// With a code of "2" only as many extracts are written as the table of the cards has rows.
std::string ordersBlock(Records& records) {
    const std::deque<Row>& ownership = records.table("rsOwnership").rows;
    const std::deque<Row>& orders = records.table("rsULCOrder").rows;
    const bool byCards = records.ownershipCode == "2";
    const std::size_t count = byCards ? records.table("rsOwnershipPRC").rows.size() : ownership.size();
    std::string text = element("DOCCONTROLLINGOWNERSHIP", records.ownershipCode);
    text += element("NOOFEXTRACT", std::to_string(count));
    for (std::size_t i = 0; i < ownership.size(); ++i)
        if (i < count)
            text += orderText(records, ownership[i], i < orders.size() ? orders[i] : Row(), i + 1);
    return element("ULCORDER-SCRUTINY", text);
}

}  // namespace

std::string extractBlock(Records& records, const Family& family) {
    const std::string columns = family.is712 ? "SurveyNo,HissaNo,DateOf712,FerFarNo,NoOfOwners ,CumulativeArea,NoOfPAHs"
                                             : "SurveyNo,HissaNo,DateOf712,NoOfOwners ,CumulativeArea,NoOfPAHs";
    const std::deque<Row>& rows = records.table(family.extracts).rows;
    std::string text =
        family.is712 ? element("NoOfExtract", family.totalBox) : element("NoOfPRC", std::to_string(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string number = cell(rows[i], "ExtNo");
        const std::string content =
            element("Static", list(rows[i], columns, family.is712)) +
            listed(records.table(family.owners).withNumber(number), "NoOfOwner", "OWNER",
                   [&](const Row& owner) { return ownerText(owner, family.is712); }) +
            listed(records.table(family.holders).withNumber(number), "NoOfPAH", "PAH", [](const Row& holder) {
                return trimmed(holder, "Name") + "#" + (cell(holder, "PAHSing") == "True" ? "1" : "0");
            });
        text += numbered(family.is712 ? "Extract" : "PRC", i + 1, content);
    }
    // Both end with the remark of the 7/12 extracts.
    const std::string& remark = records.extracts.remark;
    text += family.is712 ? element("Remark712", escaped(withoutBlanks(remark))) : element("RemarkPRC", escaped(remark));
    return element(family.is712 ? "a712Extract" : "PRC", text);
}

std::string writeBlocks(Records& records) {
    const std::string naOrder = naBlock(records.naOrder);
    const std::string plots712 = savePlots(records, records.extracts);
    const std::string plotsPRC = savePlots(records, records.cards);
    records.saveExtracts(records.extracts);
    records.saveExtracts(records.cards);
    records.controllingDocumentClicked();
    if (!records.table("rsOwnership").rows.empty())
        records.ordersXML = ordersBlock(records);
    std::string revised;
    for (std::size_t i = 0; i < records.revised.size(); ++i)
        revised += numbered("RULE-", i + 1, joined(records.revised[i], "#"));
    return element("NTS", records.extracts.xml + records.cards.xml + naOrder + records.ordersXML) +
           element("PLOT-REL", plots712) + element("PLOT-PRCDETAILS", plotsPRC) + element("DISC-REV", revised) +
           element("DISC-NEW", joined(records.newCase, "#")) + "</INWARDINFO>";
}

}  // namespace plandesk::test
