#pragma once

#include "explain/checks/findings.h"
#include "explain/standard/scc_line.h"

namespace norvane {

/// Looks at the words of lines that follow one another, by CEA-608.
class CodeCheck {
  public:
    /// `text` is the whole file: what is unusual in it depends on what is usual in it.
    explicit CodeCheck(std::string_view text);

    void look(const SccLine &line, Findings &findings);

    /// To be called behind the last line.
    void tellSingles(Findings &findings);

  private:
    void lookAtParity(const SccLine &line, Findings &findings);
    void lookAtSingles(const SccLine &line, Findings &findings);

    bool isDoubled_ = false; // most codes are sent twice
    bool hasParity_ = true;  // most words have it
    bool parityTold_ = false;
    ShortList singles_{}; // of the line before: its last code may go on in the next
    std::size_t singlesLine_ = 0;
};

/// Follows the column at which each service writes.
class ColumnCheck {
  public:
    void look(const SccLine &line, Findings &findings);

  private:
    struct Row {
        long column = 0;
        long widest = 0;
    };
    void write(const SccWord &word, Row &row);
    static void endRow(Row &row, std::size_t line, Findings &findings);

    std::array<Row, 4> rows_{};
};

} // namespace norvane
