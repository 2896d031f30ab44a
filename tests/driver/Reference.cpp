#include "driver/Reference.h"

#include <algorithm>
#include <array>
#include <functional>
#include <type_traits>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "proposal/Grid.h"

namespace plandesk::driver {

namespace {

/// NAME, or NAME(NUMBER,NUMBER).
struct Segment {
    std::string name;
    std::vector<int> arguments;
};

std::vector<int> parseArguments(std::string_view inside, std::string_view reference) {
    std::vector<int> numbers;
    for (const std::string& piece : split(inside, ",")) {
        const std::optional<int> number = wholeNumber(trim(piece));
        if (!number || *number < 0)
            throw ScriptError("wrong reference " + quote(reference));
        numbers.push_back(*number);
    }
    return numbers;
}

std::vector<Segment> parseSegments(std::string_view reference) {
    std::vector<Segment> segments;
    for (const std::string& piece : split(reference, ".")) {
        const std::size_t bracket = piece.find('(');
        if (bracket == piece.npos) {
            segments.push_back({piece, {}});
            continue;
        }
        if (!piece.ends_with(')'))
            throw ScriptError("wrong reference " + quote(reference));
        segments.push_back(
            {piece.substr(0, bracket),
             parseArguments(std::string_view(piece).substr(bracket + 1, piece.size() - bracket - 2), reference)});
        if (segments.back().arguments.empty())
            throw ScriptError("wrong reference " + quote(reference));
    }
    const bool shaped = segments.size() >= 2 && segments.size() <= 3 && segments.front().arguments.empty();
    if (!shaped)
        throw ScriptError("wrong reference " + quote(reference));
    return segments;
}

Control* controlOrNull(const Form& form, const Segment& segment) {
    if (segment.arguments.empty())
        return form.find(segment.name);
    return segment.arguments.size() == 1 ? form.find(segment.name, segment.arguments.front()) : nullptr;
}

Control& controlIn(const Form& form, const Segment& segment, std::string_view reference) {
    if (Control* control = controlOrNull(form, segment))
        return *control;
    throw ScriptError("unknown control " + quote(reference));
}

[[noreturn]] void unknownProperty(std::string_view reference) {
    throw ScriptError("unknown control or property " + quote(reference));
}

PropertyValue formProperty(const Form& form, std::string_view name, std::string_view reference) {
    if (equalsIgnoringCase(name, "caption"))
        return form.caption();
    if (equalsIgnoringCase(name, "visible"))
        return form.visible();
    if (equalsIgnoringCase(name, "front"))
        return form.front();
    if (equalsIgnoringCase(name, "backcolor"))
        return form.backColor().text();
    unknownProperty(reference);
}

PropertyValue mainWindowProperty(const Session& session, std::string_view name, std::string_view reference) {
    if (equalsIgnoringCase(name, "caption"))
        return session.proposal.screen.caption();
    if (equalsIgnoringCase(name, "visible") || equalsIgnoringCase(name, "loaded"))
        return !session.proposal.screen.ended();
    if (equalsIgnoringCase(name, "backcolor"))
        return session.shell.backColor().text();
    unknownProperty(reference);
}

bool isLoaded(const Session& session, const std::string& form) {
    if (!session.proposal.forms.known(form))
        throw ScriptError("unknown form " + quote(form));
    return session.proposal.forms.loaded(form) != nullptr;
}

using Arguments = std::vector<int>;
using Found = std::optional<PropertyValue>;

template <class Value>
PropertyValue propertyValue(const Value& value) {
    if constexpr (std::is_same_v<Value, std::string_view>)
        return std::string(value);
    else
        return value;
}

/// Reads a property that controls of the kind have. `reader` takes the control and the arguments of the property.
template <class Kind, auto reader>
Found read(const Control& control, const Arguments& arguments) {
    const auto* wanted = dynamic_cast<const Kind*>(&control);
    if (!wanted)
        return std::nullopt;
    if constexpr (std::is_invocable_v<decltype(reader), const Kind&, int, int>)
        return propertyValue(std::invoke(reader, *wanted, arguments[0], arguments[1]));
    else if constexpr (std::is_invocable_v<decltype(reader), const Kind&, int>)
        return propertyValue(std::invoke(reader, *wanted, arguments[0]));
    else
        return propertyValue(std::invoke(reader, *wanted));
}

Found textProperty(const Control& control, const Arguments& none) {
    if (Found text = read<TextBox, &TextBox::text>(control, none))
        return text;
    if (Found text = read<ComboBox, &ComboBox::text>(control, none))
        return text;
    return read<RichText, &RichText::html>(control, none);
}

Found valueProperty(const Control& control, const Arguments& none) {
    if (Found value = read<CheckBox, &CheckBox::value>(control, none))
        return value;
    return read<OptionButton, &OptionButton::value>(control, none);
}

std::string dateOf(const DatePicker& picker) {
    return picker.date().text();
}

std::string backColorOf(const Control& control) {
    return control.backColor().text();
}

/// RuntimeError 381 for a cell or column that the grid does not have.
void demand(bool there) {
    if (!there)
        throw RuntimeError(ErrorNumber::InvalidPropertyArrayIndex);
}

GridColumn columnOf(const Grid& grid, int column) {
    demand(column < grid.columnCount());
    return grid.column(column);
}

std::string columnCaption(const Grid& grid, int column) {
    return std::string(columnOf(grid, column).caption);
}

int columnWidth(const Grid& grid, int column) {
    return columnOf(grid, column).width;
}

std::string cellOf(const Grid& grid, int row, int column) {
    demand(row < grid.rowCount() && column < grid.columnCount());
    return grid.cellText(row, column);
}

struct Property {
    std::string_view name;
    std::size_t arguments;
    Found (*read)(const Control& control, const Arguments& arguments);
};

constexpr std::array properties = std::to_array<Property>({
    {"text", 0, textProperty},
    {"value", 0, valueProperty},
    {"caption", 0, read<Captioned, &Captioned::caption>},
    {"listindex", 0, read<ComboBox, &ComboBox::listIndex>},
    {"listcount", 0, read<ComboBox, &ComboBox::listCount>},
    {"item", 1, read<ComboBox, &ComboBox::item>},
    {"itemdata", 1, read<ComboBox, &ComboBox::itemData>},
    {"date", 0, read<DatePicker, dateOf>},
    {"tab", 0, read<TabStrip, &TabStrip::tab>},
    {"visible", 0, read<Control, &Control::visible>},
    {"enabled", 0, read<Control, &Control::enabled>},
    {"locked", 0, read<TextBox, &TextBox::locked>},
    {"backcolor", 0, read<Control, backColorOf>},
    {"focused", 0, read<Control, &Control::focused>},
    {"rowcount", 0, read<Grid, &Grid::rowCount>},
    {"columncaption", 1, read<Grid, columnCaption>},
    {"columnwidth", 1, read<Grid, columnWidth>},
    {"cell", 2, read<Grid, cellOf>},
    {"row", 0, read<Grid, &Grid::currentRow>},
    {"column", 0, read<Grid, &Grid::currentColumn>},
});

}  // namespace

std::string textOf(const PropertyValue& value) {
    if (const auto* flag = std::get_if<bool>(&value))
        return *flag ? "true" : "false";
    if (const auto* number = std::get_if<int>(&value))
        return std::to_string(*number);
    return std::get<std::string>(value);
}

std::vector<std::string_view> ownProperties(const Control& control) {
    switch (control.kind()) {
    case ControlKind::TextBox:
    case ControlKind::RichText:
        return {"text"};
    case ControlKind::OptionButton:
    case ControlKind::CheckBox:
        return {"value"};
    case ControlKind::ComboBox:
        return {"listindex", "text"};
    case ControlKind::DatePicker:
        return {"date"};
    case ControlKind::TabStrip:
        return {"tab"};
    case ControlKind::Grid:
        return {"rowcount", "row", "column"};
    case ControlKind::Label:
    case ControlKind::Button:
    case ControlKind::Image:
    case ControlKind::Frame:
        return {"caption"};
    }
    return {};
}

std::optional<PropertyValue> property(const Control& control, std::string_view name, const Arguments& arguments) {
    const auto found =
        std::ranges::find_if(properties, [&](const Property& p) { return equalsIgnoringCase(p.name, name); });
    if (found == properties.end() || found->arguments != arguments.size())
        return std::nullopt;
    return found->read(control, arguments);
}

Control& findControl(Session& session, const Word& reference) {
    const std::vector<Segment> segments = parseSegments(reference.text);
    if (segments.size() != 2)
        throw ScriptError(quote(reference.text) + " is no control");
    return controlIn(session.form(segments[0].name), segments[1], reference.text);
}

PropertyValue valueOf(Session& session, const Word& reference) {
    const std::vector<Segment> segments = parseSegments(reference.text);
    const std::string& formName = segments[0].name;
    const Segment& second = segments[1];
    const bool bare = segments.size() == 2 && second.arguments.empty();
    if (bare && equalsIgnoringCase(formName, "mdiInterface"))
        return mainWindowProperty(session, second.name, reference.text);
    if (bare && equalsIgnoringCase(second.name, "loaded"))
        return isLoaded(session, formName);
    const Form& form = session.form(formName);
    if (segments.size() == 3) {
        const Control& control = controlIn(form, second, reference.text);
        if (Found value = property(control, segments[2].name, segments[2].arguments))
            return *value;
        unknownProperty(reference.text);
    }
    if (const Control* control = controlOrNull(form, second)) {
        // Of a list, the text is the value; a grid has none of its own.
        if (control->kind() == ControlKind::Grid)
            unknownProperty(reference.text);
        return *property(*control, ownProperties(*control).back());
    }
    if (!bare)
        throw ScriptError("unknown control " + quote(reference.text));
    return formProperty(form, second.name, reference.text);
}

}  // namespace plandesk::driver
