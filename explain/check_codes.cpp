#include "explain/check_codes.h"

#include "framework/text/text.h"

#include <algorithm>

namespace norvane {

namespace {

/// The words of a line that are so, as texts; each once.
template <class Is>
std::vector<std::string> wordsThat(const SccLine &line, Is is) {
    std::vector<std::string> words;
    for (const SccWord &word : line.words) {
        if (is(word))
            addOnce(words, std::string(word.digits));
    }
    return words;
}

void lookAtServices(const SccLine &line, Findings &findings) {
    std::vector<std::string> services;
    for (const SccWord &word : line.words)
        addOnce(services, word.service);
    for (const std::string &service : services) {
        const long words =
            std::count_if(line.words.begin(), line.words.end(),
                          [&service](const SccWord &word) { return word.service == service; });
        const std::string belong =
            counted(words, "word") + (words == 1 ? " belongs to " : " belong to ") + service;
        if (service.ends_with('2') || service.ends_with('4')) {
            findings.add(line.number, FindingKind::channel,
                         belong + ", a second channel, whose codes stay as digits: ask for a file "
                                  "of the first channel alone.");
        } else if (service.starts_with('T')) {
            findings.add(line.number, FindingKind::textMode,
                         belong + ", the text mode, which is beside the captions: ask for a file "
                                  "of captions alone.");
        }
    }
    const auto otherField =
        wordsThat(line, [](const SccWord &word) { return word.meaning.secondField; });
    if (!otherField.empty()) {
        findings.add(line.number, FindingKind::field,
                     shortList(otherField) +
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
    while (const auto line = reader.next()) {
        for (const SccWord &word : line->words) {
            words += word.isCode ? 1 : 0;
            wrong += word.isCode && !word.parity ? 1 : 0;
            if (isSentTwice(word.meaning))
                ++(word.repeats ? repetitions : codes);
        }
    }
    isDoubled_ = 2 * repetitions > codes;
    hasParity_ = 2 * wrong <= words;
}

void CodeCheck::look(const SccLine &line, Findings &findings) {
    const auto malformed = wordsThat(line, [](const SccWord &word) { return !word.isCode; });
    if (!malformed.empty()) {
        std::vector<std::string> texts;
        texts.reserve(malformed.size());
        for (const std::string &word : malformed)
            texts.push_back(startInQuotes(word));
        findings.add(line.number, FindingKind::word,
                     shortList(texts) + (texts.size() == 1 ? " is no word" : " are no words") +
                         " of four hex digits: correct the line.");
    }
    lookAtParity(line, findings);
    const auto unknown = wordsThat(line, [](const SccWord &word) {
        return word.isCode && word.meaning.kind == CodeKind::none;
    });
    if (!unknown.empty()) {
        findings.add(line.number, FindingKind::code,
                     shortList(unknown) + (unknown.size() == 1 ? ": no code" : ": no codes") +
                         " of CEA-608. Correct or delete.");
    }
    lookAtServices(line, findings);
    lookAtSingles(line, findings);
}

void CodeCheck::lookAtParity(const SccLine &line, Findings &findings) {
    const auto wrong =
        wordsThat(line, [](const SccWord &word) { return word.isCode && !word.parity; });
    if (wrong.empty() || parityTold_)
        return;
    if (!hasParity_) {
        parityTold_ = true; // once for all lines
        findings.add(line.number, FindingKind::parity,
                     "Here and in most of the file the parity is wrong, as when it was written "
                     "without parity bits: ask for a new export.");
        return;
    }
    std::vector<std::string> texts;
    for (const std::string &word : wrong) {
        const auto code = static_cast<unsigned>(codeOfWord(word));
        texts.push_back(word + " (" + wordOf(withParity(code)) + " is right)");
    }
    findings.add(line.number, FindingKind::parity,
                 "Wrong parity: " + shortList(texts) +
                     ". Correct the line, or ask for a new export.");
}

void CodeCheck::lookAtSingles(const SccLine &line, Findings &findings) {
    if (!line.words.empty() && line.words[0].repeats && !singles_.empty())
        singles_.pop_back();
    tellSingles(findings);
    singlesLine_ = line.number;
    for (std::size_t i = 0; i < line.words.size(); ++i) {
        const SccWord &word = line.words[i];
        const bool goesOn = i + 1 < line.words.size() && line.words[i + 1].repeats;
        if (isSentTwice(word.meaning) && !word.repeats && !goesOn)
            singles_.emplace_back(word.digits);
    }
}

void CodeCheck::tellSingles(Findings &findings) {
    if (isDoubled_ && !singles_.empty()) {
        findings.add(singlesLine_, FindingKind::single,
                     shortList(singles_) +
                         ": sent once, while the file sends its codes twice. Correct the line.");
    }
    singles_.clear();
}

void ColumnCheck::endRow(Row &row, std::size_t line, Findings &findings) {
    if (row.widest > kColumns) {
        findings.add(line, FindingKind::columns,
                     "A row of text ends in column " + std::to_string(row.widest) +
                         ", while a screen has 32: break the row.");
    }
    row.widest = 0;
}

void ColumnCheck::look(const SccLine &line, Findings &findings) {
    for (const SccWord &word : line.words) {
        if (word.repeats || !word.service.starts_with("CC"))
            continue;
        Row &row = rows_.at(static_cast<std::size_t>(word.service.back() - '1'));
        const unsigned code = word.meaning.code;
        if (word.meaning.kind == CodeKind::preamble || code == 0x142D) { // CR
            endRow(row, line.number, findings);
            row.column = 0;
        }
        write(word, row);
        if (isCharacters(word.meaning))
            row.widest = std::max(row.widest, row.column);
    }
    for (Row &row : rows_)
        endRow(row, line.number, findings);
}

/// Moves the column on.
void ColumnCheck::write(const SccWord &word, Row &row) {
    const unsigned code = word.meaning.code;
    switch (word.meaning.kind) {
    case CodeKind::preamble:
        if ((code & 0x10U) != 0)
            row.column = static_cast<long>(code >> 1U & 7U) * 4;
        break;
    case CodeKind::text:
    case CodeKind::special:
        row.column += static_cast<long>(Len(word.meaning.shown));
        break;
    case CodeKind::midRow:
        row.column += 1;
        break;
    case CodeKind::tabOffset:
        row.column += static_cast<long>(code & 3U);
        break;
    case CodeKind::control:
        if (code == 0x1421) // BS
            row.column = std::max(row.column - 1, 0L);
        else if (code == 0x1428) // FON, which parts like a mid-row code
            row.column += 1;
        break;
    default:
        break; // an extended character takes the place of the one before it
    }
}

} // namespace norvane
