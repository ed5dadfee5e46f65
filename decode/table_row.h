#pragma once

#include <string_view>

namespace norvane {

/// A row of a replacement table, in UTF-8.
struct TableRow {
    std::string_view key;
    std::string_view with;
};

} // namespace norvane
