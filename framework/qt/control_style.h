#pragma once

#include "framework/qt/scale.h"

#include <QProxyStyle>

namespace norvane {

/// The desktop's style, as controls of a given size need it: texts are whole even where the style
/// would want more room around them; the outlines of boxes, radio buttons and fields can be seen on
/// any window, also where the style leaves them out; disabled fields are not as light as others;
/// marks grow with the window.
class ControlStyle : public QProxyStyle {
  public:
    /// Owns `desktopStyle`.
    ControlStyle(QStyle *desktopStyle, const Scale &scale);

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;

  private:
    Scale scale_;
    bool marksGrow_ = true; // not in a style that would put the captions on them
};

} // namespace norvane
