#pragma once

#include "decode/data_line.h"
#include "explain/code_meaning.h"
#include "explain/timecode_frames.h"
#include "framework/text/line_reader.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// A word of a line's hex text: what stands between blanks.
struct SccWord {
    std::string_view digits;
    std::size_t at;      // where it stands in the hex text, in bytes
    bool isCode = false; // it is four hex digits, and what follows is known
    bool parity = false; // as CEA-608 asks for
    CodeMeaning meaning{};
    std::string service{};   // CC1, T1, CC2, ..., by itself and the words before it
    std::string_view mode{}; // of that service behind it: "pop-on", "roll-up of 3 rows", ...
    bool repeats = false;    // the second of a code that is sent twice: a decoder passes over it
};

/// A kept line of a file behind its header.
struct SccLine {
    std::size_t number = 0; // of all lines of the file, from 1
    std::size_t entry = 0;  // of all data lines, from 1
    std::string_view text{};
    std::optional<Refusal> refusal{}; // the rest is empty then
    DataLine data{};
    std::optional<FrameTimecode> timecode{}; // when its form is right
    std::vector<SccWord> words{};
    std::string_view mode{}; // at its end; empty when not yet known
};

/// Reads the lines of an SCC file one after another. The services and modes follow from all words
/// so far: an SCC file does not say which field it is for, so the field is 1 until a code says
/// otherwise.
class SccReader {
  public:
    /// `text` is the whole file and must outlive the reader and the lines.
    explicit SccReader(std::string_view text);

    /// The first line that is not empty, which nobody reads; empty when there is none.
    std::string_view header() const { return header_; }
    std::size_t headerNumber() const { return headerNumber_; } // at least 1

    /// The next line; nothing at the end.
    std::optional<SccLine> next();

  private:
    struct Service {
        bool isText = false;
        std::string_view mode{};
    };

    void readWords(SccLine &line);
    void assignService(SccWord &word);

    LineReader lines_;
    std::size_t entries_ = 0;
    std::string_view header_;
    std::size_t headerNumber_ = 0;
    std::array<Service, 4> services_{};
    std::size_t service_ = 0;
    unsigned lastCode_ = 0; // of the word before, when a repetition of it would be one
    long nextFrame_ = -1;   // behind the line before
};

} // namespace norvane
