#include "framework/windows/desktop.h"
#include "framework/windows/guard.h"
#include "shell/app.h"
#include "shell/help_article.h"
#include "shell/window1.h"

namespace norvane {

namespace {
constexpr int kFoldedHeight = 281;
constexpr int kUnfoldedHeight = 395;
} // namespace

void Window1::Event_Open() {
    guarded([] { App::the().GetPrefs(); }); // a disk that fails must not leave the timer on
    hotFolder = TextField1.Text;
    destFolder = TextField2.Text;
    // Kept: a watch that the preferences switched on has had its first cycle by now and gets no
    // ticks until the user switches it off and on.
    Timer1.Enabled = false;
    readInterval();
}

void Window1::Event_Close() {
    App::the().SavePrefs();
}

void Window1::BevelButton1_Action() {
    importSCC();
}

void Window1::BevelButton4_Action() {
    importSCCFolderSingle();
}

// The three boxes set each other off: a box that is set in code raises its own handler. Turning
// TimecodeBox off touches nothing else, which is how a user gets lines without timecodes.

void Window1::TimecodeBox_Action() {
    if (TimecodeBox.Value) {
        ParagraphBox.Value = false;
        LineBox.Value = true;
    }
}

void Window1::LineBox_Action() {
    if (LineBox.Value) {
        ParagraphBox.Value = false;
        TimecodeBox.Value = true;
    } else {
        ParagraphBox.Value = true;
        TimecodeBox.Value = false;
    }
}

void Window1::ParagraphBox_Action() {
    if (ParagraphBox.Value) {
        LineBox.Value = false;
        TimecodeBox.Value = false;
    } else {
        LineBox.Value = true;
    }
}

void Window1::BevelButton2_Action() {
    MsgBox("This option gives you the more accurate start time since the SCC format builds in a "
           "buffer "
           "time of about 1 frame per 4-digit code prior to the caption's actual start time. The "
           "timecode will be displayed in hundredths of a second.");
}

void Window1::BevelButton3_Action() {
    MsgBox(
        "This option will leave the SCC timecode the way it is in frames. You may want to use this "
        "if you are attempting to troubleshoot an SCC file that has errors, for example.");
}

void Window1::BevelButton8_Action() {
    MsgBox(
        "If you designate a folder to watch, Norvane will keep checking the folder and will decode "
        "any files it finds in that folder at the given number of minutes. Click the triangle for "
        "settings and to activate this feature.");
}

/// Screen readers announce this more reliably than the arrow's direction.
void Window1::tellFolding() {
    PopupArrow1.hint = PopupArrow1.Facing == PopupArrow::kRight
                           ? "Collapsed: shows the settings below when pressed"
                           : "Expanded: hides the settings below when pressed";
}

bool Window1::PopupArrow1_MouseDown() {
    const bool folded = PopupArrow1.Facing == PopupArrow::kRight;
    PopupArrow1.Facing = folded ? PopupArrow::kDown : PopupArrow::kRight;
    Height = folded ? kUnfoldedHeight : kFoldedHeight;
    tellFolding();
    return false;
}

void Window1::PushButton1_Action() {
    ShowURL(helpArticleAddress());
}

} // namespace norvane
