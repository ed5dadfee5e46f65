#pragma once

#include "framework/qt/dialogs.h"
#include "framework/qt/pictures.h"
#include "framework/qt/window_peer.h"
#include "framework/windows/application.h"
#include "framework/windows/desktop.h"
#include "framework/windows/file_type.h"

#include <QPointer>
#include <QTimer>
#include <QUrl>

#include <map>
#include <string>
#include <vector>

namespace norvane {

/// The desktop on Qt 6 Widgets. A QApplication must exist for as long as it does. The event loop is
/// Qt's; it ends when the last window has gone.
class QtDesktop : public Desktop {
  public:
    /// Becomes the current desktop.
    QtDesktop();
    ~QtDesktop() override;
    QtDesktop(const QtDesktop &) = delete;
    QtDesktop &operator=(const QtDesktop &) = delete;

    /// Whose handlers the menus run; not owned. Before the first window is shown.
    void setApplication(Application &application) { application_ = &application; }

    Pictures pictures;
    Dialogs dialogs;

    /// Of all windows, by the desktop's font and screen as they are when the program starts.
    const Scale scale;

    /// The window on screen; null for one that is not shown.
    QWidget *peerOf(const Window &window) const;

    /// Closes all windows and ends the event loop, once the running action has ended.
    void quit();

    /// Lets TERM, INT and HUP end the program as quit does; dialogs that an action waits for are
    /// cancelled.
    void quitOnSignals();

    void message(const std::string &text) override;
    void failure(const std::string &text) override;
    Ref<FolderItem> chooseFile(const std::string &fileType) override;
    Ref<FolderItem> chooseSaveFile(const std::string &fileType,
                                   const std::string &defaultName) override;
    Ref<FolderItem> chooseFolder() override;
    void launch(const std::string &path, bool activate) override;
    void showURL(const std::string &address) override;
    void add(Window &window) override;
    void show(Window &window) override;
    void remove(Window &window) override;
    TimePoint now() const override;
    void add(Timer &timer) override;
    void remove(Timer &timer) override;
    void timersChanged() override;

  private:
    void open(const QUrl &address, const std::string &trouble);
    void tellLater(const std::string &text);
    void raiseTicks();

    Application *application_ = nullptr;
    ControlStyle &style_;
    std::map<const Window *, QPointer<WindowPeer>> peers_;
    std::vector<Window *> windows_;
    std::vector<Timer *> timers_;
    QTimer alarm_;    // goes off at the earliest due time
    QTimer quitting_; // runs while the wish to quit waits for an action's end
};

} // namespace norvane
