#include "framework/qt/accessibility.h"
#include "framework/qt/widgets.h"
#include "framework/windows/guard.h"

#include <QAbstractButton>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace norvane {

namespace {

/// A disclosure triangle.
class ArrowWidget : public QAbstractButton {
  public:
    using QAbstractButton::QAbstractButton;

    void setPointsDown(bool down) {
        pointsDown_ = down;
        update();
        tellExpanded(this, down);
    }

  protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText));
        const QRectF box = QRectF(rect()).adjusted(1, 1, -1, -1);
        const QPointF tip = pointsDown_ ? QPointF(box.center().x(), box.bottom())
                                        : QPointF(box.right(), box.center().y());
        const QPointF side = pointsDown_ ? box.topRight() : box.bottomLeft();
        painter.drawPolygon(QPolygonF({box.topLeft(), side, tip}));
        if (hasFocus()) {
            QStyleOptionFocusRect option;
            option.initFrom(this);
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
    }

  private:
    bool pointsDown_ = false;
};

} // namespace

QWidget *makeArrow(PopupArrow &arrow, QWidget *parent) {
    auto *widget = new ArrowWidget(parent);
    tellRole(widget, QAccessible::Button);
    widget->setFocusPolicy(Qt::StrongFocus);
    follow(arrow.Facing, widget,
           [&arrow, widget] { widget->setPointsDown(arrow.Facing == PopupArrow::kDown); });
    QObject::connect(widget, &QAbstractButton::pressed, [&arrow] {
        guarded([&] {
            if (arrow.MouseDown)
                arrow.MouseDown();
        });
    });
    return widget;
}

} // namespace norvane
