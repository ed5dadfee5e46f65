#pragma once

#include "explain/checks/findings.h"

namespace norvane {

/// The findings on a whole file, in the order of its lines. Any text is taken.
std::vector<Finding> check(std::string_view text, const FindingKinds &wanted);

} // namespace norvane
