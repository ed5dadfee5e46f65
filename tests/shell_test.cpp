#include "framework/headless/look.h"
#include "shell/about_win.h"
#include "shell/app.h"
#include "shell/file_types.h"
#include "shell/help_article.h"
#include "shell/menu_bar1.h"
#include "tests/support/scenario.h"

namespace norvane {
namespace {

class Shell : public Scenario {
  protected:
    ~Shell() override { aboutWin::the().Close(); }
};

TEST_F(Shell, WindowsLookAsDesigned) {
    EXPECT_EQ("\n" + look(window()) + look(aboutWin::the()), R"(
Norvane 586 281 64 64 32000 32000 close minimize live menu bar
BevelButton1: BevelButton 3 "Select SCC File" 439 102 127 22
TimecodeBox: CheckBox "Include Timecode" 184 110 146 20 on
LineBox: CheckBox "Line by line form" 184 47 132 20 on
ParagraphBox: CheckBox "Paragraph form" 184 78 127 20 off
StaticText1: Label 10 grey 183 14 141 20 "Output text file settings:"
ProgressBar1: ProgressBar 20 220 546 20 0 of 100 hidden, read as "Progress"
RadioButton1: RadioButton "Unbuffered timecode" 184 148 161 20 on
RadioButton2: RadioButton "Keep SCC timecode" 184 180 153 20 off
BevelButton3: BevelButton 0 "?" 349 180 18 16, read as "Help on keeping the SCC timecode"
BevelButton2: BevelButton 0 "?" 349 148 17 16, read as "Help on unbuffered timecode"
Canvas1: Canvas NORVANE_128 20 24 128 128, read as "Norvane"
BevelButton4: BevelButton 3 "Select Folder" 439 63 127 22
BevelButton5: BevelButton 3 "Untitled" -224 -16 60 22
CheckBox1: CheckBox "Decode Watch Folder Files" 20 289 231 20 off
TextField1: TextField 143 321 344 22 "" disabled, read as "Watch folder"
Label1: Label 0 54 321 100 20 "Watch Folder:"
TextField2: TextField 143 353 344 22 "" disabled, read as "Destination folder"
Label2: Label 0 21 353 126 20 "Destination Folder:"
BevelButton6: BevelButton 3 "Browse..." 499 320 67 22, read as "Browse for the watch folder"
BevelButton7: BevelButton 3 "Browse..." 499 351 67 22, read as "Browse for the destination folder"
ProgressText: Label 0 centred 20 208 546 20 "Reading SCC File..." hidden
Separator1: Separator 140 251 426 10
Label3: Label 0 28 245 100 20 "Watch Folder"
PopupArrow1: PopupArrow 13 250 10 10 facing 0, read as "Watch folder settings"
Label4: Label 0 323 290 135 20 "Check for files every"
timerText: TextField centred 457 289 40 22 "15", read as "Minutes between two checks for files"
Label5: Label 0 507 290 59 20 "minutes."
Label6: Label 10 grey multiline 443 32 118 28 "Select either a folder of\rfiles or a file to decode:"
BevelButton8: BevelButton 0 "?" 115 247 17 16, read as "Help on the watch folder"
PushButton1: PushButton "Troubleshooting" 439 179 122 22
Listbox1: Listbox -314 20 300 200
About Norvane 561 167 64 64 32000 32000 close minimize resizeable live menu bar
Canvas1: Canvas NORVANE_128 24 19 129 128, read as "Norvane"
Label1: Label 12 multiline 165 21 372 141 "Norvane version 1.6\r\rThis application grew out of the need to troubleshoot Sonic Scenarist closed caption files and also to be able to easily create human-readable transcripts of movies from these files. \rHope you find this application to be a useful tool!\r\rMay every caption read the way it was spoken.\r"
)");
}

TEST_F(Shell, MenusAndFileTypes) {
    std::string text = "\n";
    const std::function<void(const MenuItem &)> add = [&](const MenuItem &item) {
        text += item.Name + ": " + item.Text + " " + item.Shortcut + " " +
                std::to_string(static_cast<int>(item.kind)) +
                (item.AutoEnable && item.Visible && item.Enabled ? "\n" : " off\n");
        for (const MenuItem &inner : item.items)
            add(inner);
    };
    for (const MenuItem &menu : MenuBar1::the().menus)
        add(menu);
    for (const auto *types : {&FileTypes1::pAllFileTypes, &scctypes::pAllFileTypes}) {
        for (const FileType *type : *types)
            text += type->Name + ", " + type->Extensions + ", " + type->MacType + ", " +
                    type->MacCreator + ", " + type->MimeType + ", " + type->ConformsTo + ", " +
                    type->UTI + (type->Imported ? ", imported\n" : "\n");
    }
    EXPECT_EQ(text, R"(
FileMenu: &File  0
FileQuit: &Quit Cmd+Q 2
FileAboutNorvane: About Norvane  3
EditMenu: &Edit  0
EditUndo: &Undo Cmd+Z 0
UntitledMenu1: -  1
EditCut: Cu&t Cmd+X 0
EditCopy: &Copy Cmd+C 0
EditPaste: &Paste Cmd+V 0
EditClear: &Delete  0
UntitledMenu0: -  1
EditSelectAll: Select &All Cmd+A 0
text/scc, .scc, TXT, R*ch, , , , imported
text/scc, .txt;.scc, TEXT, ????, , public.data, public.content, public.text, imported
)");
    MenuItem &about = MenuBar1::the().menus[0].items[1];
    about.Enabled = false;
    App::the().Event_EnableMenuItems();
    EXPECT_TRUE(about.Enabled);
}

TEST_F(Shell, ButtonsAndCommands) {
    _LateStartup();
    desktop.click(window().BevelButton2);
    desktop.click(window().BevelButton3);
    desktop.click(window().BevelButton8);
    desktop.click(window().PopupArrow1);
    desktop.click(window().PopupArrow1);
    for (const char *item : {"FileAboutNorvane", "FileAboutNorvane", "FileNewWindow", "EditCut"})
        App::the().menuCommand(item);
    closeWindow();
    App::the().menuCommand("FileNewWindow");
    EXPECT_EQ(seen(), R"(
show Norvane
message This option gives you the more accurate start time since the SCC format builds in a buffer time of about 1 frame per 4-digit code prior to the caption's actual start time. The timecode will be displayed in hundredths of a second.
message This option will leave the SCC timecode the way it is in frames. You may want to use this if you are attempting to troubleshoot an SCC file that has errors, for example.
message If you designate a folder to watch, Norvane will keep checking the folder and will decode any files it finds in that folder at the given number of minutes. Click the triangle for settings and to activate this feature.
PopupArrow1 facing 3
Norvane 395
PopupArrow1 facing 0
Norvane 281
show About Norvane
show About Norvane
show Norvane
show Norvane
)");
    desktop.click(window().PushButton1);
    EXPECT_EQ(desktop.takeLog(), Lines{"url " + helpArticleAddress()});
    EXPECT_TRUE(helpArticleAddress().ends_with("/resources/help/help.html"));
    EXPECT_EQ(fileAddress("/AZaz09-._~/é @[`{:"), "file:///AZaz09-._~/%C3%A9%20%40%5B%60%7B%3A");
}

TEST_F(Shell, OptionsSetEachOtherOff) {
    Window1 &w = window();
    desktop.takeLog();
    for (CheckBox *box : {&w.ParagraphBox, &w.ParagraphBox, &w.TimecodeBox, &w.LineBox,
                          &w.TimecodeBox, &w.LineBox, &w.LineBox, &w.TimecodeBox})
        desktop.click(*box);
    for (RadioButton *button : {&w.RadioButton1, &w.RadioButton2, &w.RadioButton1})
        desktop.click(*button);
    w.RadioButton1.Value = false;
    EXPECT_EQ(
        desktop.takeLog(),
        (Lines{"ParagraphBox on",  "LineBox off",     "TimecodeBox off",  "ParagraphBox off",
               "LineBox on",       "TimecodeBox on",  "TimecodeBox off",  "LineBox off",
               "ParagraphBox on",  "TimecodeBox on",  "ParagraphBox off", "LineBox on",
               "LineBox off",      "ParagraphBox on", "TimecodeBox off",  "LineBox on",
               "ParagraphBox off", "TimecodeBox on",  "TimecodeBox off",  "RadioButton2 on",
               "RadioButton1 off", "RadioButton1 on", "RadioButton2 off", "RadioButton1 off"}));
}

} // namespace
} // namespace norvane
