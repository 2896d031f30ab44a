#include "review/Marks.h"

#include <algorithm>
#include <array>

#include "base/CodePage.h"
#include "base/Text.h"
#include "controls/Controls.h"

namespace plandesk {

namespace {

struct Mark {
    std::string_view text;
    std::string_view effect;
    std::string_view forms{};  ///< how the names of the forms begin where it is one; empty: everywhere

    bool countsOn(std::string_view form) const { return form.starts_with(forms); }
};

constexpr std::string_view endsValue = "ends this value; what follows moves one place on";
constexpr std::string_view unreadable = "is written as typed and makes the whole file unreadable";

/// The longer ones first, where one holds another.
constexpr std::array marks = std::to_array<Mark>({
    {"||", "ends its section; the answers of every section behind it move on"},
    {"^#^", endsValue},
    {"$-$", endsValue},
    {"@->", "ends this plot; what follows moves one place on"},
    {"]]>", unreadable},
    {"$$", endsValue},
    {"$", endsValue},  // at the end of a value, where the list has "$$" between them
    {"@", "ends this value; every answer behind it in its section moves one place on"},
    {"#", endsValue},
    {"~", "ends this value; what follows is cut off or moves one place on"},
    {"\\", "comes back doubled, and again with every opening"},
    {"^", endsValue},
    {"&", unreadable},
    {"<", unreadable},
    {"-", endsValue, "frmDocCheckList"},
    {"\r", "comes back as one character of two, which no form shows"},
});

/// Of each character whether it may be a mark or part of one.
constexpr std::array<bool, 256> suspects = [] {
    std::array<bool, 256> all{};
    for (std::size_t character = 0; character < all.size(); ++character)
        all[character] = character < 0x20 || character >= 0x80;
    for (const Mark& mark : marks)
        for (const char character : mark.text)
            all[static_cast<unsigned char>(character)] = true;
    return all;
}();

/// Marks that are told by the kind of a character.
enum class Kind { None, NoXml, NotHeld, NotUtf8 };
struct KindMark {
    Kind kind;
    std::string_view mark;
    std::string_view effect;
};
constexpr std::array kinds = std::to_array<KindMark>({
    {Kind::NoXml, "a control character", "is no character of an XML file and makes it unreadable"},
    {Kind::NotHeld, "a letter", "is a character that the system's code page cannot hold"},
    {Kind::NotUtf8, "a letter",
     "is written in the system's code page, which the file does not name, and makes it unreadable"},
});

bool inXml(char32_t point) {
    if (point < 0x20)
        return point == '\t' || point == '\n' || point == '\r';
    return point != 0xFFFE && point != 0xFFFF && (point < 0xD800 || point > 0xDFFF);
}

/// Finds the marks of texts, for one code page.
class Finder {
public:
    void examine(const Answered& answered, std::vector<Marked>& found) const {
        const std::string& text = answered.text;
        if (plain(text))
            return;
        const std::size_t before = found.size();
        std::string rest = text;
        for (const Mark& mark : marks)
            if (mark.countsOn(answered.form) && rest.find(mark.text) != std::string::npos) {
                rest = replaceAll(rest, mark.text, "");
                found.push_back({answered, std::string(mark.text), std::string(mark.effect), "", only(mark, answered),
                                 mark.effect == unreadable});
            }
        for (const KindMark& kind : kinds)
            if (std::string without = dropped(rest, kind.kind); without != rest) {
                rest = std::move(without);
                found.push_back({answered, std::string(kind.mark), std::string(kind.effect), "",
                                 only(kind.kind, answered), kind.kind != Kind::NotHeld});
            }
        for (std::size_t each = before; each < found.size(); ++each)
            found[each].clean = rest;
    }

    /// Whether the text has nothing that may be a mark, which is quickly seen.
    static bool plain(std::string_view text) {
        return std::ranges::none_of(text, [](unsigned char character) { return suspects[character]; });
    }

private:
    Kind kindOf(char32_t point) const {
        if (!inXml(point))
            return Kind::NoXml;
        if (point < 0x80 || codePage == "UTF-8")
            return Kind::None;
        std::string character;
        appendUtf8(character, point);
        return toCodePage(character, codePage) == "?" ? Kind::NotHeld : Kind::NotUtf8;
    }

    std::string dropped(std::string_view text, Kind kind) const {
        std::string kept;
        for (const char32_t point : codePoints(text))
            if (kindOf(point) != kind)
                appendUtf8(kept, point);
        return kept;
    }

    /// The text with this mark alone.
    std::string only(const Mark& wanted, const Answered& answered) const {
        constexpr std::string_view place = "\x01";
        std::string rest = dropped(answered.text, Kind::NoXml);
        for (const Mark& mark : marks)
            if (mark.countsOn(answered.form))
                rest = replaceAll(rest, mark.text, &mark == &wanted ? place : "");
        rest = dropped(dropped(rest, Kind::NotHeld), Kind::NotUtf8);
        return replaceAll(rest, place, wanted.text);
    }
    std::string only(Kind wanted, const Answered& answered) const {
        std::string rest = answered.text;
        for (const Mark& mark : marks)
            if (mark.countsOn(answered.form))
                rest = replaceAll(rest, mark.text, "");
        for (const KindMark& kind : kinds)
            if (kind.kind != wanted)
                rest = dropped(rest, kind.kind);
        return rest;
    }

    std::string codePage = systemCodePage();
};

bool holdsText(const Control& control) {
    return control.kind() == ControlKind::TextBox || control.kind() == ControlKind::ComboBox;
}

void examineTable(int place, const Recordset& table, const Finder& finder, std::vector<Marked>& found) {
    const CarriedTable& carried = carriedTables()[static_cast<std::size_t>(place)];
    const std::size_t key = keyColumnOf(table);
    std::vector<RowKey> keys;
    int number = 0;
    for (const std::span<const Value> row : table.allRows()) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            const auto* text = std::get_if<std::string>(&row[column]);
            if (!text || Finder::plain(*text) || meant(*text).empty() || !carried.carries(column, key))
                continue;
            if (keys.empty())
                keys = rowKeysOf(table);
            finder.examine({std::string(carried.form), std::string(carried.controlOf(column)), number,
                            static_cast<int>(column), keys[static_cast<std::size_t>(number)].text(), *text, place},
                           found);
        }
        ++number;
    }
}

}  // namespace

std::vector<Marked> markedAnswers(const Proposal& proposal) {
    const Finder finder;
    std::vector<Marked> found;
    for (const CarriedForm& carried : carriedForms()) {
        const Form* form = proposal.forms.loaded(carried.name);
        if (!form)
            continue;
        for (const Question& question : questionsOf(*form))
            if (const std::string key = question.control().key(); holdsText(question.control()) && carried.carries(key))
                finder.examine({form->name(), key, -1, -1, "", answerOf(question)}, found);
        for (const std::string& key : split(carried.hidden, " "))
            if (!key.empty())
                finder.examine({form->name(), key, -1, -1, "", form->at<TextBox>(key).text()}, found);
    }
    int place = 0;
    for (const CarriedTable& carried : carriedTables()) {
        if (const Recordset* table = (proposal.tables.*carried.table).get())
            examineTable(place, *table, finder, found);
        ++place;
    }
    return found;
}

void replaceAnswer(Proposal& proposal, const Answered& answered, const std::string& text) {
    if (answered.isCell()) {
        const CarriedTable& carried = carriedTables()[static_cast<std::size_t>(answered.table)];
        if (Recordset* table = (proposal.tables.*carried.table).get())
            table->replace(answered.row, answered.column, text);
        return;
    }
    const Form* form = proposal.forms.loaded(answered.form);
    Control* control = form ? form->findKey(answered.control) : nullptr;
    if (auto* box = dynamic_cast<TextBox*>(control))
        box->restoreText(text);
    else if (auto* list = dynamic_cast<ComboBox*>(control))
        list->setText(text);
}

}  // namespace plandesk
