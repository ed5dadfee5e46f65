#pragma once

#include "explain/captions/shown_captions.h"

#include <array>

namespace norvane {

/// A line-21 decoder of one of the services CC1 to CC4. Its state is two memories, a cursor and a
/// mode; text mode and the codes of other services must not reach it. Before the first RCL, RDC,
/// RU2 to RU4 or EOC nothing is taken.
class CaptionDecoder {
  public:
    /// `service` is for naming the captions. For the others see ShownCaptions.
    CaptionDecoder(Service service, std::size_t &lastNumber, const CaptionSink &sink)
        : service_(service), sink_(sink), shown_(service, lastNumber, sink) {}

    /// Takes a word. Of a code that is sent twice it must be the first alone.
    void take(const CodeMeaning &meaning, const Moment &moment);

    /// The film is over: passes on what is still on the screen, and what was never shown.
    void finish();

  private:
    ScreenMemory &displayed() { return memories_[displayed_]; }
    ScreenMemory &loaded() { return memories_[1 - displayed_]; }
    bool isOnScreen() const { return mode_ != CaptionMode::popOn; }
    ScreenMemory &written() { return isOnScreen() ? displayed() : loaded(); }

    void takeInMode(const CodeMeaning &meaning, const Moment &moment);
    void showLoaded(const Moment &moment);
    void eraseDisplayed(const Moment &moment);
    void eraseLoaded(const Moment *moment);
    void beginRollUp(int depth, const Moment &moment);
    void setBaseRow(int row);
    void carriageReturn(const Moment &moment);

    // What moves the cursor, and writes or erases on its row.
    void takeOnRow(const CodeMeaning &meaning, const Moment &moment);
    void takeEditing(std::uint16_t code, const Moment &moment);
    void takeSpecial(std::uint16_t code, const Moment &moment);
    void takePreamble(std::uint16_t code);
    void takeBackground(std::uint16_t code, const Moment &moment);
    void write(std::uint16_t character, const Moment &moment);
    void put(std::uint16_t character, const Style &style, const Moment &moment);
    void erase(ColumnSet columns, const Moment &moment);
    void stepBack();
    void backspace(const Moment &moment);
    void moveRight(int columns);
    Style styleHere();

    Service service_;
    const CaptionSink &sink_;
    ShownCaptions shown_;
    std::array<ScreenMemory, 2> memories_{};
    std::size_t displayed_ = 0;
    std::optional<CaptionMode> mode_{}; // nothing: none was selected yet
    int depth_ = 0;                     // of roll-up; its base row is row_

    // The cursor, from 0, and the style of a character that has none to its left.
    int row_ = kScreenRows - 1;
    int column_ = 0;
    bool isFull_ = false; // column 32 was just written
    int beyond_ = 0;      // how often since then
    Style style_{};
    Style rowStyle_{}; // of the preamble
};

} // namespace norvane
