#include "framework/qt/control_style.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace norvane {

namespace {

/// A line that is seen on the window, whatever its colour: in a contrast of 3 to 1 or more.
void drawOutline(const QRect &place, const QStyleOption &option, QPainter &painter, bool round) {
    constexpr double kCorner = 2.5;
    constexpr float kOpacity = 0.6F;
    QColor colour = option.palette.color(QPalette::Active, QPalette::WindowText);
    colour.setAlphaF(kOpacity);
    const QRectF line = QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour);
    painter.setBrush(Qt::NoBrush);
    if (round)
        painter.drawEllipse(line);
    else
        painter.drawRoundedRect(line, kCorner, kCorner);
    painter.restore();
}

} // namespace

ControlStyle::ControlStyle(QStyle *desktopStyle, const Scale &scale)
    : QProxyStyle(desktopStyle), scale_(scale) {
    QStyleOptionButton box;
    box.rect = {0, 0, 1000, 100};
    marksGrow_ = QProxyStyle::subElementRect(SE_CheckBoxContents, &box, nullptr).left() >=
                 ControlStyle::pixelMetric(PM_IndicatorWidth, &box, nullptr);
}

void ControlStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const {
    const bool isMark = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    const bool isField = element == PE_PanelLineEdit;
    if (const auto *field = qstyleoption_cast<const QStyleOptionFrame *>(option);
        isField && field != nullptr && !(option->state & State_Enabled)) {
        // Not every desktop gives what is disabled a ground of its own.
        QStyleOptionFrame disabled = *field;
        disabled.palette.setBrush(QPalette::Base,
                                  option->palette.brush(QPalette::Active, QPalette::Window));
        QProxyStyle::drawPrimitive(element, &disabled, painter, widget);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    if (isMark || (isField && !(option->state & State_HasFocus)))
        drawOutline(option->rect & widget->rect(), *option, *painter,
                    element == PE_IndicatorRadioButton);
}

void ControlStyle::drawControl(ControlElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const {
    // A caption is in the middle of its room, and cut off where that ends: more, evenly, is no
    // harm.
    constexpr QMargins kRoom(0, 10, 0, 10);
    if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
        button != nullptr && element == CE_PushButtonLabel) {
        QStyleOptionButton roomy = *button;
        roomy.rect += kRoom;
        QProxyStyle::drawControl(element, &roomy, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

int ControlStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                              const QWidget *widget) const {
    const int size = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return marksGrow_ ? scale_.pixels(size) : size;
    default:
        return size;
    }
}

} // namespace norvane
