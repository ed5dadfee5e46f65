#include "explain/captions/shown_captions.h"

#include <algorithm>
#include <bit>

// The standard knows memories, not captions. Here each row with something to read has one owner at
// any time; an event that changes or erases a row ends its owner, or a part of it, which keeps the
// row as it was. So a caption is passed on once its last row is gone, and with it its text at its
// end, not at its start.

namespace norvane {

namespace {

RowSet setOf(int row) {
    return RowSet{1} << row;
}

} // namespace

std::size_t ShownCaptions::ownerOf(int row) const {
    std::size_t owner = 0;
    while (owner < shown_.size() && (shown_[owner].rows & setOf(row)) == 0)
        ++owner;
    return owner;
}

void ShownCaptions::beforeChange(const ScreenMemory &screen, int row, ColumnSet printing,
                                 CaptionMode mode, const Moment &moment) {
    const std::size_t owner = ownerOf(row);
    const bool isOwned = owner < shown_.size();
    const bool goesOn =
        isOwned && (mode == CaptionMode::rollUp ? shown_[owner].caption.mode == mode
                                                : shown_[owner].caption.number == painting_);
    if (goesOn) {
        if (printing == 0)
            endRows(owner, screen, setOf(row), &moment);
    } else if (mode == CaptionMode::rollUp) {
        show(setOf(row), mode, moment);
    } else {
        RowSet rows = setOf(row);
        if (isOwned) {
            if (shown_[owner].caption.mode == CaptionMode::popOn)
                rows = shown_[owner].rows;
            endRows(owner, screen, rows, &moment);
        }
        paint(printing != 0 ? rows : rows & ~setOf(row), moment);
    }
}

void ShownCaptions::paint(RowSet rows, const Moment &moment) {
    const auto goesOn = std::find_if(shown_.begin(), shown_.end(), [this](const Shown &shown) {
        return shown.caption.number == painting_;
    });
    if (goesOn != shown_.end()) {
        goesOn->rows |= rows;
        countRows();
    } else if (rows != 0) {
        show(rows, CaptionMode::paintOn, moment);
        painting_ = lastNumber_;
    }
}

void ShownCaptions::show(RowSet rows, CaptionMode mode, const Moment &moment) {
    if (rows == 0)
        return;
    Caption caption;
    caption.number = ++lastNumber_;
    caption.service = service_;
    caption.mode = mode;
    caption.shownBy = moment;
    shown_.push_back({std::move(caption), rows, std::countr_zero(rows)});
    countRows();
}

void ShownCaptions::countRows() {
    int rows = 0;
    for (const Shown &shown : shown_)
        rows += std::popcount(shown.rows);
    for (Shown &shown : shown_)
        shown.caption.rowsOnScreen = std::max(shown.caption.rowsOnScreen, rows);
}

void ShownCaptions::end(const ScreenMemory &screen, RowSet rows, const Moment *moment) {
    for (std::size_t i = 0; i < shown_.size();) {
        const std::size_t before = shown_.size();
        endRows(i, screen, rows, moment);
        i += shown_.size() == before ? 1 : 0;
    }
}

void ShownCaptions::endRows(std::size_t owner, const ScreenMemory &screen, RowSet rows,
                            const Moment *moment) {
    Shown &shown = shown_[owner];
    rows &= shown.rows;
    if (rows == 0)
        return;
    for (int row = 0; row < kScreenRows; ++row) {
        if ((rows & setOf(row)) != 0)
            shown.caption.rows.push_back(screen.rowOf(row));
    }
    shown.rows &= ~rows;
    if (shown.rows != 0)
        return;
    Caption caption = std::move(shown.caption);
    if (caption.mode == CaptionMode::rollUp)
        caption.rows.front().row = shown.began + 1;
    shown_.erase(shown_.begin() + static_cast<std::ptrdiff_t>(owner));
    if (caption.number == painting_)
        painting_ = 0;
    std::stable_sort(caption.rows.begin(), caption.rows.end(),
                     [](const CaptionRow &a, const CaptionRow &b) { return a.row < b.row; });
    if (moment != nullptr)
        caption.removedBy = *moment;
    sink_(std::move(caption));
}

void ShownCaptions::moveRows(int distance) {
    for (Shown &shown : shown_)
        shown.rows = distance < 0 ? shown.rows >> -distance : shown.rows << distance;
}

} // namespace norvane
