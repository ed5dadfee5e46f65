#pragma once

#include <string>
#include <vector>

namespace norvane {

enum class MenuKind {
    plain,
    separator,
    QuitMenuItem, // placed where the platform has Quit
    PrefsMenuItem // placed where the platform has its settings
};

/// An item of a menu, or a menu with its items. "&" marks the access letter.
struct MenuItem {
    std::string Name;
    std::string Text;
    std::string Shortcut{}; // "Cmd+Q"; Cmd is the platform's command key
    MenuKind kind = MenuKind::plain;
    std::vector<MenuItem> items{};
    bool AutoEnable = true;
    bool Visible = true;
    bool Enabled = true;
};

struct MenuBar {
    std::vector<MenuItem> menus;
};

} // namespace norvane
