#pragma once

#include "framework/windows/application.h"
#include "framework/windows/menu.h"

#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>

#include <functional>

namespace norvane {

/// The menu bar of one window. Edit items act on the text field that has the focus; Quit calls
/// `quit`; other items run the application's handler of their name.
class Menus : public QMenuBar {
  public:
    /// `bar` and `application` must outlive all input to the menus.
    Menus(const MenuBar &bar, Application &application, std::function<void()> quit,
          QWidget *parent);

  private:
    void addItem(QMenu &menu, const MenuItem &item);
    void enableItems();
    bool canRun(const MenuItem &item) const;
    void run(const MenuItem &item);

    struct Item {
        const MenuItem &model;
        QAction *action;
    };
    Application &application_;
    std::function<void()> quit_;
    std::vector<Item> items_;
    QPointer<QLineEdit> field_; // the text field that had the focus when the menu bar took it
};

} // namespace norvane
