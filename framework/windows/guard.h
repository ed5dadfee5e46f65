#pragma once

#include <functional>

namespace norvane {

/// Runs an action: a control's, whoever raised it, a menu command, a tick, a window's opening or
/// closing. A failure ends it there and is reported in a message box; what raised it goes on. An
/// empty `action` does nothing.
void guarded(const std::function<void()> &action);

/// Whether an action has begun and not ended: whoever asks for another one meanwhile, or for the
/// end of a window, has to wait.
bool actionAtWork();

} // namespace norvane
