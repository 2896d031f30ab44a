// The reference table, for people and for programs.

#include <nlohmann/json.hpp>

#include "base/Text.h"
#include "contract/Contract.h"

namespace plandesk::contract {

namespace {

using Json = nlohmann::ordered_json;

std::string_view kindWord(Kind kind) {
    switch (kind) {
    case Kind::YesNo:
        return "yes/no";
    case Kind::Date:
        return "date";
    case Kind::Code:
        return "code";
    case Kind::Number:
        return "number";
    case Kind::Count:
        return "whole number";
    case Kind::Empty:
        return "always empty";
    default:
        return "text";
    }
}

std::string_view cutWord(Cut cut) {
    switch (cut) {
    case Cut::First:
        return "first character";
    case Cut::BehindFirst:
        return "behind the first character";
    case Cut::BeforeLast:
        return "before the last character";
    case Cut::Last:
        return "last character";
    default:
        return "";
    }
}

/// A cell of a Markdown table.
std::string cell(std::string_view words) {
    std::string text = replaceAll(replaceAll(std::string(words), "|", "\\|"), "<", "&lt;");
    return replaceAll(text, "\n", " ");
}

std::string placeWords(const Value& value) {
    std::string words;
    for (const Step& step : value.place)
        words += (words.empty() ? "" : ", ") + (step.piece == 0 ? std::string("each") : std::to_string(step.piece)) +
                 " of `" + step.separator + "`";
    if (value.cut != Cut::None)
        words += (words.empty() ? "" : ", ") + std::string(cutWord(value.cut));
    return words.empty() ? "whole" : words;
}

std::string ruleWords(const Value& value) {
    std::string words(kindWord(value.kind));
    if (value.kind == Kind::Text && !value.typed.empty())
        words += " (" + value.typed + ")";
    if (!value.unit.empty())
        words += ", in " + value.unit;
    std::string codes;
    for (const Code& code : value.codes)
        codes += (codes.empty() ? ": " : "; ") + ("`" + code.code + "`") +
                 (code.meaning == code.code ? "" : " " + code.meaning);
    words += codes;
    return words + (value.mayBeEmpty ? "; may be empty" : "");
}

std::string sourceWords(const Value& value) {
    if (!value.table.empty() && (value.controls.empty() || value.kind == Kind::Empty))
        return "`" + value.table + "." + value.column + "`";
    if (value.form.empty())
        return "";
    std::string words = "`" + value.form + "." + value.controls.front() + "`";
    if (!value.table.empty())
        words += ", `" + value.table + "." + std::string(trim(value.column)) + "`";
    return words;
}

class Page {
public:
    std::string run(const Element& root) {
        text =
            "# Every element and position of the proposal document\n\n"
            "Contract " +
            std::string(contractVersion) +
            ". Made by `plandesk-contract` from the tables that the program writes and reads by; do not edit. "
            "[README.md](README.md) says how to read it.\n";
        for (const Element& block : root.children)
            appendBlock(block);
        return text;
    }

private:
    void appendBlock(const Element& block) {
        text += "\n## " + block.name + "\n\n";
        if (block.times == Times::AtMostOnce)
            text += "Stands once or not at all.\n\n";
        rows.clear();
        notes.clear();
        if (block.name == "NTS") {
            text += "Land records and orders.\n";
            for (const Element& child : block.children) {
                text += "\n### " + child.name + "\n\n";
                if (child.times == Times::AtMostOnce)
                    text += "Stands once or not at all.\n\n";
                rows.clear();
                notes.clear();
                appendRows(child, child);
                finish();
            }
            return;
        }
        appendRows(block, block);
        finish();
    }

    void finish() {
        text +=
            "| Element | Piece | Question | Where in the program | Value | Escaped | Reading "
            "|\n|---|---|---|---|---|---|---|\n" +
            rows;
        if (!notes.empty())
            text += "\n" + notes;
    }

    void appendRows(const Element& element, const Element& block) {
        const std::string within = &element == &block ? element.name : element.path.substr(block.path.size() + 1);
        std::string name = "`" + within + "`";
        if (!element.attribute.empty())
            name +=
                " with the attribute `" + element.attribute + "`: " + "`" + join(element.attributes, "` or `") + "`";
        if (!element.note.empty())
            notes += "- `" + within + "`: " + element.note + "\n";
        if (element.isLeaf() && element.values.empty())
            rows += "| " + name + " | | | | always empty | | not read |\n";
        if (!element.isLeaf() && (!element.attribute.empty() || element.times == Times::Numbered))
            rows += "| " + name + " | | | | holds the elements below | | |\n";
        for (const Value& value : element.values) {
            rows += "| " + name + " | " + placeWords(value) + " | " + cell(value.question) + " | " +
                    sourceWords(value) + " | " + cell(ruleWords(value)) + " | " +
                    (value.kind != Kind::Text ? ""
                     : element.escaped        ? "yes"
                                              : "no") +
                    " | " + cell(value.reading) + " |\n";
            name.clear();
        }
        for (const Element& child : element.children)
            appendRows(child, block);
    }

    std::string text;
    std::string rows;
    std::string notes;
};

Json toJson(const Value& value) {
    Json place = Json::array();
    for (const Step& step : value.place)
        place.push_back({step.separator, step.piece});
    Json codes = Json::object();
    for (const Code& code : value.codes)
        codes[code.code] = code.meaning;
    Json entry{
        {"place", place}, {"cut", cutWord(value.cut)}, {"question", value.question}, {"kind", kindWord(value.kind)}};
    if (!value.codes.empty())
        entry["codes"] = codes;
    if (!value.unit.empty())
        entry["unit"] = value.unit;
    entry["empty"] = value.mayBeEmpty;
    if (!value.form.empty()) {
        entry["form"] = value.form;
        entry["controls"] = value.controls;
    }
    if (!value.table.empty()) {
        entry["table"] = value.table;
        entry["column"] = value.column;
    }
    entry["reading"] = value.reading;
    return entry;
}

void appendLeaves(Json& all, const Element& element) {
    if (element.isLeaf()) {
        Json values = Json::array();
        for (const Value& value : element.values)
            values.push_back(toJson(value));
        all.push_back({{"path", element.path}, {"escaped", element.escaped}, {"values", values}});
    }
    for (const Element& child : element.children)
        appendLeaves(all, child);
}

}  // namespace

std::string referencePage(const Element& root) {
    return Page().run(root);
}

std::string positions(const Element& root) {
    Json all = Json::array();
    appendLeaves(all, root);
    std::string text = "{\"contract\": \"" + std::string(contractVersion) + "\", \"elements\": [\n";
    for (const Json& each : all)
        text += each.dump() + (&each == &all.back() ? "\n" : ",\n");
    return text + "]}\n";
}

}  // namespace plandesk::contract
