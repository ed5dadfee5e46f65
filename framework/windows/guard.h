#pragma once

#include <functional>

namespace norvane {

/// Runs an entry from the event loop: a control's action, a menu command, a tick, a window's
/// opening or closing. A failure in it ends it there and is told in a message box; the program goes
/// on. An empty `entry` does nothing.
void guarded(const std::function<void()> &entry);

} // namespace norvane
