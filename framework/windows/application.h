#pragma once

#include "framework/windows/menu.h"

#include <functional>
#include <string>
#include <vector>

namespace norvane {

/// The application object: the shared menu bar and the handlers of its items.
class Application {
  public:
    /// A handler returns true when it claims the command.
    using MenuHandler = std::function<bool()>;

    Application() = default;
    virtual ~Application() = default;
    Application(const Application &) = delete;
    Application &operator=(const Application &) = delete;

    struct MenuBar *MenuBar = nullptr; // shared, not owned

    virtual void Event_Open() {}
    /// Raised before menus are shown.
    virtual void Event_EnableMenuItems() {}

    /// Binds a handler to the items named `itemName`, if there are any, instead of an earlier one.
    void _AddMenuHandler(const std::string &itemName, MenuHandler handler); // NOLINT: as named

    /// Runs the handler of a name, under the guard; a name without one does nothing.
    void menuCommand(const std::string &itemName) const;

  private:
    struct Binding {
        std::string itemName;
        MenuHandler handler;
    };
    std::vector<Binding> bindings_;
};

} // namespace norvane
