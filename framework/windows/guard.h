#pragma once

#include <functional>

namespace norvane {

/// Runs an action: a control's, whoever raised it, a menu command, a tick, a window's opening or
/// closing. A failure in it ends it there and is told in a message box; what raised it goes on. An
/// empty `action` does nothing.
void guarded(const std::function<void()> &action);

} // namespace norvane
