#include <functional>

#include "base/Date.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "unit/roundtrip/Records.h"

namespace plandesk::test {

namespace {

constexpr int schemePairs = 7;

const Element& child(const Element& parent, std::size_t number) {
    if (number >= parent.children.size())
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    return parent.children[number];
}

bool named(const Element& element, const std::string& name) {
    return inCapitals(element.name) == inCapitals(name);
}

const Element& required(const std::optional<Element>& root) {
    if (!root)
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    return *root;
}

std::string wholeNumber(const std::string& text) {
    return std::to_string(toInteger32(leadingNumber(text)));
}

std::string truth(const std::string& text) {
    const std::string word = inCapitals(text);
    const bool on = word == "TRUE" || (word != "FALSE" && toDouble(text) != 0);
    return on ? "True" : "False";
}

/// An assignment works out its value first: a cell whose value fails stays null.
class Reading {
public:
    Reading(Records& records, const std::optional<Element>& root) : records(records), root(root) {}

    std::vector<Message> run() {
        std::vector<Message> boxes;
        for (void (Reading::*procedure)() : {&Reading::plots, &Reading::extracts712, &Reading::extractsPRC,
                                             &Reading::naOrder, &Reading::orders, &Reading::discretion}) {
            try {
                (this->*procedure)();
            } catch (const RuntimeError& error) {
                boxes.push_back({" Particulars of Development (Read XML) ",
                                 std::to_string(error.number) + ":" + error.description, Icon::Critical});
            }
        }
        return boxes;
    }

private:
    void plots() {
        records.create("rsPlot712");
        for (const Element& block : required(root).children) {
            for (Family* family : {&records.extracts, &records.cards}) {
                if (!named(block, family->plotBlock))
                    continue;
                if (!family->is712)
                    records.create(family->plots);
                plotsOf(*family, pieces(block.text, "^#^"));
            }
        }
    }

    void plotsOf(Family& family, const Texts& parts) {
        if (parts.size() < 2)
            return;
        records.changePlots(family, parts[0]);
        family.totalBox = parts[1];
        try {
            family.total = toInteger16(parts[1]);
        } catch (const RuntimeError&) {
            family.total = 0;  // as after a start
        }
        const int count = toInteger16(parts[0]);
        const Texts list = pieces(orNothing(parts, 2), "@->");
        Table& table = records.table(family.plots);
        for (int i = 1; i <= count; ++i) {
            const std::string entry = orNothing(list, static_cast<std::size_t>(i) - 1);
            Texts plot = pieces(entry, "$-$");
            if (plot.size() != 3)
                plot = pieces(entry, "-");
            const std::string name = at(plot, 1);
            const std::string extracts = at(plot, 2);
            table.filter = {"SrNo", std::to_string(i)};
            Row& row = table.visible().empty() ? table.add() : *table.visible().front();
            row["SrNo"] = std::to_string(i);
            row["PlotDesciption"] = "For Plot No : " + std::to_string(i);
            row["Plot Name"] = name;
            row["No of PRC"] = std::to_string(toInteger16(extracts));
            table.filter = {};
        }
    }

    /// Each block of that name among the land records.
    void landRecords(const std::string& name, const std::function<void(const Element&)>& read) {
        for (const Element& section : required(root).children)
            if (named(section, "NTS"))
                for (const Element& block : section.children)
                    if (named(block, name))
                        read(block);
    }

    void extracts712() {
        landRecords("a712Extract", [this](const Element& block) {
            if (block.children.size() > 1)
                extractsOf(records.extracts, block);
        });
    }
    void extractsPRC() {
        landRecords("PRC", [this](const Element& block) { extractsOf(records.cards, block); });
    }

    void extractsOf(Family& family, const Element& block) {
        int count = 0;
        for (const Row& plot : records.table(family.plots).rows)
            count += static_cast<int>(leadingNumber(cell(plot, "No of PRC")));
        if (count <= 0)
            return;
        family.remark = child(block, static_cast<std::size_t>(count) + 1).text;
        for (int i = 1; i <= count; ++i) {
            const Element& extract = child(block, static_cast<std::size_t>(i));
            if (named(extract, (family.is712 ? "EXTRACT" : "PRC") + std::to_string(i)))
                extractOf(family, extract, std::to_string(i));
        }
    }

    void extractOf(const Family& family, const Element& extract, const std::string& number) {
        const Texts statics = pieces(child(extract, 0).text, "#");
        const std::size_t owners = family.is712 ? 4 : 3;  // without the ferfar number one less
        Row& row = records.table(family.extracts).add();
        row["ExtNo"] = number;
        row["SurveyNo"] = at(statics, 0);
        row["HissaNo"] = at(statics, 1);
        const std::string date = at(statics, 2);
        row["DateOf712"] = family.is712 && withoutBlanks(date).empty() ? records.today : toDate(date).text();
        row["FerFarNo"] = at(statics, 3);
        row["NoOfOwners "] = wholeNumber(at(statics, owners));
        row["CumulativeArea"] = numberText(leadingNumber(at(statics, owners + 1)));
        row["NoOfPAHs"] = wholeNumber(at(statics, owners + 2));
        const int listed = toInteger32(leadingNumber(child(extract, 1).text));
        for (int j = 1; j <= listed; ++j) {
            const Element& owner = child(extract, static_cast<std::size_t>(j) + 1);
            if (named(owner, "OWNER" + std::to_string(j)))
                ownerOf(family, pieces(owner.text, "#"), number, j);
        }
        const double before = leadingNumber(at(statics, owners)) + 2;
        const int holders = toInteger32(leadingNumber(at(statics, owners + 2)));
        for (int k = 1; k <= holders; ++k) {
            const Element& holder = child(extract, static_cast<std::size_t>(toInteger32(before + k)));
            if (named(holder, "PAH" + std::to_string(k)))
                holderOf(family, pieces(holder.text, "#"), number, k);
        }
    }

    void ownerOf(const Family& family, const Texts& parts, const std::string& extract, int number) {
        Row& row = records.table(family.owners).add();
        row["ExtNo"] = extract;
        row["OwnNo"] = std::to_string(number);
        row["Name"] = at(parts, 0);
        const std::string status = inCapitals(at(parts, 1));
        if (status == "SIGN")
            row["SingingStatus"] = "Signed";
        else if (status == "PAH")
            row["SingingStatus"] = "PAH Given";
        std::string code = at(parts, 2);
        if (family.is712 && withoutBlanks(code).empty())
            code = "0";
        const int encumbrance = toInteger16(code);
        row["Encumbrances"] =
            encumbrance < 1 || encumbrance > 9 ? "----------- Select----------" : encumbranceNames[encumbrance - 1];
        if (!family.is712)
            row["OwnerType"] = at(parts, 3);
    }

    void holderOf(const Family& family, const Texts& parts, const std::string& extract, int number) {
        Row& row = records.table(family.holders).add();
        row["ExtNo"] = extract;
        row["PAHNo"] = std::to_string(number);
        row["Name"] = at(parts, 0);
        row["PAHSing"] = truth(at(parts, 1));
    }

    void naOrder() {
        landRecords("NAOrder", [this](const Element& block) {
            for (std::size_t i = 0; i < 7; ++i) {
                const std::string text = child(block, i).text;
                records.naOrder[std::to_string(i)] = i == 1 ? toDate(text).text() : text;
            }
        });
    }

    void createOrders() {
        for (const char* name : {"rsOwnership712", "rsULCOrder", "rsUS84Plots", "rsULCOrderUS84", "rsULCOrderUS20a1",
                                 "rsSchemeBuilt", "rsSchemeSold"})
            records.create(name);
    }

    void orders() {
        createOrders();
        landRecords("ULCORDER-SCRUTINY", [this](const Element& block) {
            std::string code;
            if (named(child(block, 0), "DOCCONTROLLINGOWNERSHIP"))
                code = withoutBlanks(child(block, 0).text);
            int count = 0;
            if (named(child(block, 1), "NOOFEXTRACT"))
                count = toInteger32(leadingNumber(child(block, 1).text));
            createOrders();
            for (int i = 1; i <= count; ++i)
                orderOf(child(block, static_cast<std::size_t>(i) + 1), std::to_string(i));
            records.refer("rsOwnership", "rsOwnership712");
            records.ownershipSaved = true;
            if (code == "1" || code == "2") {
                records.ownershipCode = code;
                records.controllingDocumentClicked();
            }
        });
    }

    /// The parts into those columns, in their order, each when it is reached.
    static void fill(Row& row, const std::string& columns, const Texts& parts, std::size_t first = 0) {
        for (const std::string& column : pieces(columns, " ")) {
            row[column] = at(parts, first++);
        }
    }

    void orderOf(const Element& extract, const std::string& number) {
        const Texts division = pieces(child(extract, 0).text, "#");
        Row& ownership = records.table("rsOwnership712").add();
        ownership["ExtNo"] = number;
        ownership["Name"] = at(division, 0);
        if (const std::string area = at(division, 1); isNumeric(area))
            ownership["Area"] = numberText(toDouble(area));
        ownership["DocStatus"] = at(division, 2);

        Texts parts = pieces(child(extract, 1).text, "#");
        Row& order = records.table("rsULCOrder").add();
        order["ExtNo"] = number;
        fill(order, "Name ULCOrderSelection OrderNo Remarks", parts);

        const auto orElse = [](const std::string& text, const std::string& mask) {
            return pieces(withoutBlanks(text).empty() ? mask : text, "#");
        };
        const std::string plotCount = child(extract, 3).text;
        parts = orElse(child(extract, 2).text, "#########");
        Row& us84 = records.table("rsULCOrderUS84").add();
        fill(us84, "CaseNo ResultDate AppName AppAddress", parts);
        us84["NoOfPlots"] = plotCount;
        fill(us84, "TotalAreaUnderOwnerShip AreaDeduction GreenBelt Surplus Survey", parts, 4);
        us84["ExtNo"] = number;

        const int plots = toInteger32(leadingNumber(plotCount));
        for (int k = 1; k <= plots; ++k) {
            parts = pieces(child(extract, static_cast<std::size_t>(3 + k)).text, "#");
            Row& plot = records.table("rsUS84Plots").add();
            plot["No"] = std::to_string(k);
            fill(plot,
                 "Village Taluka SrNo TotalArea ResrvType ResArea GreenBelt RoadWideing ResrvArea NetDevArea UnDevArea "
                 "OpenSpace Recreational areaRemained Surplus",
                 parts);
            plot["ExtNo"] = number;
        }
        schemeOf(orElse(child(extract, static_cast<std::size_t>(4 + plots)).text, "#################^#^#^#^#^#^#^"),
                 number);
        parts = pieces(child(extract, static_cast<std::size_t>(5 + plots)).text, "#");
        Row& us22 = records.table("rsULCOrderUS22").add();
        fill(us22, "FLD1 FLD2", parts);
        us22["ExtNo"] = number;
    }

    void schemeOf(const Texts& parts, const std::string& number) {
        Row& order = records.table("rsULCOrderUS20a1").add();
        fill(order, "TypeOfScheme AMGSubmitted Details i ii iii iv v vi vii viii ix x xi xii Condition SpecDisc",
             parts);
        order["ExtNo"] = number;
        for (const std::size_t side : {0, 1}) {
            Row& figures = records.table(side == 0 ? "rsSchemeBuilt" : "rsSchemeSold").add();
            for (std::size_t pair = 0; pair < schemePairs; ++pair)
                figures["FLD" + std::to_string(pair + 1)] = at(pieces(at(parts, 17 + pair), "^"), side);
            figures["ExtNo"] = number;
        }
    }

    void discretion() {
        std::string rows;
        std::string remarks;
        for (const Element& block : required(root).children) {
            if (named(block, "DISC-REV"))
                for (const Element& row : block.children)
                    rows += row.text + "~";
            if (named(block, "DISC-NEW"))
                remarks = block.text;
        }
        const auto boxAt = []<class Box>(std::vector<Box>& boxes, std::size_t place) -> Box& {
            if (place >= boxes.size())
                throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
            return boxes[place];
        };
        if (withoutBlanks(rows).empty())
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        Texts list = pieces(rows, "~");
        list.pop_back();
        for (std::size_t i = 0; i < list.size(); ++i) {
            const Texts parts = pieces(list[i], "#");
            for (std::size_t box = 0; box < 3; ++box) {
                boxAt(records.revised, i)[box] = at(parts, box);
            }
        }
        if (withoutBlanks(remarks).empty())
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        const Texts texts = pieces(remarks, "#");
        for (std::size_t i = 0; i < texts.size(); ++i)
            boxAt(records.newCase, i) = texts[i];
    }

    Records& records;
    const std::optional<Element>& root;
};

}  // namespace

std::vector<Message> readBlocks(Records& records, const std::optional<Element>& root) {
    return Reading(records, root).run();
}

}  // namespace plandesk::test
