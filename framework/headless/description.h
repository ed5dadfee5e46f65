#pragma once

#include "framework/windows/window.h"

#include <string>

namespace norvane {

/// What may change of a control, in words that begin with a blank each: ' "15" hidden disabled'.
std::string stateOf(RectControl &control);

/// A window in words: a line of its title, sizes (now, least, most) and what its user may do to it,
/// then one for each control in tab order, with its kind, place, size, caption and state. An end of
/// line in a text is "\r" here.
std::string describe(const Window &window);

} // namespace norvane
