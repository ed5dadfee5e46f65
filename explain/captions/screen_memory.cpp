#include "explain/captions/screen_memory.h"

#include <bit>

namespace norvane {

RowSet ScreenMemory::readableRows() const {
    RowSet rows = 0;
    for (int row = 0; row < kScreenRows; ++row)
        rows |= printing(row) != 0 ? RowSet{1} << row : 0;
    return rows;
}

void ScreenMemory::erase(int row, ColumnSet columns) {
    written_[index(row)] &= ~columns;
    printing_[index(row)] &= ~columns;
}

void ScreenMemory::clearRow(int row) {
    erase(row, ~ColumnSet{0});
    beyond_[index(row)] = 0;
}

void ScreenMemory::clear() {
    written_.fill(0);
    printing_.fill(0);
    beyond_.fill(0);
    fresh_ = 0;
}

void ScreenMemory::moveRow(int from, int to) {
    written_[index(to)] = written(from);
    printing_[index(to)] = printing(from);
    beyond_[index(to)] = beyond_[index(from)];
    cells_[index(to)] = cells_[index(from)];
    clearRow(from);
}

void ScreenMemory::moveRows(int first, int last, int distance) {
    if (distance < 0) {
        for (int row = first; row <= last; ++row)
            moveRow(row, row + distance);
    } else if (distance > 0) {
        for (int row = last; row >= first; --row)
            moveRow(row, row + distance);
    }
}

CaptionRow ScreenMemory::rowOf(int row) const {
    const int first = std::countr_zero(printing(row));
    const int last = kScreenColumns - 1 - std::countl_zero(printing(row));
    CaptionRow text{row + 1, first + 1, beyond_[index(row)]};
    text.cells.reserve(index(last - first + 1));
    for (int column = first; column <= last; ++column)
        text.cells.push_back(isWritten(row, column) ? cell(row, column) : Cell());
    return text;
}

} // namespace norvane
