#pragma once

#include "framework/qt/control_style.h"
#include "framework/qt/pictures.h"
#include "framework/windows/controls.h"

#include <QPointer>
#include <QWidget>

namespace norvane {

/// Milliseconds between checks of what waits for the end of an action.
inline constexpr int kAskAgain = 50;

/// What all windows of a desktop share.
struct Look {
    Scale scale;
    ControlStyle &style; // which outlives all widgets
    Pictures &pictures;
};

/// Makes the widget of a control: at the control's place in `parent`, showing the control's state
/// from now on, and handing the user's changes to it under the guard. The control must outlive all
/// input to the widget; the widget may go first. Whether it is visible and enabled is the window's
/// affair.
QWidget *makeWidget(RectControl &control, QWidget *parent, const Look &look);

// The widgets of the kinds, without what all kinds share.
QWidget *makeButton(BevelButton &button, QWidget *parent);
QWidget *makeButton(PushButton &button, QWidget *parent);
QWidget *makeCheckBox(CheckBox &box, QWidget *parent);
QWidget *makeRadioButton(RadioButton &button, QWidget *parent);
QWidget *makeArrow(PopupArrow &arrow, QWidget *parent);
QWidget *makeTextField(TextField &field, QWidget *parent);
QWidget *makeLabel(Label &label, QWidget *parent, const Scale &scale);
QWidget *makeProgressBar(ProgressBar &bar, QWidget *parent);

/// Calls `apply` now and at each change of `property`, for as long as `widget` lives.
template <class T, class Apply>
void follow(Property<T> &property, QWidget *widget, Apply apply) {
    property.shown = [alive = QPointer<QWidget>(widget), apply] {
        if (alive)
            apply();
    };
    property.shown();
}

} // namespace norvane
