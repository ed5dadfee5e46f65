#include "framework/windows/application.h"

#include "framework/windows/guard.h"

namespace norvane {

void Application::_AddMenuHandler(const std::string &itemName, MenuHandler handler) {
    std::erase_if(bindings_, [&](const Binding &old) { return old.itemName == itemName; });
    bindings_.push_back({itemName, std::move(handler)});
}

void Application::menuCommand(const std::string &itemName) const {
    for (const Binding &binding : bindings_) {
        if (binding.itemName == itemName)
            guarded([&] { binding.handler(); });
    }
}

} // namespace norvane
