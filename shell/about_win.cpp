#include "shell/about_win.h"

#include "shell/menu_bar1.h"

#include <memory>

namespace norvane {

namespace {
std::unique_ptr<aboutWin> shownAbout;
} // namespace

aboutWin &aboutWin::the() {
    if (!shownAbout) {
        shownAbout = std::make_unique<aboutWin>();
        shownAbout->closed = [] { shownAbout.reset(); };
        shownAbout->open();
    }
    return *shownAbout;
}

aboutWin::aboutWin() {
    MenuBar = &MenuBar1::the();
    Title = "About Norvane";
    Width = 561;
    Height = 167;
    Resizeable = true;

    add(Canvas1, "Canvas1", 24, 19, 129, 128);
    Canvas1.Backdrop = "NORVANE_128";
    Canvas1.accessibleName = "Norvane";

    add(Label1, "Label1", 165, 21, 372, 141);
    Label1.TextSize = 12;
    Label1.multiline = true;
    Label1.Text =
        "Norvane version 1.6\r\r"
        "This application grew out of the need to troubleshoot Sonic Scenarist closed caption "
        "files and also to be able to easily create human-readable transcripts of movies from "
        "these files. \r"
        "Hope you find this application to be a useful tool!\r\r"
        "May every caption read the way it was spoken.\r";
}

} // namespace norvane
