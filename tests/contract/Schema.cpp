// The XML schemas (XSD 1.0).

#include <algorithm>

#include "base/Text.h"
#include "contract/Contract.h"
#include "proposal/mdlProject.h"

namespace plandesk::contract {

namespace {

/// With a backslash before what means something in a pattern.
std::string literally(std::string_view text) {
    std::string pattern;
    for (const char c : text) {
        if (std::string_view(R"(\|.?*+()[]{}^-)").find(c) != std::string_view::npos)
            pattern += '\\';
        pattern += c;
    }
    return pattern;
}

class Pattern {
public:
    Pattern(const Element& element, bool strict) : element(element), strict(strict) {
        std::string signs;
        for (const Value& value : element.values)
            for (const Step& step : value.place)
                if (signs.find(step.separator.front()) == std::string::npos)
                    signs += step.separator.front();
        if (!signs.empty())
            withoutSigns = "[^" + literally(signs) + "]*";
        if (strict)
            text = withoutSigns;
        else if (!element.text.empty())
            text = element.text;
        const auto texts = std::ranges::count(element.values, Kind::Text, &Value::kind);
        countsOnly = text == anyText && texts > mostTexts;
    }

    /// Empty: any text.
    std::string whole() {
        if (element.values.empty())
            return "()";
        if (countsOnly)
            return atLeast();
        std::string pattern =
            composed(element.values, {.of = [this](const Value& value) { return of(value); },
                                      .sign = literally,
                                      .repeated = [](const std::string& piece) { return "(" + piece + ")*"; }});
        if (pattern == text && element.alternatives.empty() && text == anyText)
            return "";
        appendTo(pattern, element.alternatives);
        if (!strict)
            appendTo(pattern, element.looser);
        return pattern;
    }

private:
    void appendTo(std::string& pattern, const std::vector<std::string>& alternatives) const {
        for (const std::string& alternative : alternatives)
            pattern += "|" + replaceAll(alternative, "{t}", text);
    }

    static constexpr std::string_view anyText = R"([\s\S]*)";
    /// Of texts that may hold separators, a validator tries every way to part a list of more.
    static constexpr int mostTexts = 4;

    /// A list of as many pieces as the shortest has, or more.
    std::string atLeast() const {
        const int pieces = element.fewest > 0 ? element.fewest : element.values.back().place.front().piece;
        const bool mayBeEmpty = std::ranges::count(element.alternatives, "") > 0;
        return std::string(mayBeEmpty ? "|" : "") + "([^#]*#){" + std::to_string(pieces - 1) + "}" +
               std::string(anyText);
    }

    std::string of(const Value& value) const {
        std::string pattern;
        if (value.kind == Kind::Text)
            return text;
        if (value.open && !strict)
            return value.kind == Kind::Count ? withoutSigns : text;
        switch (value.kind) {
        case Kind::Text:
        case Kind::Empty:
            return "";
        case Kind::YesNo:
            pattern = "[012]";
            break;
        case Kind::Date:
            pattern = R"([0-9]{2}/[0-9]{2}/[0-9]{4})";
            break;
        case Kind::Number:
            pattern = R"(-?[0-9]+(\.[0-9]+)?(E[+\-][0-9]+)?)";
            break;
        case Kind::Count:
            pattern = "-?[0-9]+";
            break;
        case Kind::Code:
            for (const Code& code : value.codes)
                pattern += (pattern.empty() ? "(" : "|") + literally(code.code);
            pattern += ")";
            break;
        }
        return value.mayBeEmpty ? "(" + pattern + ")?" : pattern;
    }

    const Element& element;
    bool strict;
    std::string text{anyText};
    std::string withoutSigns{anyText};
    bool countsOnly = false;
};

class Writer {
public:
    Writer(bool strict) : strict(strict) {}

    std::string run(const Element& root) {
        line("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
        line("<!-- The proposal document, contract " + std::string(contractVersion) +
             ". Made by plandesk-contract from the tables that the document is written by.");
        line(strict ? "     Stricter than what can be written: no value holds a separator, so that each stands at its "
                      "place. -->"
                    : "     Whatever is written; a separator typed in a value may have moved those behind it. -->");
        line("<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" version=\"" + std::string(contractVersion) +
             "\">");
        append(root, 1, root.name);
        text += numbered;
        line("</xs:schema>");
        return text;
    }

private:
    void line(const std::string& words) { text += words + "\n"; }
    static std::string indent(int depth) { return std::string(static_cast<std::size_t>(depth) * 2, ' '); }

    void append(const Element& element, int depth, const std::string& name) {
        const std::string times = element.times == Times::AtMostOnce ? " minOccurs=\"0\"" : "";
        const std::string head = indent(depth) + "<xs:element name=\"" + name + "\"" + times;
        const std::string pattern = element.isLeaf() ? patternOf(element) : "";
        if (element.isLeaf() && pattern.empty())
            return line(head + " type=\"xs:string\"/>");
        line(head + ">");
        appendType(element, depth + 1, pattern, "");
        line(indent(depth) + "</xs:element>");
    }

    std::string patternOf(const Element& element) const {
        return element.packed && !strict ? "" : Pattern(element, strict).whole();
    }

    void appendType(const Element& element, int depth, const std::string& pattern, const std::string& name) {
        const std::string named = name.empty() ? "" : " name=\"" + name + "\"";
        if (element.isLeaf()) {
            line(indent(depth) + "<xs:simpleType" + named + "><xs:restriction base=\"xs:string\">" +
                 (pattern.empty() ? "" : "<xs:pattern value=\"" + EscapeXML(pattern) + "\"/>") +
                 "</xs:restriction></xs:simpleType>");
            return;
        }
        line(indent(depth) + "<xs:complexType" + named + ">");
        line(indent(depth + 1) + "<xs:sequence>");
        for (const Element& child : element.children) {
            if (child.times == Times::Numbered)
                appendNumbered(child, depth + 2);
            else
                append(child, depth + 2, child.name);
        }
        line(indent(depth + 1) + "</xs:sequence>");
        if (!element.attribute.empty()) {
            line(indent(depth + 1) + "<xs:attribute name=\"" + element.attribute + "\" use=\"required\">");
            std::string values;
            for (const std::string& value : element.attributes)
                values += "<xs:enumeration value=\"" + value + "\"/>";
            line(indent(depth + 2) + "<xs:simpleType><xs:restriction base=\"xs:string\">" + values +
                 "</xs:restriction></xs:simpleType>");
            line(indent(depth + 1) + "</xs:attribute>");
        }
        line(indent(depth) + "</xs:complexType>");
    }

    /// Each number is an element of its own, which brings the next one along: the groups stand at the end.
    void appendNumbered(const Element& element, int depth) {
        std::string type = element.path.substr(0, element.path.find("<n>"));
        if (const std::size_t inner = element.path.find("<n>/"); inner != std::string::npos)
            type += "-" + element.name;
        std::ranges::replace(type, '/', '-');
        line(indent(depth) + "<xs:group ref=\"" + type + "1\" minOccurs=\"0\"/>");
        std::string outer = std::move(text);
        text.clear();
        appendType(element, 1, element.isLeaf() ? patternOf(element) : "", type);
        for (int number = 1; number <= mostNumbered; ++number) {
            const std::string own = std::to_string(number);
            line("  <xs:group name=\"" + type + own + "\"><xs:sequence><xs:element name=\"" + element.name + own +
                 "\" type=\"" + type + "\"/>" +
                 (number < mostNumbered
                      ? "<xs:group ref=\"" + type + std::to_string(number + 1) + "\" minOccurs=\"0\"/>"
                      : "") +
                 "</xs:sequence></xs:group>");
        }
        numbered += text;
        text = std::move(outer);
    }

    bool strict;
    std::string text;
    std::string numbered;
};

}  // namespace

std::string schema(const Element& root, bool strict) {
    return Writer(strict).run(root);
}

}  // namespace plandesk::contract
