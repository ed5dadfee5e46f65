#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// Runs a text as a file through the modes of a window without a screen, in an order and with
/// options that the first three bytes choose, and tells where a transcript, a message or an array
/// differs from what the plain road gives; "" when nothing does. What a mode leaves behind meets
/// the next.
std::string differenceOfModes(std::string_view bytes);

} // namespace norvane
