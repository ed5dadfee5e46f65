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

namespace {

void _NewAppInstance() { // NOLINT: the steps are named as the start-up names them
    App::the().MenuBar = &MenuBar1::the();
}

void _ApplicationAddMenuHandlers() { // NOLINT
    App &app = App::the();
    // No item bears the first two names: the handlers stand ready for a command of that name.
    app._AddMenuHandler("FileNewWindow", [&app] { return app._FileNewWindow_Action(); });
    app._AddMenuHandler("FileEnableHotFolder",
                        [&app] { return app._FileEnableHotFolder_Action(); });
    app._AddMenuHandler("FileAboutNorvane", [&app] { return app._FileAboutNorvane_Action(); });
}

void _MakeDefaultView() { // NOLINT
    Window1::the().Show();
}

} // namespace

void _EarlyStartup() {
    _InitFileTypes();
    _NewAppInstance();
    _ApplicationAddMenuHandlers();
}

void _LateStartup() {
    _MakeDefaultView();
}

} // namespace norvane
