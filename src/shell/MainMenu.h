#pragma once

#include <span>
#include <string_view>

namespace plandesk {

enum class EntryKind {
    Submenu,
    Command,  ///< one of the main window's own commands
    Form,     ///< brings a form to the front
    Icon,     ///< presses an icon of the mandatory checklist
};

/// One entry of the main menu.
struct MenuEntry {
    std::string_view name;
    std::string_view caption;  ///< "&" before the mnemonic
    std::string_view parent;   ///< name of the submenu it stands in; empty for the menu bar
    EntryKind kind = EntryKind::Command;
    std::string_view form{};  ///< form that must exist for the entry to be there, or empty
    int icon = 0;
};

/// The menu in its order, each submenu before its entries.
std::span<const MenuEntry> mainMenu();

/// The entry of that name in any case; null when there is none.
const MenuEntry* findMenuEntry(std::string_view name);

}  // namespace plandesk
