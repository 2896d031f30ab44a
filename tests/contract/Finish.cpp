// What stands in no table of the writer: paths, notes, words that tell alike questions apart, examples.

#include <algorithm>
#include <map>
#include <set>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "contract/Notes.h"
#include "contract/Words.h"
#include "document/SectionTables.h"

namespace plandesk::contract {

namespace {

class Finisher {
public:
    Finisher(Element& root, Words& words) : root(root), words(words) {}

    void run() {
        for (Element& child : root.children)
            setPaths(child, "");
        checkReaders();
        takeNotes();
        Asked asked;
        findAlike(root, asked);
        finish(root, asked);
    }

private:
    static void setPaths(Element& element, const std::string& above) {
        element.path = above + element.name + (element.times == Times::Numbered ? "<n>" : "");
        for (Element& child : element.children)
            setPaths(child, element.path + "/");
    }

    /// What the sections are read into is what they were written from, value for value.
    void checkReaders() {
        std::size_t section = 0;
        for (const SectionTable& table : sectionTables())
            checkReader(root.children[section++], table.form, table.rows);
        const FeeTables& fees = feeTables();
        const auto payment = std::ranges::find(root.children, "PAYMENTDETAIL", &Element::name);
        for (const auto rows : {fees.fees, fees.bankDetails, fees.secondScrutiny})
            checkReader(*payment, fees.form, rows);
    }

    void checkReader(const Element& section, std::string_view form, std::span<const FieldRow> rows) {
        for (const FieldRow& row : rows) {
            const Element& element = section.children.at(static_cast<std::size_t>(row.field));
            const std::size_t place = row.part == FieldRow::whole ? 0 : static_cast<std::size_t>(row.part);
            const Value& value = element.values.at(place);
            const bool whole = value.place.empty();
            if (element.name != row.element || whole != (row.part == FieldRow::whole) ||
                value.controls != words.of(form, row.control).controls)
                throw RuntimeError(ErrorNumber::ItemNotFound, std::string(row.element) + " is read into " +
                                                                  std::string(row.control) +
                                                                  " but not written from it");
        }
    }

    static void index(Element& element, std::map<std::string, Element*, std::less<>>& byPath) {
        byPath[element.path] = &element;
        for (Element& child : element.children)
            index(child, byPath);
    }

    void takeNotes() {
        std::map<std::string, Element*, std::less<>> byPath;
        index(root, byPath);
        const auto at = [&](std::string_view path) -> Element& {
            const auto found = byPath.find(path);
            if (found == byPath.end())
                throw RuntimeError(ErrorNumber::ItemNotFound, "a note tells of no element: " + std::string(path));
            return *found->second;
        };
        for (const OrderControls& order : orderControls()) {
            const std::vector<std::string> controls = split(order.controls, " ");
            for (std::size_t i = 0; i < controls.size(); ++i) {
                Value& value = at(order.path).values.at(i);
                const Value asked = words.of(order.form, controls[i]);
                value.form = asked.form;
                value.controls = asked.controls;
                value.question = asked.question;
                value.group = asked.group;
                value.unit = asked.unit;
                value.typed = asked.typed;
                if (asked.kind == Kind::YesNo || asked.kind == Kind::Date) {
                    value.kind = asked.kind;
                    value.mayBeEmpty = value.open = true;
                }
            }
        }
        for (const ElementNote& note : elementNotes()) {
            Element& element = at(note.path);
            element.note = note.sentence;
            element.alternatives = note.alternatives;
            element.text = note.text;
            element.looser = note.looser;
            element.fewest = note.fewest;
            for (Value& value : element.values)
                value.reading = note.reading;
        }
        for (const ValueNote& note : valueNotes(words)) {
            for (int number = note.value; number <= std::max(note.value, note.last); ++number)
                takeNote(at(note.path).values.at(static_cast<std::size_t>(number) - 1), note);
        }
    }

    static void takeNote(Value& value, const ValueNote& note) {
        if (!note.reading.empty())
            value.reading = note.reading;
        if (!note.codes.empty() || note.kind) {
            value.codes = note.codes;
            value.kind = note.kind.value_or(Kind::Code);
            value.mayBeEmpty = note.mayBeEmpty;
            value.open = note.open;
        }
        if (!note.question.empty())
            value.question = note.question;
        if (note.example)
            value.example = *note.example;
    }

    using Asked = std::map<std::string, std::set<std::string>>;

    static std::string askedBy(const Value& value) { return value.form + ": " + value.question; }

    /// Which controls of a form the same words ask for.
    static void findAlike(const Element& element, Asked& asked) {
        for (const Element& child : element.children)
            findAlike(child, asked);
        for (const Value& value : element.values)
            if (!value.controls.empty())
                asked[askedBy(value)].insert(value.controls.front());
    }

    /// Tells alike questions by their groups, gives each value an example of its own, and sees that each is told.
    void finish(Element& element, const Asked& asked) {
        for (Element& child : element.children)
            finish(child, asked);
        for (Value& value : element.values) {
            const auto alike = asked.find(askedBy(value));
            if (alike != asked.end() && alike->second.size() > 1 && !value.group.empty())
                value.question = value.group + ": " + value.question;
            if (value.question.empty())
                value.question = value.controls.empty() ? value.column : value.controls.front();
            if (value.kind == Kind::Code && value.codes.empty())
                throw RuntimeError(ErrorNumber::ItemNotFound, "nobody tells the codes of " + element.path);
            if (!value.example)
                value.example = exampleOf(value);
        }
    }

    std::string exampleOf(const Value& value) {
        ++next;
        switch (value.kind) {
        case Kind::YesNo:
            return "1";
        case Kind::Count:
            return "1";
        case Kind::Date:
            return (next % 28 < 9 ? "0" : "") + std::to_string(next % 28 + 1) + "/02/2003";
        case Kind::Code:
            return value.codes.front().code;
        case Kind::Number:
            return std::to_string(next) + ".5";
        case Kind::Empty:
            return "";
        default:
            return value.typed.empty()       ? "Text " + std::to_string(next)
                   : value.typed == "digits" ? std::to_string(next)
                                             : std::to_string(next) + ".50";
        }
    }

    Element& root;
    Words& words;
    int next = 0;
};

}  // namespace

void finish(Element& root, Words& words) {
    Finisher(root, words).run();
}

}  // namespace plandesk::contract
