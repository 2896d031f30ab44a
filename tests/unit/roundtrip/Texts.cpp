#include "unit/roundtrip/Texts.h"

#include <memory>

#include <libxml/parser.h>

#include "base/RuntimeError.h"

namespace plandesk::test {

Texts pieces(const std::string& text, const std::string& separator) {
    Texts result;
    if (text.empty())
        return result;
    std::string rest = text;
    while (rest.find(separator) != std::string::npos) {
        result.push_back(rest.substr(0, rest.find(separator)));
        rest = rest.substr(rest.find(separator) + separator.size());
    }
    result.push_back(rest);
    return result;
}

std::string at(const Texts& list, std::size_t place) {
    if (place >= list.size())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
    return list[place];
}

std::string orNothing(const Texts& list, std::size_t place) {
    return place < list.size() ? list[place] : "";
}

std::string withoutBlanks(std::string text) {
    while (!text.empty() && text.front() == ' ')
        text.erase(0, 1);
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    return text;
}

std::string inCapitals(std::string text) {
    for (char& letter : text)
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    return text;
}

std::string replaced(const std::string& text, const std::string& from, const std::string& to) {
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        if (text.compare(i, from.size(), from) == 0) {
            result += to;
            i += from.size();
        } else {
            result += text[i++];
        }
    }
    return result;
}

std::string joined(const Texts& list, const std::string& separator) {
    std::string text;
    for (std::size_t i = 0; i < list.size(); ++i)
        text += (i > 0 ? separator : "") + list[i];
    return text;
}

std::string element(const std::string& name, const std::string& content) {
    return "<" + name + ">" + content + "</" + name + ">";
}

std::string escaped(const std::string& text) {
    return replaced(replaced(replaced(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;");
}

bool holdsLetter(const std::string& text) {
    for (const char c : text)
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '\'')
            return true;
    return false;
}

bool holdsSign(const std::string& text) {
    return text.find_first_of("[!@#$%^&*]`") != std::string::npos;
}

namespace {

Element elementOf(const xmlNode* node) {
    Element element{reinterpret_cast<const char*>(node->name), "", {}};
    bool holdsElements = false;
    for (const xmlNode* child = node->children; child; child = child->next)
        holdsElements = holdsElements || child->type == XML_ELEMENT_NODE;
    for (const xmlNode* child = node->children; child; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            element.children.push_back(elementOf(child));
        } else if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) {
            const std::string text = reinterpret_cast<const char*>(child->content);
            if (holdsElements && text.find_first_not_of(" \t\r\n") == std::string::npos)
                continue;
            if (!element.children.empty() && element.children.back().name == "#text")
                element.children.back().text += text;
            else
                element.children.push_back({"#text", text, {}});
        }
    }
    for (const Element& child : element.children)
        element.text += child.text;
    return element;
}

}  // namespace

std::optional<Element> rootOf(const std::string& bytes) {
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document(
        xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
        xmlFreeDoc);
    const xmlNode* root = document ? xmlDocGetRootElement(document.get()) : nullptr;
    return root ? std::optional(elementOf(root)) : std::nullopt;
}

}  // namespace plandesk::test
