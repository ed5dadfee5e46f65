#pragma once

#include "framework/windows/application.h"

namespace norvane {

/// The application object: preferences and menu handlers. All other state is Window1's.
class App : public Application {
  public:
    /// The one instance, made at first use.
    static App &the();

    void Event_Open() override;
    void Event_EnableMenuItems() override;

    // Menu handlers (shell/app.cpp; the watch's in folders/hot_folder_control.cpp). Each gives
    // false.
    bool _FileNewWindow_Action();       // NOLINT: the names are those of the menu items
    bool _FileEnableHotFolder_Action(); // NOLINT
    bool _FileAboutNorvane_Action();    // NOLINT

    /// Writes the nine settings of Window1 to the preference file, unless reading that failed.
    /// Throws NilObjectException when the file cannot be created and IOException when it cannot be
    /// written.
    void SavePrefs();

    /// Sets the controls of Window1 from the preference file, which raises their actions. Does
    /// nothing without a readable file; what a short file lacks counts as empty. Throws IOException
    /// when the disk fails.
    void GetPrefs();

  private:
    bool prefsUnread_ = false; // the disk failed while they were read
};

/// What the process does before its first window: file types, application object, menu handlers.
void _EarlyStartup(); // NOLINT: named as the step of the start-up that it is

/// Makes the main window, which reads the preferences, and shows it.
void _LateStartup(); // NOLINT

} // namespace norvane
