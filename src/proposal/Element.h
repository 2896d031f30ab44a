#pragma once

#include <string>
#include <string_view>

namespace plandesk {

/// Appends `<element>value</element>` as it stands: what is to be escaped comes escaped.
inline void appendElement(std::string& xml, std::string_view element, std::string_view value) {
    xml.append("<").append(element).append(">").append(value).append("</").append(element).append(">");
}

}  // namespace plandesk
