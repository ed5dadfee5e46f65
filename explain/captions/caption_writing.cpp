#include "explain/captions/caption_decoder.h"

#include <algorithm>

/// What of CaptionDecoder moves the cursor and writes.
namespace norvane {

namespace {

constexpr int kLastColumn = kScreenColumns - 1;
constexpr std::uint16_t kBlank = 0x2000;

constexpr ColumnSet before(int column) {
    return (ColumnSet{1} << column) - 1;
}

constexpr bool isUnderlined(std::uint16_t code) {
    return (code & 1U) != 0;
}

/// The colour or italics of a preamble or mid-row code.
void setAttribute(Style &style, std::uint16_t code) {
    constexpr unsigned kItalics = 7;
    const unsigned attribute = code >> 1U & 7U;
    style.italics = attribute == kItalics;
    if (!style.italics)
        style.colour = static_cast<Colour>(attribute);
    style.underlined = isUnderlined(code);
    style.flashes = false;
}

} // namespace

void CaptionDecoder::takeOnRow(const CodeMeaning &meaning, const Moment &moment) {
    const std::uint16_t code = meaning.code;
    switch (meaning.kind) {
    case CodeKind::text:
        for (const int byte : {code >> 8, code & 0xFF}) {
            if (byte != 0)
                write(static_cast<std::uint16_t>(byte << 8), moment);
        }
        break;
    case CodeKind::special:
        takeSpecial(code, moment);
        break;
    case CodeKind::extended:
        stepBack();
        write(code, moment);
        break;
    case CodeKind::preamble:
        takePreamble(code);
        break;
    case CodeKind::midRow:
        style_ = styleHere();
        setAttribute(style_, code);
        put(kBlank, style_, moment);
        break;
    case CodeKind::background:
        takeBackground(code, moment);
        break;
    case CodeKind::tabOffset:
        moveRight(code & 3);
        break;
    case CodeKind::control:
        takeEditing(code, moment);
        break;
    default:
        break;
    }
}

void CaptionDecoder::takeEditing(std::uint16_t code, const Moment &moment) {
    switch (code) {
    case code::kBs:
        backspace(moment);
        break;
    case code::kDer:
        erase(~before(column_), moment);
        isFull_ = false;
        break;
    case code::kFon:
        style_ = styleHere();
        style_.flashes = true;
        put(kBlank, style_, moment);
        break;
    default:
        break;
    }
}

void CaptionDecoder::takeSpecial(std::uint16_t code, const Moment &moment) {
    constexpr std::uint16_t kTransparentSpace = 0x1139;
    if (code == kTransparentSpace) {
        erase(ColumnSet{1} << column_, moment);
        moveRight(1);
    } else {
        write(code, moment);
    }
}

void CaptionDecoder::takePreamble(std::uint16_t code) {
    const int row = rowOfPreamble(code) - 1;
    if (mode_ == CaptionMode::rollUp)
        setBaseRow(std::max(row, depth_ - 1));
    else
        row_ = row;
    column_ = 0;
    isFull_ = false;
    style_ = {};
    if (isIndent(code)) {
        column_ = indentOf(code);
        style_.underlined = isUnderlined(code);
    } else {
        setAttribute(style_, code);
    }
    rowStyle_ = style_;
}

void CaptionDecoder::takeBackground(std::uint16_t code, const Moment &moment) {
    constexpr std::uint16_t kTransparent = 0x172D;
    constexpr std::uint16_t kForegroundBlack = 0x172E;
    stepBack();
    style_ = styleHere();
    if (code >= kForegroundBlack) {
        style_.colour = Colour::black;
        style_.italics = false;
        style_.underlined = isUnderlined(code);
    } else if (code == kTransparent) {
        style_.background = Colour::transparent;
        style_.semiTransparent = false;
    } else {
        style_.background = static_cast<Colour>(code >> 1U & 7U);
        style_.semiTransparent = (code & 1U) != 0;
    }
    put(kBlank, style_, moment);
}

Style CaptionDecoder::styleHere() {
    const ScreenMemory &memory = written();
    return column_ > 0 && memory.isWritten(row_, column_ - 1) ? memory.cell(row_, column_ - 1).style
                                                              : style_;
}

void CaptionDecoder::write(std::uint16_t character, const Moment &moment) {
    put(character, styleHere(), moment);
}

void CaptionDecoder::put(std::uint16_t character, const Style &style, const Moment &moment) {
    ScreenMemory &memory = written();
    if (isOnScreen()) {
        const ColumnSet bit = ColumnSet{1} << column_;
        const ColumnSet printing = memory.printing(row_);
        if (isPrinting(character))
            shown_.beforeChange(memory, row_, printing | bit, *mode_, moment);
        else if ((printing & bit) != 0)
            shown_.beforeChange(memory, row_, printing & ~bit, *mode_, moment);
    }
    beyond_ = isFull_ ? beyond_ + 1 : 0;
    if (isFull_)
        memory.setBeyond(row_, beyond_);
    memory.put(row_, column_, {moment, character, style});
    isFull_ = column_ == kLastColumn;
    column_ = std::min(column_ + 1, kLastColumn);
}

void CaptionDecoder::erase(ColumnSet columns, const Moment &moment) {
    ScreenMemory &memory = written();
    const ColumnSet printing = memory.printing(row_);
    if (isOnScreen() && (printing & columns) != 0)
        shown_.beforeChange(memory, row_, printing & ~columns, *mode_, moment);
    memory.erase(row_, columns);
}

void CaptionDecoder::moveRight(int columns) {
    column_ = std::min(column_ + columns, kLastColumn);
    isFull_ = false;
}

/// Decoders that know a code step back for it, onto what a sender puts there for those that do not.
void CaptionDecoder::stepBack() {
    if (isFull_)
        isFull_ = false; // the cursor stands on it still
    else if ((written().written(row_) & before(column_)) != 0)
        --column_;
}

void CaptionDecoder::backspace(const Moment &moment) {
    if (column_ == 0)
        return;
    --column_;
    isFull_ = false;
    erase(ColumnSet{1} << column_, moment);
    style_ = rowStyle_;
    style_ = styleHere();
}

} // namespace norvane
