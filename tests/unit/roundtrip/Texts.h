#pragma once

#include <optional>
#include <string>
#include <vector>

// What the model makes of texts and files, written apart from the code that it foretells.

namespace plandesk::test {

using Texts = std::vector<std::string>;

/// An empty text has no pieces.
Texts pieces(const std::string& text, const std::string& separator);
/// RuntimeError 9 when there is none.
std::string at(const Texts& list, std::size_t place);
std::string orNothing(const Texts& list, std::size_t place);
std::string withoutBlanks(std::string text);
std::string inCapitals(std::string text);
std::string replaced(const std::string& text, const std::string& from, const std::string& to);
std::string escaped(const std::string& text);
std::string joined(const Texts& list, const std::string& separator);
std::string element(const std::string& name, const std::string& content);
bool holdsLetter(const std::string& text);
bool holdsSign(const std::string& text);

struct Element {
    std::string name;
    std::string text;
    std::vector<Element> children;
};

/// Nothing for an ill-formed document.
std::optional<Element> rootOf(const std::string& bytes);

}  // namespace plandesk::test
