#pragma once

#include "framework/qt/menus.h"
#include "framework/qt/pictures.h"
#include "framework/windows/window.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace norvane {

/// A window on screen: its menu bar, and below it an area of the model's size with the controls, in
/// their tab order. Controls out of sight, parked outside the area or beyond its edge, are hidden,
/// so that neither mouse, keyboard nor screen reader gets at them.
class WindowPeer : public QWidget {
  public:
    /// The peer must be hidden before `window` goes and may be deleted later.
    WindowPeer(Window &window, Application &application, Pictures &pictures,
               std::function<void()> quit);

  protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    void addControls(Pictures &pictures);
    void keepLabelsClear();
    void takeSize();
    void showWhatIsInView();
    int menuBarHeight() const;

    struct Placed {
        const Control *control;
        QWidget *widget;
    };
    Window &window_;
    Menus *menus_ = nullptr;
    QWidget *area_ = nullptr;
    std::vector<Placed> placed_;
};

} // namespace norvane
