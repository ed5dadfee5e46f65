#pragma once

#include "explain/captions/caption_decoder.h"

#include <memory>

namespace norvane {

/// Makes captions of the lines of a film: a decoder for each of CC1 to CC4. Its memory is bounded
/// by what four screens hold, however long the film is.
class FilmDecoder {
  public:
    /// `sink` takes each caption when it is gone from the screen, so that one with a lower number
    /// may come later, and one that was erased before anybody saw it (number 0) in between.
    explicit FilmDecoder(CaptionSink sink);

    /// Takes the next line. A word's frame is that of the line's timecode and its place in the
    /// line; a line whose timecode cannot be read continues the previous line. Lines that were
    /// refused and words of text mode are skipped.
    void take(const SccLine &line);

    /// The film is over.
    void finish();

  private:
    std::size_t lastNumber_ = 0;
    CaptionSink sink_;
    std::array<std::unique_ptr<CaptionDecoder>, 4> decoders_{}; // made when words come for them
    long nextFrame_ = 0;
};

} // namespace norvane
