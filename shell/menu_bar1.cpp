#include "shell/menu_bar1.h"

namespace norvane {

MenuBar1 &MenuBar1::the() {
    static MenuBar1 bar;
    return bar;
}

MenuBar1::MenuBar1() {
    Untitled0();
    Untitled1();
}

void MenuBar1::Untitled0() {
    menus.push_back({.Name = "FileMenu",
                     .Text = "&File",
                     .items = {
                         {"FileQuit", "&Quit", "Cmd+Q", MenuKind::QuitMenuItem},
                         {"FileAboutNorvane", "About Norvane", "", MenuKind::PrefsMenuItem},
                     }});
}

void MenuBar1::Untitled1() {
    menus.push_back({.Name = "EditMenu",
                     .Text = "&Edit",
                     .items = {
                         {"EditUndo", "&Undo", "Cmd+Z"},
                         {"UntitledMenu1", "-", "", MenuKind::separator},
                         {"EditCut", "Cu&t", "Cmd+X"},
                         {"EditCopy", "&Copy", "Cmd+C"},
                         {"EditPaste", "&Paste", "Cmd+V"},
                         {"EditClear", "&Delete"},
                         {"UntitledMenu0", "-", "", MenuKind::separator},
                         {"EditSelectAll", "Select &All", "Cmd+A"},
                     }});
}

} // namespace norvane
