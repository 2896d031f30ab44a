#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The proposal document as a tree of elements with the values in their texts, made from the tables that the system
// itself writes by. What those tables cannot tell stands in Notes.cpp.

namespace plandesk::contract {

/// Of the contract: the first number grows when an element, a position or a rule changes, the second with the wording.
inline constexpr std::string_view contractVersion = "1.0";

/// Numbered elements of one kind that the schemas know: OWNER1 to OWNER99.
inline constexpr int mostNumbered = 99;

/// One splitting of a text: its piece number `piece`, from 1, between separators; 0 means each piece in its turn, with
/// a separator behind the last one too.
struct Step {
    std::string separator;
    int piece;

    bool operator==(const Step& other) const = default;
};

/// The part of a piece that a value is, where two run together.
enum class Cut { None, First, BehindFirst, BeforeLast, Last };

enum class Kind { Text, YesNo, Date, Code, Number, Count, Empty };

struct Code {
    std::string code;
    std::string meaning;
};

/// One value in the text of an element.
struct Value {
    std::vector<Step> place;  ///< none: the whole text
    Cut cut = Cut::None;
    std::string question;
    std::string group;  ///< heading that the question stands under
    std::string unit;
    std::string form;
    std::vector<std::string> controls;  ///< keys of the controls that hold it, for an answer of options each of them
    std::string table;                  ///< for a cell of a table, with its column
    std::string column;
    Kind kind = Kind::Text;
    std::vector<Code> codes;
    bool mayBeEmpty = false;
    bool open = false;  ///< kept as text, so that it can be another one, though hardly ever is
    std::string typed;  ///< what can be typed there, when that is less than any text
    std::optional<std::string> example;
    std::string reading;  ///< what opening the file makes of it
};

/// How often an element stands where it may stand. Numbered: from none to many, each with its number, from 1, behind
/// the name.
enum class Times { Once, AtMostOnce, Numbered };

struct Element {
    std::string name;
    std::string path;  ///< names from below the root on, "<n>" for a number
    Times times = Times::Once;
    std::string attribute;                ///< as it is written, without its value
    std::vector<std::string> attributes;  ///< the values that it can have
    bool escaped = false;
    bool packed = false;  ///< a value of a list of elements: a "$$" in one moves those behind it
    std::vector<Element> children;
    std::vector<Value> values;
    std::vector<std::string> alternatives;  ///< further patterns of the whole text, "{t}" for a text without separators
    std::vector<std::string> looser;        ///< the same where values do not stand at their places
    int fewest = 0;                         ///< pieces of the shortest list, where not all have all
    std::string text;                       ///< pattern of a text in it, where that is not any text
    std::string note;

    bool isLeaf() const { return children.empty(); }
};

/// The root element. RuntimeError for what the tables and the notes do not tell together.
Element collect();

/// What a text is made of: of each value, of a separator, and of what is there any number of times.
struct Composition {
    std::function<std::string(const Value& value)> of;
    std::function<std::string(const std::string& separator)> sign;
    std::function<std::string(const std::string& piece)> repeated;
};
/// The values of an element put together by their places.
std::string composed(const std::vector<Value>& values, const Composition& composition);
/// The value in the text; nothing when the text has no such piece.
std::string valueIn(const Value& value, std::string_view text);

/// A document with every element once and every value filled in.
std::string exampleDocument(const Element& root);
/// Opens the example in a fresh system and saves it again: fills in what becomes of each value.
void findReadings(Element& root);

/// The schema of what can be written. `strict`: of the documents in which no value holds a separator, so that each
/// value stands at its place.
std::string schema(const Element& root, bool strict);
/// The reference table for people, and for programs.
std::string referencePage(const Element& root);
std::string positions(const Element& root);

}  // namespace plandesk::contract
