#include "shell/window1.h"

#include "shell/menu_bar1.h"

#include <memory>

namespace norvane {

namespace {
std::unique_ptr<Window1> shownWindow;
} // namespace

Window1 &Window1::the() {
    if (!shownWindow) {
        shownWindow = std::make_unique<Window1>();
        shownWindow->closed = [] { shownWindow.reset(); };
        shownWindow->open();
    }
    return *shownWindow;
}

Window1::Window1() {
    Layout();
    CreateControls();
}

void Window1::Layout() {
    MenuBar = &MenuBar1::the();
    Title = "Norvane";
    Width = 586;
    Height = 281;
}

void Window1::CreateControls() {
    _CreateControls0();
    _CreateControls1();
    nameForScreenReaders();
}

void Window1::_CreateControls0() {
    constexpr int kSmallText = 10;

    add(BevelButton1, "BevelButton1", 439, 102, 127, 22);
    BevelButton1.Caption = "Select SCC File";
    BevelButton1.Action = [this] { BevelButton1_Action(); };

    add(TimecodeBox, "TimecodeBox", 184, 110, 146, 20);
    TimecodeBox.Caption = "Include Timecode";
    TimecodeBox.Value = true;
    TimecodeBox.Value.changed = [this] { TimecodeBox_Action(); };

    add(LineBox, "LineBox", 184, 47, 132, 20);
    LineBox.Caption = "Line by line form";
    LineBox.Value = true;
    LineBox.Value.changed = [this] { LineBox_Action(); };

    add(ParagraphBox, "ParagraphBox", 184, 78, 127, 20);
    ParagraphBox.Caption = "Paragraph form";
    ParagraphBox.Value.changed = [this] { ParagraphBox_Action(); };

    add(StaticText1, "StaticText1", 183, 14, 141, 20);
    StaticText1.Text = "Output text file settings:";
    StaticText1.TextSize = kSmallText;
    StaticText1.grey = true;

    add(ProgressBar1, "ProgressBar1", 20, 220, 546, 20);
    ProgressBar1.Visible = false;

    add(RadioButton1, "RadioButton1", 184, 148, 161, 20);
    RadioButton1.Caption = "Unbuffered timecode";
    RadioButton1.Value = true;

    add(RadioButton2, "RadioButton2", 184, 180, 153, 20);
    RadioButton2.Caption = "Keep SCC timecode";

    add(BevelButton3, "BevelButton3", 349, 180, 18, 16);
    BevelButton3.Caption = "?";
    BevelButton3.Bevel = BevelButton::kSmallSquare;
    BevelButton3.Action = [this] { BevelButton3_Action(); };

    add(BevelButton2, "BevelButton2", 349, 148, 17, 16);
    BevelButton2.Caption = "?";
    BevelButton2.Bevel = BevelButton::kSmallSquare;
    BevelButton2.Action = [this] { BevelButton2_Action(); };

    add(Canvas1, "Canvas1", 20, 24, 128, 128);
    Canvas1.Backdrop = "NORVANE_128";

    add(BevelButton4, "BevelButton4", 439, 63, 127, 22);
    BevelButton4.Caption = "Select Folder";
    BevelButton4.Action = [this] { BevelButton4_Action(); };

    add(BevelButton5, "BevelButton5", -224, -16, 60, 22);
    BevelButton5.Caption = "Untitled";

    Timer1.Action = [this] { Timer1_Action(); };

    add(CheckBox1, "CheckBox1", 20, 289, 231, 20);
    CheckBox1.Caption = "Decode Watch Folder Files";
    CheckBox1.Value.changed = [this] { CheckBox1_Action(); };

    add(TextField1, "TextField1", 143, 321, 344, 22);
    TextField1.Enabled = false;

    add(Label1, "Label1", 54, 321, 100, 20);
    Label1.Text = "Watch Folder:";

    add(TextField2, "TextField2", 143, 353, 344, 22);
    TextField2.Enabled = false;

    add(Label2, "Label2", 21, 353, 126, 20);
    Label2.Text = "Destination Folder:";

    add(BevelButton6, "BevelButton6", 499, 320, 67, 22);
    BevelButton6.Caption = "Browse...";
    BevelButton6.Action = [this] { BevelButton6_Action(); };

    add(BevelButton7, "BevelButton7", 499, 351, 67, 22);
    BevelButton7.Caption = "Browse...";
    BevelButton7.Action = [this] { BevelButton7_Action(); };

    add(ProgressText, "ProgressText", 20, 208, 546, 20);
    ProgressText.Text = "Reading SCC File...";
    ProgressText.alignment = Alignment::centred;
    ProgressText.Visible = false;

    add(Separator1, "Separator1", 140, 251, 426, 10);

    add(Label3, "Label3", 28, 245, 100, 20);
    Label3.Text = "Watch Folder";

    add(PopupArrow1, "PopupArrow1", 13, 250, 10, 10);
    PopupArrow1.MouseDown = [this] { return PopupArrow1_MouseDown(); };

    add(Label4, "Label4", 323, 290, 135, 20);
    Label4.Text = "Check for files every";

    add(timerText, "timerText", 457, 289, 40, 22);
    timerText.Text = "15";
    timerText.alignment = Alignment::centred;
    timerText.Text.changed = [this] { timerText_TextChange(); };

    add(Label5, "Label5", 507, 290, 59, 20);
    Label5.Text = "minutes.";

    add(Label6, "Label6", 443, 32, 118, 28);
    Label6.Text = "Select either a folder of\rfiles or a file to decode:";
    Label6.TextSize = kSmallText;
    Label6.grey = true;
    Label6.multiline = true;

    add(BevelButton8, "BevelButton8", 115, 247, 17, 16);
    BevelButton8.Caption = "?";
    BevelButton8.Bevel = BevelButton::kSmallSquare;
    BevelButton8.Action = [this] { BevelButton8_Action(); };
}

void Window1::_CreateControls1() {
    add(PushButton1, "PushButton1", 439, 179, 122, 22);
    PushButton1.Caption = "Troubleshooting";
    PushButton1.Action = [this] { PushButton1_Action(); };

    add(Listbox1, "Listbox1", -314, 20, 300, 200);
}

void Window1::nameForScreenReaders() {
    BevelButton2.accessibleName = "Help on unbuffered timecode";
    BevelButton3.accessibleName = "Help on keeping the SCC timecode";
    BevelButton6.accessibleName = "Browse for the watch folder";
    BevelButton7.accessibleName = "Browse for the destination folder";
    BevelButton8.accessibleName = "Help on the watch folder";
    Canvas1.accessibleName = "Norvane";
    PopupArrow1.accessibleName = "Watch folder settings";
    ProgressBar1.accessibleName = "Progress";
    TextField1.accessibleName = "Watch folder";
    TextField2.accessibleName = "Destination folder";
    timerText.accessibleName = "Minutes between two checks for files";
    tellFolding();
}

} // namespace norvane
