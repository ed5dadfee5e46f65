#pragma once

#include "decode/data_line.h"
#include "explain/standard/codes.h"
#include "explain/standard/timecode_frames.h"
#include "framework/text/line_reader.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace norvane {

/// What a word belongs to: captions or text mode, of a channel.
enum class Service : std::uint8_t { none, cc1, cc2, cc3, cc4, t1, t2, t3, t4 };
inline constexpr auto kServiceNames =
    std::to_array<std::string_view>({"", "CC1", "CC2", "CC3", "CC4", "T1", "T2", "T3", "T4"});

constexpr std::string_view nameOf(Service service) {
    return kServiceNames[static_cast<std::size_t>(service)];
}
constexpr bool isText(Service service) {
    return service >= Service::t1;
}
/// The channel that it is a service of, 0 to 3: CC1 and T1, CC2 and T2, ... None for Service::none.
constexpr std::size_t channelOf(Service service) {
    return (static_cast<std::size_t>(service) - 1) % 4;
}

/// The mode of a service after a word.
enum class Mode : std::uint8_t { unknown, popOn, rollUp2, rollUp3, rollUp4, paintOn, text };
inline constexpr auto kModeNames =
    std::to_array<std::string_view>({"", "pop-on", "roll-up of 2 rows", "roll-up of 3 rows",
                                     "roll-up of 4 rows", "paint-on", "text"});

constexpr std::string_view nameOf(Mode mode) {
    return kModeNames[static_cast<std::size_t>(mode)];
}
/// How many rows roll up; 0 in another mode.
constexpr int rowsOf(Mode mode) {
    return mode >= Mode::rollUp2 && mode <= Mode::rollUp4
               ? static_cast<int>(mode) - static_cast<int>(Mode::rollUp2) + 2
               : 0;
}

/// A word of a line's hex text, between blanks. It is sent in a frame of its own, the
/// n-th of a line n frames after the line's timecode, from 0.
struct SccWord {
    std::string_view digits{};
    const CodeMeaning *meaning = &kNoMeaning; // never null
    std::uint16_t code = 0;          // its value, as sent; 0 when it is not four hex digits
    bool isCode = false;             // it is four hex digits
    bool parity = false;             // as CEA-608 asks for
    bool repeats = false;            // the second of a code that is sent twice, which a decoder
                                     // ignores
    Service service = Service::none; // by itself and the words before it
    Mode mode = Mode::unknown;       // of that service after it
};

/// A kept line of a file after its header.
struct SccLine {
    std::size_t number = 0; // of all lines of the file, from 1
    std::size_t entry = 0;  // of all data lines, from 1
    std::string_view text{};
    std::optional<Refusal> refusal{}; // the rest is empty then
    DataLine data{};
    std::optional<FrameTimecode> timecode{}; // when its form is right
    std::vector<SccWord> words{};
    Mode mode = Mode::unknown; // at its end, of the service at work

    /// Where a word stands in the hex text, in bytes.
    std::size_t placeOf(const SccWord &word) const {
        return static_cast<std::size_t>(word.digits.data() - data.hexText.data());
    }
    /// Which word holds the byte `place` of the hex text.
    std::size_t wordAt(std::size_t place) const;
};

/// Reads the data lines of one file one after another, from anywhere. The services and modes follow
/// from all words so far: an SCC file does not say which field it is for, so the field is 1 until a
/// code says otherwise.
class LineTaker {
  public:
    /// Takes the next line that is not empty after the header, which is line `number` of the file.
    /// The result holds until the next call and as long as `text` does. A line is empty where a
    /// file ends.
    const SccLine &take(std::string_view text, std::size_t number);

  private:
    struct Channel {
        bool isText = false;
        Mode mode = Mode::unknown;
    };

    void readWords();
    void readCode(SccWord &word);

    SccLine line_;
    std::array<Channel, 4> channels_{};
    std::size_t channel_ = 0;
    bool isOtherData_ = false;   // characters of field 2 are of no caption
    std::uint16_t lastCode_ = 0; // of the word before, when a repetition of it would be one
    long nextFrame_ = -1;        // after the previous line
};

/// The same of a whole text.
class SccReader {
  public:
    /// `text` must outlive the reader and the lines.
    explicit SccReader(std::string_view text);

    /// The first line that is not empty, which is not read; empty when there is none.
    std::string_view header() const { return header_; }
    std::size_t headerNumber() const { return headerNumber_; } // at least 1

    /// The next line, which holds until the next call; nullptr at the end.
    const SccLine *next();

  private:
    LineReader lines_;
    LineTaker taker_;
    std::string_view header_;
    std::size_t headerNumber_ = 0;
};

} // namespace norvane
