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
};

/// The longer ones first, where one begins another.
constexpr std::array marks = std::to_array<Mark>({
    {"||", "ends its section; the answers of every section behind it move on"},
    {"^#^", "ends this value; what follows moves one place on"},
    {"$-$", "ends this value; what follows moves one place on"},
    {"@->", "ends this plot; what follows moves one place on"},
    {"$$", "ends this value; what follows moves one place on"},
    {"@", "ends this value; every answer behind it in its section moves one place on"},
    {"#", "ends this value; what follows moves one place on"},
    {"~", "ends this value; what follows is cut off or moves one place on"},
    {"\\", "comes back doubled, and again with every opening"},
    {"^", "ends this value; what follows moves one place on"},
    {"&", "is written as typed and makes the whole file unreadable"},
    {"<", "is written as typed and makes the whole file unreadable"},
});

constexpr std::string_view foreignEffect = "is a character that the system's code page cannot hold";
constexpr std::string_view controlEffect = "is no character of an XML file and makes it unreadable";

bool isControl(char character) {
    return static_cast<unsigned char>(character) < 0x20 && character != '\t' && character != '\n' && character != '\r';
}

/// The characters that the code page writes as they are.
std::string heldBy(const std::string& codePage, std::string_view text) {
    std::string held;
    for (const char32_t codePoint : codePoints(text)) {
        std::string character;
        appendUtf8(character, codePoint);
        if (codePoint < 0x80 || (codePage == "UTF-8" && toCodePage(character, codePage) == character))
            held += character;
    }
    return held;
}

Marked examine(const Answered& answered, const std::string& codePage) {
    Marked found{answered, "", "", answered.text};
    for (const Mark& mark : marks) {
        if (found.mark.empty() && answered.text.find(mark.text) != std::string::npos) {
            found.mark = mark.text;
            found.effect = mark.effect;
        }
        found.clean = replaceAll(found.clean, mark.text, "");
    }
    if (found.mark.empty() && std::ranges::any_of(answered.text, isControl)) {
        found.mark = "control character";
        found.effect = controlEffect;
    }
    std::erase_if(found.clean, isControl);
    const bool plain = std::ranges::all_of(answered.text, [](unsigned char c) { return c < 0x80; });
    if (!plain && codePage != "UTF-8") {
        const std::string held = heldBy(codePage, found.clean);
        if (found.mark.empty() && held != found.clean) {
            found.mark = "a letter";
            found.effect = foreignEffect;
        }
        found.clean = held;
    }
    return found;
}

}  // namespace

std::vector<Marked> markedAnswers(const std::vector<Answered>& answers) {
    const std::string codePage = systemCodePage();
    std::vector<Marked> marked;
    for (const Answered& answered : answers) {
        if (answered.text.empty())
            continue;
        if (Marked found = examine(answered, codePage); !found.mark.empty())
            marked.push_back(std::move(found));
    }
    return marked;
}

void replaceAnswer(Proposal& proposal, const Answered& answered, const std::string& text) {
    if (!answered.isCell()) {
        const Form* form = proposal.forms.loaded(answered.form);
        if (auto* box = dynamic_cast<TextBox*>(form ? form->findKey(answered.control) : nullptr))
            box->restoreText(text);
        return;
    }
    const auto carried = std::ranges::find_if(carriedTables(), [&](const CarriedTable& each) {
        return each.form == answered.form && each.grid == answered.control;
    });
    Recordset* table = carried == carriedTables().end() ? nullptr : (proposal.tables.*carried->table).get();
    if (!table || answered.row >= table->rowCount())
        return;
    const std::string filter = table->filter();
    const std::string sort = table->sort();
    table->setSort("");
    table->setFilter("");
    table->setAbsolutePosition(answered.row + 1);
    table->set(answered.column, text);
    table->setSort(sort);
    table->setFilter(filter);
    table->moveFirst();
}

}  // namespace plandesk
