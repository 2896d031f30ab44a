#include <functional>

#include "base/Date.h"
#include "unit/roundtrip/Sections.h"

namespace plandesk::test {

namespace {

class Opening {
public:
    Opening(Forms& forms, const std::optional<Element>& root) : forms(forms), root(root) {}

    void run() {
        const Texts groups = pieces(flattened(), "||");
        const auto fieldsOf = [&](std::size_t group) { return pieces(orNothing(groups, group), "@"); };
        section("A ", sectionOne, fieldsOf(0));
        section("A ", sectionTwo, fieldsOf(1));
        section("A ", sectionThree, fieldsOf(2));
        section("C ", sectionFour, fieldsOf(3));
        section("C ", sectionFive, fieldsOf(4));
        checklists(groups);
        payment(fieldsOf(6));
        annexureB();
    }

private:
    void attempt(const std::function<void()>& statement) {
        try {
            statement();
        } catch (const RuntimeError& error) {
            forms.boxes.push_back({"Particular of Development (Read XML) ",
                                   std::to_string(error.number) + " : " + error.description, Icon::Critical});
        }
    }

    std::string flattened() const {
        std::string all;
        if (root) {
            for (const Element& child : root->children) {
                if (inCapitals(child.name) == "NTS")
                    continue;
                for (const Element& field : child.children)
                    all += replaced(field.text, "\\", "\\\\") + "@";
                all += "||";
            }
        }
        return all;
    }

    void section(const std::string& form, const std::string& rows, const Texts& fields) {
        for (const std::string& row : pieces(rows, "\n")) {
            const Texts columns = pieces(row, " ");
            const Texts place = pieces(columns[0], ".");
            attempt([&] {
                const auto field = [&](const Texts& where) {
                    const std::string whole = at(fields, std::stoul(where[0]));
                    return where.size() == 1 ? whole : at(pieces(whole, "#"), std::stoul(where[1]));
                };
                if (columns[1] == "allowed" && toDouble(field({"15", "1"})) != 1)
                    return;
                take(form, columns[1], columns[2], field(place));
            });
        }
    }

    void take(const std::string& form, const std::string& kind, const std::string& control, const std::string& text) {
        if (kind == "txt" || kind == "allowed") {
            forms.assign(form + control, text);
        } else if (kind == "reg") {
            forms.assign(form + control, replaced(text, "\\\\", "\\"));
        } else if (kind == "name") {
            forms.assign(form + control, text.substr(0, text.find('~')));
        } else if (kind == "date") {
            forms[form + control] = toDate(text).text();
        } else if (kind == "yn" || kind == "strict") {
            const double number = toDouble(text);
            if (kind == "strict" || number == 0 || number == 1 || number == 2)
                forms.answer(form + control, number);
        } else if (kind == "case") {
            if (text == "RES" || text == "RVA")
                throw RuntimeError(ErrorNumber::InvalidPropertyValue, "Invalid property value");
            forms["A case"] = caseTypes[text == "CHG" || text == "REV" ? 1 : 0];
        } else if (kind == "use") {
            const std::string wanted = inCapitals(withoutBlanks(text));
            if (wanted.empty())
                forms["A case"] = "";
            for (const std::string& use : uses)
                if (inCapitals(withoutBlanks(use)) == wanted)
                    forms["A use"] = use;
        } else if (kind == "project") {
            forms["A project"] = projects[0][0];
            for (const Texts& project : projects)
                if (project[1] == text)
                    forms["A project"] = project[0];
        } else if (kind == "sector") {
            if (withoutBlanks(text).empty())
                forms["A sector"] = "";
            else
                for (const int village : forms.villages)
                    if (village == toDouble(text))
                        forms["A sector"] = std::to_string(village);
        } else if (kind == "zone") {
            forms["A zone"] = "";
            for (const Texts& zone : zones)
                if (zone[1] == inCapitals(withoutBlanks(text)))
                    forms["A zone"] = zone[0];
        } else if (kind == "arch") {
            const std::string code = withoutBlanks(text);
            if (code == "ARCH" || code == "LE" || code == "SE")
                forms["A professional"] = code;
        }
    }

    void checklists(const Texts& groups) {
        Texts entries;
        attempt([&] {
            std::string list = at(groups, 5);
            if (list.empty())
                throw RuntimeError(ErrorNumber::InvalidProcedureCall, "Invalid procedure call or argument");
            list.pop_back();
            entries = pieces(list, "#");
        });
        for (int i = 0; i < conditionalRows; ++i) {
            const std::string form = i < mandatoryRows ? "M " : "K ";
            const std::string from = form + "page" + std::to_string(2 * i);
            const std::string to = form + "page" + std::to_string(2 * i + 1);
            const std::string check = form + "check" + std::to_string(i);
            std::optional<std::string> entry;
            attempt([&] { entry = at(entries, static_cast<std::size_t>(i)); });
            forms[check] = "0";
            forms.assign(from, "");
            forms.assign(to, "");
            if (!entry)
                continue;
            const Texts parts = pieces(*entry, "-");
            attempt([&] {
                if (toDouble(at(parts, 0)) == 1)
                    forms[check] = "1";
            });
            attempt([&] {
                if (toDouble(at(parts, 1)) != 0)
                    forms.assign(from, parts[1]);
            });
            attempt([&] {
                if (parts.size() > 2 && toDouble(parts[2]) != 0)
                    forms.assign(to, parts[2]);
            });
        }
    }

    void payment(const Texts& fields) {
        forms["P txtArea"] = std::to_string(forms.feeArea);
        Texts order;
        for (std::size_t row = 0; row < 6; ++row)
            order.insert(order.end(), feeRows[row].begin(), feeRows[row].end());
        for (const char* box : {"txtCompoundFees", "txtOther", "txtGrandTotal"})
            order.emplace_back(box);
        for (std::size_t i = 0; i < order.size(); ++i)
            attempt([&] { forms.assign("P " + order[i], at(fields, i)); });
        bool cash = false;
        attempt([&] {
            cash = at(fields, 21) == "CASH";
            forms["P mode"] = cash ? "CASH" : "PAYORDER";
        });
        if (!cash) {
            attempt([&] { forms["P DTPicker1"] = toDate(at(fields, 22)).text(); });
            attempt([&] { forms.assign("P txtChqDraftNo", at(fields, 23)); });
            attempt([&] { forms.assign("P txtBankNm", at(fields, 24)); });
            attempt([&] { forms.assign("P txtBranchNm", at(fields, 25)); });
        }
        for (std::size_t i = 0; i < 9; ++i)
            attempt([&] { forms.assign("P " + feeRows[6 + i / 3][i % 3], at(fields, 26 + i)); });
    }

    void annexureB() {
        int number = 0;
        if (!root)
            return;
        for (const Element& child : root->children) {
            if (inCapitals(child.name) != "ANNEXUREB")
                continue;
            for (const Element& element : child.children) {
                if (element.name == "Section9a3536")
                    streetsAndTrees(pieces(element.text, "#"));
                for (const std::string form : {"A ", "C "}) {
                    if (forms.has(form + "txt" + element.name))
                        forms.assign(form + "txt" + element.name, element.text);
                    if (!forms.has(form + element.name))
                        continue;
                    attempt([&] { number = toInteger16(element.text); });
                    forms.turnYes(form + element.name, number == 1);
                    attempt([&] { number = toInteger16(element.text); });
                    forms.turnNo(form + element.name, number == 0);
                }
            }
        }
    }

    void streetsAndTrees(const Texts& parts) {
        double first = 2;
        attempt([&] { first = toDouble(at(parts, 0)); });
        if (first == 1) {
            forms.turnYes("A Opt77", true);
            attempt([&] { forms.assign("A txtFstExistingWidth", at(parts, 2)); });
            attempt([&] { forms.assign("A txtFstStreetWidth", at(parts, 1)); });
        }
        if (first == 0)
            forms.turnNo("A Opt77", true);
        attempt([&] { forms.assign("C txtHowManyTrees", at(parts, 3)); });
        attempt([&] { forms.assign("C txtNoOfTreesAffected", at(parts, 4)); });
    }

    Forms& forms;
    const std::optional<Element>& root;
};

}  // namespace

void readSections(Forms& forms, const std::optional<Element>& root) {
    Opening(forms, root).run();
}

}  // namespace plandesk::test
