#pragma once

#include "framework/regex.h"

#include <string>

namespace norvane {

/// Whether a name counts as that of an SCC file in a folder: any character and "scc", anywhere in
/// it.
inline bool isSccName(const std::string &name) {
    static const RegEx patternRegEx(".scc");
    return patternRegEx.Search(name).has_value();
}

} // namespace norvane
