#include "driver/Dump.h"

#include <algorithm>

#include <nlohmann/json.hpp>

#include "base/Text.h"

namespace plandesk::driver {

namespace {

using Json = nlohmann::ordered_json;

Json toJson(const PropertyValue& value) {
    return std::visit([](const auto& held) { return Json(held); }, value);
}

Json toJson(const Control& control) {
    Json entry;
    entry["kind"] = kindName(control.kind());
    entry["visible"] = control.visible();
    entry["enabled"] = control.enabled();
    for (const std::string_view name : ownProperties(control))
        entry[std::string(name)] = toJson(*property(control, name));
    return entry;
}

Json toJson(const Form& form) {
    Json entry;
    entry["visible"] = form.visible();
    entry["caption"] = form.caption();
    Json& controls = entry["controls"] = Json::object();
    for (const Control* control : form.controls())
        controls[control->key()] = toJson(*control);
    return entry;
}

Json toJson(const Value& cell) {
    if (isNull(cell))
        return nullptr;
    if (const auto* date = std::get_if<Date>(&cell))
        return date->text();
    if (const auto* number = std::get_if<std::int32_t>(&cell))
        return *number;
    if (const auto* number = std::get_if<double>(&cell))
        return *number;
    if (const auto* flag = std::get_if<bool>(&cell))
        return *flag;
    return std::get<std::string>(cell);
}

Json toJson(const Recordset& table) {
    Json entry;
    Json& columns = entry["columns"] = Json::array();
    for (const Column& column : table.columns())
        columns.push_back(column.name);
    entry["filter"] = table.filter();
    Json& rows = entry["rows"] = Json::array();
    for (const std::span<const Value> row : table.allRows()) {
        Json cells = Json::array();
        for (const Value& value : row)
            cells.push_back(toJson(value));
        rows.push_back(std::move(cells));
    }
    return entry;
}

template <class Named, class Member>
Json members(const Proposal& proposal, const Named& names, Member member) {
    Json entry = Json::object();
    for (const auto& named : names)
        entry[std::string(named.name)] = proposal.*(named.*member);
    return entry;
}

Json messages(const RecordingDialogs& dialogs) {
    Json list = Json::array();
    for (const Message& message : dialogs.messages)
        list.push_back({{"title", message.title}, {"text", message.text}, {"icon", iconName(message.icon)}});
    return list;
}

}  // namespace

void writeDump(const Session& session, std::ostream& out) {
    const Proposal& proposal = session.proposal;
    Json state;
    state["caption"] = proposal.screen.caption();
    state["flags"] = members(proposal, Proposal::flags, &Proposal::FlagName::flag);
    state["numbers"] = members(proposal, Proposal::numbers, &Proposal::NumberName::number);
    state["fragments"] = members(proposal, Proposal::fragments, &Proposal::FragmentName::text);
    Json& menus = state["menus"] = Json::object();
    for (const MenuEntry& entry : mainMenu())
        menus[std::string(entry.name)] = session.shell.available(entry.name);
    Json& forms = state["forms"] = Json::object();
    for (const auto& [name, form] : proposal.forms.all())
        forms[name] = toJson(*form);
    Json& tables = state["tables"] = Json::object();
    for (const auto& [name, table] : proposal.tables.byName())
        if (table)
            tables[std::string(name)] = toJson(*table);
    state["messages"] = messages(session.dialogs);
    state["shown"] = session.reports.shown;
    state["printed"] = session.reports.printed;
    // A text that is not valid UTF-8 does not stop the dump.
    out << state.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

std::optional<PropertyValue> projectValue(const Proposal& proposal, std::string_view name) {
    const auto named = [name](const auto& entry) { return equalsIgnoringCase(entry.name, name); };
    if (const auto flag = std::ranges::find_if(Proposal::flags, named); flag != Proposal::flags.end())
        return proposal.*flag->flag;
    if (const auto number = std::ranges::find_if(Proposal::numbers, named); number != Proposal::numbers.end())
        return int{proposal.*number->number};
    if (const auto text = std::ranges::find_if(Proposal::fragments, named); text != Proposal::fragments.end())
        return proposal.*text->text;
    if (equalsIgnoringCase(name, "activeButtonColor"))
        return proposal.activeButtonColor.text();
    if (equalsIgnoringCase(name, "formBackColor"))
        return proposal.formBackColor.text();
    return std::nullopt;
}

std::string cellText(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value))
        return textOf(*flag);
    return isNull(value) ? "null" : valueText(value);
}

}  // namespace plandesk::driver
