#include "shell/app.h"

#include "shell/about_win.h"
#include "shell/file_types.h"
#include "shell/menu_bar1.h"
#include "shell/window1.h"

namespace norvane {

App &App::the() {
    static App app;
    return app;
}

App::App() {
    MenuBar = &MenuBar1::the();
    // No item bears the first two names: the handlers stand ready for a command of that name.
    addMenuHandler("FileNewWindow", [this] { return _FileNewWindow_Action(); });
    addMenuHandler("FileEnableHotFolder", [this] { return _FileEnableHotFolder_Action(); });
    addMenuHandler("FileAboutNorvane", [this] { return _FileAboutNorvane_Action(); });
}

void App::Event_Open() {}

void App::Event_EnableMenuItems() {
    for (MenuItem &menu : MenuBar->menus) {
        for (MenuItem &item : menu.items) {
            if (item.Name == "FileAboutNorvane")
                item.Enabled = true;
        }
    }
}

bool App::_FileNewWindow_Action() {
    Window1::the().Show();
    return false;
}

bool App::_FileAboutNorvane_Action() {
    aboutWin::the().Show();
    return false;
}

void _EarlyStartup() {
    _InitFileTypes();
    App::the();
}

void _LateStartup() {
    Window1::the().Show();
}

} // namespace norvane
