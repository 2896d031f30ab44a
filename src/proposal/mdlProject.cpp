#include "proposal/mdlProject.h"

#include <algorithm>
#include <array>

#include "base/Numbers.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/Form.h"
#include "controls/Meaning.h"
#include "controls/Screen.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

/// The members of a kind, letters in both cases.
class CharacterClass {
public:
    constexpr CharacterClass(std::string_view kind, std::string_view set) : kind(kind) {
        for (const char character : set) {
            members.at(static_cast<unsigned char>(character)) = true;
            if (character >= 'a' && character <= 'z')
                members.at(static_cast<unsigned char>(character - 'a' + 'A')) = true;
            if (character >= 'A' && character <= 'Z')
                members.at(static_cast<unsigned char>(character - 'A' + 'a')) = true;
        }
    }

    constexpr bool has(char character) const { return members[static_cast<unsigned char>(character)]; }

    std::string_view kind;

private:
    std::array<bool, 256> members{};
};

constexpr std::array characterClasses = std::to_array<CharacterClass>({
    {"alpha", "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ'"},
    {"alphanumeric", "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"},
    {"numeric", "0123456789"},
    {"decimal", "0123456789."},
    {"currency", "0123456789, ."},
    {"spalphanumeric", "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-& "},
    {"phone", "0123456789 ()-+"},
    {"short", "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_@."},
    {"name", "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.!@#$%^&*-()?{}[]+*|~`,><;= "},
    {"password", "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_"},
    {"ishtml", "<>/"},
    {"invalid", "<>/_0123456789!@#$%^&*-()?/{}[]+*|~`,><;="},
    {"amp", "[!@#$%^&*]`"},
    {"alphaint", "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ'."},
});

constexpr int backspace = 8;
constexpr std::string_view specialKeys = "#$%&*@^~";

int filterByClass(int key, std::string_view kind) {
    std::string character;
    appendUtf8(character, static_cast<char32_t>(key));
    return key == backspace || chkString(character, kind) == -1 ? key : 0;
}

void refuse(TextBox& box, std::string_view text, std::string_view title) {
    const Meaning meant(box.form().screen(), box);
    box.form().screen().message(text, title);
    box.setText("");
    box.setFocus();
}

bool holds(const TextBox& box, std::string_view kind) {
    return chkString(box.text(), kind) == -1;
}

}  // namespace

std::int16_t chkString(std::string_view text, std::string_view kind) {
    const auto entry = std::ranges::find_if(
        characterClasses, [kind](const CharacterClass& candidate) { return equalsIgnoringCase(candidate.kind, kind); });
    if (entry == characterClasses.end())
        return 0;
    return std::ranges::any_of(text, [entry](char character) { return entry->has(character); }) ? -1 : 0;
}

int keyFilterDecimal(int key) {
    return filterByClass(key, "decimal");
}

int keyFilterNumeric(int key) {
    return filterByClass(key, "numeric");
}

int dropSpecialKeys(int key) {
    const bool special = key > 0 && key < 128 && specialKeys.find(static_cast<char>(key)) != std::string_view::npos;
    return special ? 0 : key;
}

std::string EscapeXML(std::string_view value) {
    std::string escaped;
    escaped.reserve(value.size());
    for (const char character : value) {
        switch (character) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

std::string properCase(std::string_view text) {
    std::string cased = lowerCase(text);
    bool startsWord = true;
    for (char& character : cased) {
        const bool letter = character >= 'a' && character <= 'z';
        if (letter && startsWord)
            character = static_cast<char>(character - 'a' + 'A');
        startsWord = !letter;
    }
    return cased;
}

void rewriteInProperCase(const Form& form) {
    if (auto* box = dynamic_cast<TextBox*>(form.activeControl()))
        box->setText(properCase(box->text()));
}

void setAllDatesToToday(Form& form) {
    const Date today = form.screen().ports.clock.today();
    form.forEach<DatePicker>([today](DatePicker& picker) { picker.setDate(today); });
}

void setFormColors(Form& form, const Proposal& proposal) {
    form.setBackColor(proposal.formBackColor);
    for (Control* control : form.controls()) {
        switch (control->kind()) {
        case ControlKind::TextBox:
        case ControlKind::Button:
        case ControlKind::ComboBox:
        case ControlKind::DatePicker:
        case ControlKind::TabStrip:
            break;
        default:
            control->setBackColor(proposal.formBackColor);
        }
    }
}

void openBox(TextBox& box) {
    box.setEnabled(true);
    box.setBackColor(white);
}

void closeBox(TextBox& box) {
    box.setEnabled(false);
    box.setBackColor(disabledGrey);
}

void emptyAndCloseBox(TextBox& box) {
    box.setText("");
    closeBox(box);
}

void checkRateBox(TextBox& first, TextBox& second, TextBox& target, bool compute) {
    if (holds(first, "alpha"))
        return refuse(first, "Enter Numeric Data", "Payment Detail");
    if (holds(first, "amp"))
        return refuse(first, noSpecialCharacter, "Payment Details");
    if (first.text().empty() || second.text().empty())
        return;
    if (holds(second, "alpha"))
        return refuse(first, "Enter Numeric values", "Payment Details");
    if (!compute)
        return;
    const Meaning meant(first.form().screen(), first);
    target.setText(numberText(toDouble(first.text()) * toDouble(second.text())));
}

void closeAllForms(Proposal& proposal) {
    for (const std::string_view name : {"frmPayDetail", "frmDocCheckList", "AnnexureACont", "frmAnnexureA"})
        proposal.forms.unload(name);
    proposal.screen.end();
}

}  // namespace plandesk
