#include "explain/checks/check_codes.h"

#include "framework/text/text.h"

#include <algorithm>
#include <unordered_set>

namespace norvane {

namespace {

/// The words of a line that are so, each once, as `textOf` has them.
template <class Is, class TextOf>
ShortList wordsThat(const SccLine &line, Is is, TextOf textOf) {
    ShortList words;
    std::unordered_set<std::string_view> seen;
    for (const SccWord &word : line.words) {
        if (is(word) && seen.insert(word.digits).second)
            words.add(textOf(word));
    }
    return words;
}

std::string digitsOf(const SccWord &word) {
    return std::string(word.digits);
}

void lookAtServices(const SccLine &line, Findings &findings) {
    std::array<long, kServiceNames.size()> words{};
    std::vector<Service> services; // in the order in which they come
    for (const SccWord &word : line.words) {
        if (words[static_cast<std::size_t>(word.service)]++ == 0)
            services.push_back(word.service);
    }
    for (const Service service : services) {
        const long count = words[static_cast<std::size_t>(service)];
        const std::string belong =
            counted(count, "word").append(count == 1 ? " belongs to " : " belong to ") +
            std::string(nameOf(service));
        if (service == Service::none || service == Service::cc1 || service == Service::cc3)
            continue;
        if (channelOf(service) % 2 == 1) {
            findings.add(line.number, FindingKind::channel,
                         belong + ", a second channel, whose codes stay as digits: ask for a file "
                                  "of the first channel alone.");
        } else {
            findings.add(line.number, FindingKind::textMode,
                         belong + ", the text mode, which is beside the captions: ask for a file "
                                  "of captions alone.");
        }
    }
    const auto otherField = wordsThat(
        line, [](const SccWord &word) { return word.meaning->secondField; }, digitsOf);
    if (!otherField.empty()) {
        findings.add(line.number, FindingKind::field,
                     otherField.text() +
                         ": of field 2, while an SCC file is for field 1. Ask for a file of field "
                         "1 alone.");
    }
}

} // namespace

CodeCheck::CodeCheck(std::string_view text) {
    SccReader reader(text);
    long words = 0;
    long wrong = 0;
    long codes = 0;
    long repetitions = 0;
    while (const SccLine *line = reader.next()) {
        for (const SccWord &word : line->words) {
            words += word.isCode ? 1 : 0;
            wrong += word.isCode && !word.parity ? 1 : 0;
            if (isSentTwice(*word.meaning))
                ++(word.repeats ? repetitions : codes);
        }
    }
    isDoubled_ = 2 * repetitions > codes;
    hasParity_ = 2 * wrong <= words;
}

void CodeCheck::look(const SccLine &line, Findings &findings) {
    const auto malformed = wordsThat(
        line, [](const SccWord &word) { return !word.isCode; },
        [](const SccWord &word) { return startInQuotes(word.digits); });
    if (!malformed.empty()) {
        findings.add(line.number, FindingKind::word,
                     malformed.text() + (malformed.count() == 1 ? " is no word" : " are no words") +
                         " of four hex digits: correct the line.");
    }
    lookAtParity(line, findings);
    const auto unknown = wordsThat(
        line,
        [](const SccWord &word) { return word.isCode && word.meaning->kind == CodeKind::none; },
        digitsOf);
    if (!unknown.empty()) {
        findings.add(line.number, FindingKind::code,
                     unknown.text() + (unknown.count() == 1 ? ": no code" : ": no codes") +
                         " of CEA-608. Correct or delete.");
    }
    lookAtServices(line, findings);
    lookAtSingles(line, findings);
}

void CodeCheck::lookAtParity(const SccLine &line, Findings &findings) {
    const auto wrong = wordsThat(
        line, [](const SccWord &word) { return word.isCode && !word.parity; },
        [](const SccWord &word) {
            return digitsOf(word) + " (" + wordOf(word.meaning->withParity) + " is right)";
        });
    if (wrong.empty() || parityTold_)
        return;
    if (!hasParity_) {
        parityTold_ = true; // once for all lines
        findings.add(line.number, FindingKind::parity,
                     "Here and in most of the file the parity is wrong, as when it was written "
                     "without parity bits: ask for a new export.");
        return;
    }
    findings.add(line.number, FindingKind::parity,
                 "Wrong parity: " + wrong.text() + ". Correct the line, or ask for a new export.");
}

void CodeCheck::lookAtSingles(const SccLine &line, Findings &findings) {
    if (!line.words.empty() && line.words[0].repeats && !singles_.empty())
        singles_.dropLast();
    tellSingles(findings);
    singlesLine_ = line.number;
    for (std::size_t i = 0; i < line.words.size(); ++i) {
        const SccWord &word = line.words[i];
        const bool goesOn = i + 1 < line.words.size() && line.words[i + 1].repeats;
        if (isSentTwice(*word.meaning) && !word.repeats && !goesOn)
            singles_.add(digitsOf(word));
    }
}

void CodeCheck::tellSingles(Findings &findings) {
    if (isDoubled_ && !singles_.empty()) {
        findings.add(singlesLine_, FindingKind::single,
                     singles_.text() +
                         ": sent once, while the file sends its codes twice. Correct the line.");
    }
    singles_.clear();
}

void ColumnCheck::endRow(Row &row, std::size_t line, Findings &findings) {
    if (row.widest > kScreenColumns) {
        findings.add(line, FindingKind::columns,
                     "A row of text ends in column " + std::to_string(row.widest) +
                         ", while a screen has 32: break the row.");
    }
    row.widest = 0;
}

void ColumnCheck::look(const SccLine &line, Findings &findings) {
    for (const SccWord &word : line.words) {
        if (word.repeats || word.service == Service::none || isText(word.service))
            continue;
        Row &row = rows_.at(channelOf(word.service));
        const std::uint16_t code = word.meaning->code;
        if (word.meaning->kind == CodeKind::preamble || code == code::kCr) {
            endRow(row, line.number, findings);
            row.column = 0;
        }
        write(word, row);
        if (isCharacters(*word.meaning))
            row.widest = std::max(row.widest, row.column);
    }
    for (Row &row : rows_)
        endRow(row, line.number, findings);
}

/// Moves the column on.
void ColumnCheck::write(const SccWord &word, Row &row) {
    const std::uint16_t code = word.meaning->code;
    switch (word.meaning->kind) {
    case CodeKind::preamble:
        if (isIndent(code))
            row.column = indentOf(code);
        break;
    case CodeKind::text:
    case CodeKind::special:
        row.column += word.meaning->textSize;
        break;
    case CodeKind::midRow:
        row.column += 1;
        break;
    case CodeKind::tabOffset:
        row.column += static_cast<long>(code & 3U);
        break;
    case CodeKind::control:
        if (code == code::kBs)
            row.column = std::max(row.column - 1, 0L);
        else if (code == code::kFon)
            row.column += 1;
        break;
    default:
        break; // an extended character takes the place of the one before it
    }
}

} // namespace norvane
