#include "framework/qt/accessibility.h"
#include "framework/qt/qt_text.h"
#include "framework/qt/widgets.h"
#include "framework/windows/guard.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

namespace norvane {

namespace {

/// A button of this kind, known to screen readers before its caption makes them look at it.
template <class Widget>
Widget *make(QAccessible::Role role, const std::string &caption, QWidget *parent) {
    auto *widget = new Widget(parent);
    tellRole(widget, role);
    widget->setText(toQt(caption));
    return widget;
}

void actOnClick(QAbstractButton *widget, const Button &button) {
    QObject::connect(widget, &QAbstractButton::clicked, [&button] { guarded(button.Action); });
}

} // namespace

QWidget *makeButton(BevelButton &button, QWidget *parent) {
    QAbstractButton *widget = nullptr;
    if (button.Bevel == BevelButton::kSmallSquare)
        widget = make<QToolButton>(QAccessible::Button, button.Caption, parent);
    else
        widget = make<QPushButton>(QAccessible::Button, button.Caption, parent);
    widget->setFocusPolicy(Qt::StrongFocus);
    actOnClick(widget, button);
    return widget;
}

QWidget *makeButton(PushButton &button, QWidget *parent) {
    auto *widget = make<QPushButton>(QAccessible::Button, button.Caption, parent);
    actOnClick(widget, button);
    return widget;
}

QWidget *makeCheckBox(CheckBox &box, QWidget *parent) {
    auto *widget = make<QCheckBox>(QAccessible::CheckBox, box.Caption, parent);
    follow(box.Value, widget, [&box, widget] { widget->setChecked(box.Value); });
    QObject::connect(widget, &QCheckBox::toggled, [&box](bool checked) { box.Value = checked; });
    return widget;
}

QWidget *makeRadioButton(RadioButton &button, QWidget *parent) {
    auto *widget = make<QRadioButton>(QAccessible::RadioButton, button.Caption, parent);
    follow(button.Value, widget, [&button, widget] {
        // An exclusive button cannot be switched off, but the model has states without any on.
        widget->setAutoExclusive(false);
        widget->setChecked(button.Value);
        widget->setAutoExclusive(true);
    });
    QObject::connect(widget, &QRadioButton::toggled, [&button](bool checked) {
        if (checked) // what is switched off by it is the model's affair
            button.Value = true;
    });
    return widget;
}

} // namespace norvane
