#pragma once

#include <QRect>

#include <algorithm>
#include <cmath>

namespace norvane {

/// How many pixels (of a screen at 100 %) a point of the windows takes: one, where the desktop's
/// font is the one that they are designed for, or smaller, and more in its ratio to that one
/// otherwise, as far as the largest window has room on the screen.
class Scale {
  public:
    /// A design is for a font of so many points, whose size is then as many pixels.
    static constexpr int kDesignFont = 13;

    /// The largest window of the designs.
    static constexpr QSize kDesignWindow{586, 395};

    /// For a desktop whose font has this size in pixels and whose screen has this room for a
    /// window. In steps, so that no pair of fonts that look alike gives windows that do not.
    Scale(int fontPixels, const QSize &room)
        : factor_(std::max(
              1.0, std::min({std::round(8.0 * fontPixels / kDesignFont) / 8,
                             std::floor(8.0 * room.width() / kDesignWindow.width()) / 8,
                             std::floor(8.0 * room.height() / kDesignWindow.height()) / 8}))) {}

    int pixels(int points) const { return static_cast<int>(std::lround(points * factor_)); }
    int points(int pixels) const { return static_cast<int>(std::lround(pixels / factor_)); }

    /// Edge by edge, so that what touches in points touches in pixels.
    QRect pixels(const QRect &points) const {
        return {QPoint(pixels(points.left()), pixels(points.top())),
                QPoint(pixels(points.left() + points.width()) - 1,
                       pixels(points.top() + points.height()) - 1)};
    }

  private:
    double factor_;
};

} // namespace norvane
