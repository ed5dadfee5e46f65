#pragma once

#include "framework/qt/menus.h"
#include "framework/qt/widgets.h"
#include "framework/windows/window.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

namespace norvane {

/// A window on screen: its menu bar, and below it an area of the model's size, as the look scales
/// it, with the controls, in their tab order. Controls out of sight, parked outside the area or
/// beyond its edge, are hidden and disabled, so that neither mouse, keyboard nor screen reader gets
/// at them.
class WindowPeer : public QWidget {
  public:
    /// The peer must be hidden before `window` goes and may be deleted later.
    WindowPeer(Window &window, Application &application, const Look &look,
               std::function<void()> quit);

  protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    void addControls();
    void keepLabelsClear();
    void takeSize();
    void showWhatIsInView();
    void closeWhenIdle();
    int menuBarHeight() const;
    QSize sizeInPixels() const;

    struct Placed {
        RectControl *control;
        QWidget *widget;
    };
    Window &window_;
    Look look_;
    bool resizing_ = false; // by its user, whom the model follows
    QTimer closing_;        // runs while the user's wish to close it waits for an action's end
    Menus *menus_ = nullptr;
    QWidget *area_ = nullptr;
    std::vector<Placed> placed_;
};

} // namespace norvane
