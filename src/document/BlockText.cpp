#include "document/BlockText.h"

#include <string_view>

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
    const auto* text = std::get_if<std::string>(&value);
    if (text && text->find_first_of("&<>") != std::string::npos)
        xml += EscapeXML(trim(*text));
    else
        appendTrimmed(xml, value);
}

}  // namespace plandesk
