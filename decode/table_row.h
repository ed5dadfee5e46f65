#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace norvane {

/// A row of a replacement table, in UTF-8.
struct TableRow {
    std::string_view key;
    std::string_view with;
};

/// The rows of groups, one group after another. A group's keys and replacements are separated by
/// blanks and stand in the same order; where there is one key, both are the whole texts.
template <std::size_t rows, std::size_t groups>
consteval std::array<TableRow, rows> rowsOf(const TableRow (&table)[groups]) {
    const auto take = [](std::string_view &texts) {
        const std::string_view text = texts.substr(0, texts.find(' '));
        texts.remove_prefix(text.size());
        texts.remove_prefix(texts.empty() ? 0 : texts.find_first_not_of(' '));
        return text;
    };
    std::array<TableRow, rows> result{};
    std::size_t row = 0;
    for (TableRow group : table) {
        if (group.key.find(' ') == std::string_view::npos) {
            result.at(row++) = group;
            continue;
        }
        while (!group.key.empty() && !group.with.empty())
            result.at(row++) = {take(group.key), take(group.with)};
        if (!group.key.empty() || !group.with.empty())
            throw "a group has another number of keys than of replacements";
    }
    if (row != rows)
        throw "the table has another number of rows";
    return result;
}

} // namespace norvane
