#pragma once

#include "framework/text/text_array.h"

#include <array>
#include <string>
#include <string_view>

namespace norvane {

enum class Form { timecode, line, paragraph };

/// The body of a transcript, put together entry by entry.
class TranscriptBody {
  public:
    /// Puts the body together in the room of `room`, an empty text.
    TranscriptBody(Form form, std::string room) : form_(form), text_(std::move(room)) {}

    /// Adds an entry on which the entry passes were done.
    void add(std::string_view timecode, std::string_view caption);

    /// The whole body, which this object then no longer has; the text passes are done on it.
    std::string take();

  private:
    Form form_;
    std::string text_;
    std::size_t clean_ = 0; // how much of it is done, up to an end of line
};

/// The first "," of a timecode becomes a ".".
void correctComma(std::string &timecode);

/// The body of a transcript of arrays, all passes done. The entry passes and the first "," of each
/// timecode, which becomes a ".", change the arrays themselves. Throws OutOfBoundsException when
/// there are fewer timecodes than captions.
std::string composeTranscript(Form form, TextArray &captions, TextArray &timecodes);

/// The first line of a transcript; an empty one stands between it and the body.
std::string headingOf(const std::string &name);

/// What stands in a transcript's file, in sequence; views of both texts.
using TranscriptPieces = std::array<std::string_view, 5>;
TranscriptPieces piecesOf(std::string_view heading, std::string_view body);

/// What names a transcript: the file's name up to its first point.
std::string baseNameOf(const std::string &fileName);

} // namespace norvane
