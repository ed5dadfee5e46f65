#pragma once

#include "explain/captions/screen_memory.h"

#include <functional>

namespace norvane {

/// Takes captions as soon as nothing can change them any more.
using CaptionSink = std::function<void(Caption &&)>;

/// Keeps which caption each row on the screen of a service belongs to.
class ShownCaptions {
  public:
    /// `lastNumber` numbers the captions of all services. All must outlive this.
    ShownCaptions(Service service, std::size_t &lastNumber, const CaptionSink &sink)
        : service_(service), lastNumber_(lastNumber), sink_(sink) {}

    /// To be called before the displayed memory changes at a printing character. `mode` is what
    /// changes it; `printing` is the row's set of printing characters after the change.
    void beforeChange(const ScreenMemory &screen, int row, ColumnSet printing, CaptionMode mode,
                      const Moment &moment);

    /// The next character that is painted begins a caption.
    void beginPainting() { painting_ = 0; }

    /// A caption on these rows, if any, begins.
    void show(RowSet rows, CaptionMode mode, const Moment &moment);

    /// To be called before these rows are erased. `moment` is null at the end of the film.
    void end(const ScreenMemory &screen, RowSet rows, const Moment *moment);

    /// Moves what is on the screen as ScreenMemory::moveRows does.
    void moveRows(int distance);

  private:
    struct Shown {
        Caption caption;
        RowSet rows; // that are its own still
        int began;   // the topmost of them at the start
    };

    std::size_t ownerOf(int row) const;
    void endRows(std::size_t owner, const ScreenMemory &screen, RowSet rows, const Moment *moment);
    void paint(RowSet rows, const Moment &moment);
    void countRows();

    Service service_;
    std::size_t &lastNumber_;
    const CaptionSink &sink_;
    std::vector<Shown> shown_{}; // no more than there are rows
    std::size_t painting_ = 0;   // the number of that which goes on; 0: none
};

} // namespace norvane
