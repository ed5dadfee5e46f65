#include "framework/qt/qt_text.h"
#include "framework/qt/widgets.h"
#include "framework/windows/guard.h"

#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionFocusRect>
#include <QToolButton>

namespace norvane {

namespace {

void actOnClick(QAbstractButton *widget, const Button &button) {
    QObject::connect(widget, &QAbstractButton::clicked, [&button] { guarded(button.Action); });
}

/// A disclosure triangle.
class ArrowWidget : public QAbstractButton {
  public:
    using QAbstractButton::QAbstractButton;

    void setDown(bool down) {
        pointsDown_ = down;
        update();
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

QWidget *makeButton(BevelButton &button, QWidget *parent) {
    QAbstractButton *widget = nullptr;
    if (button.Bevel == BevelButton::kSmallSquare)
        widget = new QToolButton(parent);
    else
        widget = new QPushButton(parent);
    widget->setText(toQt(button.Caption));
    widget->setFocusPolicy(Qt::StrongFocus);
    actOnClick(widget, button);
    return widget;
}

QWidget *makeButton(PushButton &button, QWidget *parent) {
    auto *widget = new QPushButton(toQt(button.Caption), parent);
    actOnClick(widget, button);
    return widget;
}

QWidget *makeCheckBox(CheckBox &box, QWidget *parent) {
    auto *widget = new QCheckBox(toQt(box.Caption), parent);
    follow(box.Value, widget, [&box, widget] { widget->setChecked(box.Value); });
    QObject::connect(widget, &QCheckBox::clicked, [&box](bool checked) { box.Value = checked; });
    return widget;
}

QWidget *makeRadioButton(RadioButton &button, QWidget *parent) {
    auto *widget = new QRadioButton(toQt(button.Caption), parent);
    follow(button.Value, widget, [&button, widget] {
        // An exclusive button cannot be switched off, but the model has states without any on.
        widget->setAutoExclusive(false);
        widget->setChecked(button.Value);
        widget->setAutoExclusive(true);
    });
    QObject::connect(widget, &QRadioButton::clicked, [&button] { button.Value = true; });
    return widget;
}

QWidget *makeArrow(PopupArrow &arrow, QWidget *parent) {
    auto *widget = new ArrowWidget(parent);
    widget->setFocusPolicy(Qt::StrongFocus);
    follow(arrow.Facing, widget,
           [&arrow, widget] { widget->setDown(arrow.Facing == PopupArrow::kDown); });
    QObject::connect(widget, &QAbstractButton::pressed, [&arrow] {
        guarded([&] {
            if (arrow.MouseDown)
                arrow.MouseDown();
        });
    });
    return widget;
}

} // namespace norvane
