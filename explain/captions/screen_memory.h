#pragma once

#include "explain/captions/caption.h"
#include "explain/standard/codes.h"

#include <algorithm>
#include <array>

namespace norvane {

/// A set of rows: bit 0 is the first row.
using RowSet = std::uint32_t;
/// A set of columns of a row: bit 0 is the first column.
using ColumnSet = std::uint32_t;

/// One of the two memories of a service. Rows and columns count from 0 here. Only what is marked as
/// written counts, so that clearing touches no cell.
class ScreenMemory {
  public:
    ColumnSet written(int row) const { return written_[index(row)]; }
    ColumnSet printing(int row) const { return printing_[index(row)]; }
    const Cell &cell(int row, int column) const { return cells_[index(row)][index(column)]; }
    bool isWritten(int row, int column) const { return (written(row) >> column & 1U) != 0; }

    /// The rows with printing characters.
    RowSet readableRows() const;

    /// Rows with characters that were written since the memory was last shown or cleared.
    RowSet freshRows() const { return fresh_; }
    void forgetFresh() { fresh_ = 0; }

    void put(int row, int column, const Cell &cell) {
        const ColumnSet bit = ColumnSet{1} << column;
        const ColumnSet shown = isPrinting(cell.code) ? bit : 0;
        cells_[index(row)][index(column)] = cell;
        written_[index(row)] |= bit;
        printing_[index(row)] = (printing(row) & ~bit) | shown;
        fresh_ |= RowSet{shown != 0} << row;
    }
    void erase(int row, ColumnSet columns);
    void setBeyond(int row, int columns) {
        beyond_[index(row)] = std::max(beyond_[index(row)], columns);
    }
    void clearRow(int row);
    void clear();

    /// Moves rows by `distance` rows down (up when negative); the rows that they leave are
    /// empty then. All of both places must lie on the screen.
    void moveRows(int first, int last, int distance);

    /// The row from its first printing character to its last, of which there must be one.
    CaptionRow rowOf(int row) const;

  private:
    static constexpr std::size_t index(int number) { return static_cast<std::size_t>(number); }
    void moveRow(int from, int to);

    template <class Of>
    using Rows = std::array<Of, kScreenRows>;
    Rows<ColumnSet> written_{};
    Rows<ColumnSet> printing_{};
    Rows<int> beyond_{};
    RowSet fresh_ = 0;
    Rows<std::array<Cell, kScreenColumns>> cells_{};
};

} // namespace norvane
