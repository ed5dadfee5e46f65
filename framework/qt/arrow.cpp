#include "framework/qt/widgets.h"
#include "framework/windows/guard.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace norvane {

namespace {

/// A disclosure triangle.
class ArrowWidget : public QAbstractButton {
  public:
    using QAbstractButton::QAbstractButton;

    bool pointsDown() const { return pointsDown_; }
    void setPointsDown(bool down) {
        pointsDown_ = down;
        update();
        QAccessible::State changed;
        changed.expanded = true;
        changed.collapsed = true;
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
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

/// The triangle as screen readers know it: a button that tells whether it is open.
class ArrowInterface : public QAccessibleWidget {
  public:
    explicit ArrowInterface(ArrowWidget &arrow)
        : QAccessibleWidget(&arrow, QAccessible::Button), arrow_(arrow) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = arrow_.pointsDown();
        state.collapsed = !arrow_.pointsDown();
        return state;
    }
    QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString &name) override {
        if (name == pressAction())
            arrow_.click();
        else
            QAccessibleWidget::doAction(name);
    }

  private:
    ArrowWidget &arrow_;
};

QAccessibleInterface *arrowInterface(const QString & /*className*/, QObject *object) {
    auto *arrow = dynamic_cast<ArrowWidget *>(object);
    return arrow == nullptr ? nullptr : new ArrowInterface(*arrow);
}

} // namespace

QWidget *makeArrow(PopupArrow &arrow, QWidget *parent) {
    QAccessible::installFactory(arrowInterface);
    auto *widget = new ArrowWidget(parent);
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
