#include "framework/qt/widgets.h"

#include "framework/qt/qt_text.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QListWidget>
#include <QPainter>

#include <algorithm>
#include <stdexcept>

namespace norvane {

namespace {

constexpr const char *kRole = "accessibleRole";

QAccessibleInterface *interfaceByRole(const QString & /*className*/, QObject *object) {
    const QVariant role = object->property(kRole);
    return role.isValid() ? new QAccessibleWidget(qobject_cast<QWidget *>(object),
                                                  static_cast<QAccessible::Role>(role.toInt()))
                          : nullptr;
}

/// A picture, as large as fits the area and in its top left corner.
class PictureWidget : public QWidget {
  public:
    PictureWidget(const QIcon &picture, QWidget *parent) : QWidget(parent), picture_(picture) {}

  protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        const int side = std::min(width(), height());
        QPainter painter(this);
        picture_.paint(&painter, 0, 0, side, side);
    }

  private:
    QIcon picture_;
};

QWidget *makePicture(const QIcon &picture, QWidget *parent) {
    auto *widget = new PictureWidget(picture, parent);
    tellRole(widget, QAccessible::Graphic);
    return widget;
}

QWidget *makeSeparator(QWidget *parent) {
    auto *line = new QFrame(parent);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    tellRole(line, QAccessible::Separator);
    return line;
}

QWidget *widgetOfKind(Control &control, QWidget *parent, const Look &look) {
    if (auto *bevelButton = dynamic_cast<BevelButton *>(&control))
        return makeButton(*bevelButton, parent);
    if (auto *pushButton = dynamic_cast<PushButton *>(&control))
        return makeButton(*pushButton, parent);
    if (auto *checkBox = dynamic_cast<CheckBox *>(&control))
        return makeCheckBox(*checkBox, parent);
    if (auto *radioButton = dynamic_cast<RadioButton *>(&control))
        return makeRadioButton(*radioButton, parent);
    if (auto *arrow = dynamic_cast<PopupArrow *>(&control))
        return makeArrow(*arrow, parent);
    if (auto *field = dynamic_cast<TextField *>(&control))
        return makeTextField(*field, parent);
    if (auto *label = dynamic_cast<Label *>(&control))
        return makeLabel(*label, parent, look.scale);
    if (auto *bar = dynamic_cast<ProgressBar *>(&control))
        return makeProgressBar(*bar, parent);
    if (auto *canvas = dynamic_cast<Canvas *>(&control))
        return makePicture(look.pictures.find(canvas->Backdrop), parent);
    if (dynamic_cast<Separator *>(&control) != nullptr)
        return makeSeparator(parent);
    if (dynamic_cast<Listbox *>(&control) != nullptr)
        return new QListWidget(parent);
    throw std::logic_error("no widget is known for the control " + control.Name);
}

/// Paints at once what is marked as changed in the widget's window: nothing, when nothing is.
void paintNow(QWidget *widget) {
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(widget->window(), &request);
}

} // namespace

void tellRole(QWidget *widget, QAccessible::Role role) {
    QAccessible::installFactory(interfaceByRole);
    widget->setProperty(kRole, role);
}

QWidget *makeWidget(Control &control, QWidget *parent, const Look &look) {
    QWidget *widget = widgetOfKind(control, parent, look);
    widget->setStyle(&look.style);
    widget->setObjectName(toQt(control.Name));
    widget->setGeometry(
        look.scale.pixels(QRect(control.Left, control.Top, control.Width, control.Height)));
    if (!control.accessibleName.empty())
        widget->setAccessibleName(toQt(control.accessibleName));
    follow(control.hint, widget, [&control, widget] {
        widget->setToolTip(toQt(control.hint));
        widget->setAccessibleDescription(toQt(control.hint));
    });
    follow(control.Enabled, widget, [&control, widget] { widget->setEnabled(control.Enabled); });
    control.repaint = [alive = QPointer<QWidget>(widget)](bool immediately) {
        if (alive && immediately)
            paintNow(alive);
    };
    return widget;
}

} // namespace norvane
