#include "explain/walk/line_walk.h"

#include "decode/chain_table.h"
#include "decode/letter_table.h"
#include "decode/replacement_chain.h"
#include "decode/rows_of_code.h"
#include "decode/words.h"
#include "explain/walk/plain_walk.h"

#include <algorithm>

// A word's fate is what of the entry comes from it. Nearly all lines are decoded word by word, and
// then the piece of each word is at hand (plain_words.h). The others go the way of the chain on a
// text whose bytes know where they come from, and each row that takes digits of several words, or
// begins within a byte, is kept as a crossing. Rows whose keys do not occur are skipped, as in
// the decode; that this is the way of all rows is what the comparison with the transcript's own
// entry holds.

namespace norvane {

namespace {

/// What the chain left to a caption, as plain::readLetters does it, with one look at each pair.
bool readLetters(TracedText &text) {
    if (text.text().empty())
        text.fill("2020");
    if (characterSize(text.text()) == text.text().size())
        return false;
    {
        TracedText::Edit edit(text);
        const std::string_view all = text.text();
        for (std::size_t start = 0; start < all.size();) {
            const std::size_t behind = start + characterSize(all.substr(start));
            if (behind == all.size()) { // an odd character at the end
                edit.replace(start, behind - start, "");
                break;
            }
            const std::size_t size = behind - start + characterSize(all.substr(behind));
            if (const auto letter = letterOfPair(all.substr(start, size)); !letter.empty())
                edit.replace(start, size, letter);
            start += size;
        }
    }
    const TableRow &marks = replacementChain[kMarksRow - 1];
    text.replaceAll(marks.key, marks.with);
    return true;
}

constexpr std::string_view withOf(std::size_t row) {
    return replacementChain[row - 1].with;
}
static_assert(std::all_of(replacementChain.begin(), replacementChain.end(),
                          [](const TableRow &row) { return row.key.size() <= Crossing::kMost; }));

} // namespace

void LineWalk::walk(const SccLine &line) {
    line_ = &line;
    crossings_.clear();
    swallowed_.clear();
    isPlain_ = plain_.read(line.data.hexText);
    if (isPlain_) {
        entry_ = plain_.entry();
        return;
    }
    entry_.reset();
    trace();
}

void LineWalk::trace() {
    TracedText &text = traced_.emplace(line_->data.hexText);
    std::size_t row = replaceWholeWords(text) ? kBlanksRow : kFirstWalkedRow - 1;
    while ((row = nextRow(text.text(), row)) <= kLastWalkedRow) {
        text.replaceAll(replacementChain[row - 1].key, withOf(row),
                        [&](std::size_t start, std::size_t size) {
                            if (row != kBlanksRow)
                                seeReplacement(text, row, start, size);
                        });
    }
    if (!readLetters(text))
        return;
    plain::cleanEntry(text);
    plain::cleanTranscript(text);
    entry_ = text.text();
}

/// The rows up to the deletion of the blanks, where the line is made of words: their keys can only
/// be whole words then, and they make no crossing.
bool LineWalk::replaceWholeWords(TracedText &text) const {
    const auto isCode = [](const SccWord &word) { return word.isCode; };
    if (!std::all_of(line_->words.begin(), line_->words.end(), isCode))
        return false;
    TracedText::Edit edit(text);
    std::size_t done = 0;
    const auto deleteUpTo = [&](std::size_t end) {
        if (done < end)
            edit.replace(done, end - done, "");
    };
    for (const SccWord &word : line_->words) {
        const std::size_t place = line_->placeOf(word);
        deleteUpTo(place);
        done = place + word.digits.size();
        const std::size_t row = kRowsOfCode.first[word.code];
        if (row != 0 && row < kBlanksRow)
            edit.replace(place, word.digits.size(), ReplaceAll(withOf(row), " ", ""));
    }
    deleteUpTo(line_->data.hexText.size());
    return true;
}

void LineWalk::seeReplacement(const TracedText &text, std::size_t row, std::size_t start,
                              std::size_t size) {
    Crossing crossing;
    crossing.row = static_cast<std::uint16_t>(row);
    for (std::size_t byte = start; byte < start + size; ++byte) {
        const TracedText::Origin &origin = text.originOf(byte);
        if (origin.isUntouched())
            crossing.places.at(crossing.count++) = origin.first;
    }
    if (crossing.count == 0)
        return;
    const SccWord &word = line_->words[line_->wordAt(crossing.first())];
    const std::size_t offset = crossing.first() - line_->placeOf(word);
    const bool isOfOne = line_->placeOf(word) + word.digits.size() > crossing.last();
    if (isOfOne && (!word.isCode || offset % 2 == 0))
        return;
    crossings_.push_back(crossing);
    swallowed_.resize(line_->data.hexText.size());
    for (std::size_t i = 0; i < crossing.count; ++i)
        swallowed_[crossing.places.at(i)] = true;
}

WordClass LineWalk::classOf(std::size_t index) const {
    const SccWord &word = line_->words[index];
    if (!isPlain_)
        return word.meaning->kind == CodeKind::filler ? WordClass::nothing : WordClass::other;
    WordClass &known = classes_[word.code];
    if (known == WordClass::unknown)
        known = findClass(word);
    return known;
}

WordClass LineWalk::findClass(const SccWord &word) const {
    const CodeMeaning &meaning = *word.meaning;
    std::string piece;
    std::vector<std::size_t> ends;
    if (!appendCaptionByWords(piece, word.digits, ends))
        return WordClass::other;
    piece.resize(ends[0]);
    if (meaning.kind == CodeKind::filler)
        return WordClass::nothing;
    if (meaning.kind == CodeKind::text)
        return piece == meaning.shown ? WordClass::same : WordClass::other;
    if (isCharacters(meaning))
        return piece == " " && meaning.shown == " " ? WordClass::same : WordClass::other;
    if (meaning.code == code::kBs)
        return WordClass::other;
    return piece == " " ? WordClass::blank : piece.empty() ? WordClass::deleted : WordClass::other;
}

bool LineWalk::keepsDigits(std::size_t word) const {
    const std::uint16_t code = line_->words[word].code;
    const auto stays = [](unsigned byte) {
        return byte != kFillerByte && letterOf(static_cast<unsigned char>(byte)).empty();
    };
    return kRowsOfCode.first[code] == 0 && (stays(code >> 8U) || stays(code & 0xFFU));
}

WordFate LineWalk::plainFateOf(std::size_t first, std::size_t count) const {
    WordFate fate;
    fate.text = plain_.textOf(first, count);
    fate.isShared = plain_.isShared(first, count);
    fate.isBlank = plain_.isBlank(first, count);
    for (std::size_t i = first; i < first + count; ++i) {
        for (std::size_t byte = 0; keepsDigits(i) && byte < 4; byte += 2) {
            const std::string_view digits = line_->words[i].digits.substr(byte, 2);
            if (letterOfPair(digits).empty() && digits != kFillerKey)
                fate.kept += digits;
        }
    }
    return fate;
}

WordFate LineWalk::fateOf(std::size_t first, std::size_t count) const {
    if (isPlain_)
        return plainFateOf(first, count);
    WordFate fate;
    const std::size_t start = line_->placeOf(line_->words[first]);
    const SccWord &last = line_->words[first + count - 1];
    const std::size_t end = line_->placeOf(last) + last.digits.size();
    for (std::size_t place = start; !swallowed_.empty() && place < end; ++place) {
        if (swallowed_[place])
            fate.swallowed += line_->data.hexText[place];
    }
    if (!entry_)
        return fate;
    auto [byte, behind] = traced_->bytesBetween(start, end);
    fate.isBlank = true;
    std::size_t textStart = behind;
    std::size_t textEnd = behind;
    for (; byte < behind; ++byte) {
        if (!traced_->comesFrom(byte, start, end))
            continue;
        fate.isShared = true;
        fate.isBlank = fate.isBlank && (*entry_)[byte] == ' ';
        if (traced_->originOf(byte).first >= start) {
            textStart = std::min(textStart, byte);
            textEnd = byte + 1;
        }
        if (traced_->originOf(byte).isUntouched())
            fate.kept += (*entry_)[byte];
    }
    fate.isBlank = fate.isBlank && fate.isShared;
    fate.text = entry_->substr(textStart, textEnd - textStart);
    return fate;
}

std::string LineWalk::plainEntryOf(std::size_t start, std::size_t end) const {
    const std::size_t first = line_->wordAt(start);
    const std::size_t last = line_->wordAt(end - 1);
    std::string_view text = plain_.textOf(first, last - first + 1);
    const auto isPair = [this](std::size_t word) {
        return line_->words[word].meaning->textSize == 2 && Len(plain_.textOf(word, 1)) == 2;
    };
    if (start > line_->placeOf(line_->words[first]) && isPair(first))
        text.remove_prefix(characterSize(text));
    if (end == line_->placeOf(line_->words[last]) + 2 && isPair(last)) {
        const std::string_view lastText = plain_.textOf(last, 1);
        text.remove_suffix(lastText.size() - characterSize(lastText));
    }
    return std::string(text);
}

std::string LineWalk::entryOf(std::size_t start, std::size_t end) const {
    if (isPlain_)
        return plainEntryOf(start, end);
    std::string text;
    const auto [first, behind] = traced_->bytesBetween(start, end);
    for (std::size_t byte = first; byte < behind; ++byte) {
        if (traced_->comesFrom(byte, start, end))
            text += (*entry_)[byte];
    }
    return text;
}

} // namespace norvane
