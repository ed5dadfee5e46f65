#include "explain/captions/caption_decoder.h"

#include <algorithm>

// Modes and memories, by CEA-608-E, annex C, and 47 CFR 79.101: a change to roll-up erases both
// memories (C.10); a base row without room for the rows above it is lowered (C.4, C.7); EOC
// exchanges the memories and erases neither (C.10, C.11).

namespace norvane {

namespace {

constexpr RowSet kAllRows = ~RowSet{0};

} // namespace

void CaptionDecoder::take(const CodeMeaning &meaning, const Moment &moment) {
    switch (meaning.kind == CodeKind::control ? meaning.code : 0) {
    case code::kRcl:
        mode_ = CaptionMode::popOn;
        return;
    case code::kRdc:
        mode_ = CaptionMode::paintOn;
        shown_.beginPainting();
        return;
    case code::kRu2:
    case code::kRu3:
    case code::kRu4:
        beginRollUp(meaning.code - code::kRu2 + 2, moment);
        return;
    case code::kEoc:
        showLoaded(moment);
        return;
    default:
        if (mode_)
            takeInMode(meaning, moment);
    }
}

void CaptionDecoder::takeInMode(const CodeMeaning &meaning, const Moment &moment) {
    switch (meaning.code) {
    case code::kEdm:
        eraseDisplayed(moment);
        break;
    case code::kEnm:
        eraseLoaded(&moment);
        break;
    case code::kCr:
        if (mode_ == CaptionMode::rollUp)
            carriageReturn(moment);
        break;
    default:
        takeOnRow(meaning, moment);
    }
}

void CaptionDecoder::showLoaded(const Moment &moment) {
    mode_ = CaptionMode::popOn;
    shown_.end(displayed(), kAllRows, &moment);
    displayed_ = 1 - displayed_;
    displayed().forgetFresh();
    loaded().forgetFresh();
    shown_.show(displayed().readableRows(), CaptionMode::popOn, moment);
}

void CaptionDecoder::eraseDisplayed(const Moment &moment) {
    shown_.end(displayed(), kAllRows, &moment);
    displayed().clear();
}

void CaptionDecoder::eraseLoaded(const Moment *moment) {
    ScreenMemory &memory = loaded();
    const RowSet rows = memory.freshRows() & memory.readableRows();
    if (rows != 0) {
        Caption caption;
        caption.service = service_;
        for (int row = 0; row < kScreenRows; ++row) {
            if ((rows >> row & 1U) != 0)
                caption.rows.push_back(memory.rowOf(row));
        }
        if (moment != nullptr)
            caption.removedBy = *moment;
        sink_(std::move(caption));
    }
    memory.clear();
}

void CaptionDecoder::beginRollUp(int depth, const Moment &moment) {
    if (mode_ != CaptionMode::rollUp) {
        eraseDisplayed(moment);
        eraseLoaded(&moment);
        mode_ = CaptionMode::rollUp;
        row_ = kScreenRows - 1;
        column_ = 0;
        isFull_ = false;
        style_ = {};
        rowStyle_ = {};
    } else if (depth < depth_) {
        const RowSet above = (RowSet{1} << (row_ - depth + 1)) - 1;
        shown_.end(displayed(), above, &moment);
        for (int row = row_ - depth_ + 1; row <= row_ - depth; ++row)
            displayed().clearRow(row);
    } else if (depth > depth_) {
        setBaseRow(std::max(row_, depth - 1));
    }
    depth_ = depth;
}

void CaptionDecoder::setBaseRow(int row) {
    displayed().moveRows(row_ - depth_ + 1, row_, row - row_);
    shown_.moveRows(row - row_);
    row_ = row;
}

void CaptionDecoder::carriageReturn(const Moment &moment) {
    const int top = row_ - depth_ + 1;
    shown_.end(displayed(), RowSet{1} << top, &moment);
    displayed().clearRow(top);
    displayed().moveRows(top + 1, row_, -1);
    shown_.moveRows(-1);
    column_ = 0;
    isFull_ = false;
    style_ = {};
    rowStyle_ = {};
}

void CaptionDecoder::finish() {
    shown_.end(displayed(), kAllRows, nullptr);
    displayed().clear();
    eraseLoaded(nullptr);
}

} // namespace norvane
