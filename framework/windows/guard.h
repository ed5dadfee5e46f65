#pragma once

#include <functional>

namespace norvane {

/// Runs an action: a control's, whoever raised it, a menu command, a tick, a window's opening or
/// closing. A failure ends it there and is reported in a message box; what raised it goes on. An
/// empty `action` does nothing.
void guarded(const std::function<void()> &action);

/// Whether an action is running: other actions, and the end of a window, have to wait for it.
bool actionAtWork();

} // namespace norvane
