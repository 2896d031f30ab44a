#include "document/BlockText.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "base/Text.h"
#include "proposal/mdlProject.h"

namespace plandesk {

void appendTrimmed(std::string& xml, const Value& value) {
    if (const auto* text = std::get_if<std::string>(&value))
        xml += trim(*text);
    else if (!isNull(value))
        xml += valueText(value);
}

void appendEscaped(std::string& xml, const Value& value) {
    if (const auto* text = std::get_if<std::string>(&value))
        appendEscapedText(xml, *text);
    else
        appendTrimmed(xml, value);
}

void appendEscapedText(std::string& xml, std::string_view text) {
    const auto special = [](char c) { return c == '&' || c == '<' || c == '>'; };
    if (std::ranges::any_of(text, special))
        xml += EscapeXML(trim(text));
    else
        xml += trim(text);
}

std::string_view trimmedText(const Value& cell) {
    const auto* text = std::get_if<std::string>(&cell);
    return text ? trim(*text) : std::string_view();
}

void appendJoined(std::string& xml, std::span<const JoinedPiece> pieces, std::span<const Value> row) {
    for (const JoinedPiece& piece : pieces) {
        if (&piece != pieces.data() && !piece.glued)
            xml += '#';
        if (!row.empty())
            piece.append(xml, row[static_cast<std::size_t>(piece.column)]);
    }
}

void appendNumber(std::string& xml, int number) {
    char digits[16];
    xml.append(digits, std::to_chars(digits, std::end(digits), number).ptr);
}

void openNumbered(std::string& xml, std::string_view element, int number) {
    xml.append("<").append(element);
    appendNumber(xml, number);
    xml += '>';
}

void closeNumbered(std::string& xml, std::string_view element, int number) {
    xml.append("</").append(element);
    appendNumber(xml, number);
    xml += '>';
}

}  // namespace plandesk
