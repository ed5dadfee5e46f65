#include "framework/headless/description.h"
#include "framework/windows/guard.h"
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
    EXPECT_EQ(describe(window()) + describe(aboutWin::the()), scene("windows"));
}

TEST_F(Shell, MenusAndFileTypes) {
    std::string text;
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
        for (const FileType *type : *types) {
            text += type->Name + ", " + type->Extensions + ", " + type->MacType + ", " +
                    type->MacCreator + ", " + type->MimeType + ", " + type->ConformsTo + ", " +
                    type->UTI + (type->Imported ? ", imported\n" : "\n");
        }
    }
    EXPECT_EQ(text, scene("menus"));
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
    const std::string folded = window().PopupArrow1.hint;
    EXPECT_EQ(folded, "Collapsed: shows the settings below when pressed");
    desktop.click(window().PopupArrow1);
    EXPECT_EQ(window().PopupArrow1.hint.get(), "Expanded: hides the settings below when pressed");
    desktop.click(window().PopupArrow1);
    EXPECT_EQ(window().PopupArrow1.hint.get(), folded);
    for (const char *item : {"FileAboutNorvane", "FileAboutNorvane", "FileNewWindow", "EditCut"})
        App::the().menuCommand(item);
    closeWindow();
    App::the().menuCommand("FileNewWindow");
    EXPECT_EQ(seen(), scene("buttons"));
    desktop.click(window().PushButton1);
    EXPECT_EQ(desktop.takeLog(), Lines{"url " + helpArticleAddress()});
    EXPECT_TRUE(helpArticleAddress().ends_with("/norvane/help.html"));
    EXPECT_EQ(fileAddress("/AZaz09-._~/é @[`{:"), "file:///AZaz09-._~/%C3%A9%20%40%5B%60%7B%3A");
}

TEST_F(Shell, OptionsSetEachOtherOff) {
    Window1 &w = window();
    desktop.takeLog();
    const std::string kNoPaper = "message This could not be finished: no paper.";
    for (CheckBox *box : {&w.ParagraphBox, &w.ParagraphBox, &w.TimecodeBox, &w.LineBox,
                          &w.TimecodeBox, &w.LineBox, &w.LineBox, &w.TimecodeBox})
        desktop.click(*box);
    w.RadioButton2.Value.changed = [] { throw IOException("no paper."); };
    for (RadioButton *button : {&w.RadioButton1, &w.RadioButton2, &w.RadioButton1})
        desktop.click(*button);
    w.RadioButton1.Value = false;
    EXPECT_EQ(desktop.takeLog(),
              (Lines{"ParagraphBox on",  "LineBox off",     "TimecodeBox off",  "ParagraphBox off",
                     "LineBox on",       "TimecodeBox on",  "TimecodeBox off",  "LineBox off",
                     "ParagraphBox on",  "TimecodeBox on",  "ParagraphBox off", "LineBox on",
                     "LineBox off",      "ParagraphBox on", "TimecodeBox off",  "LineBox on",
                     "ParagraphBox off", "TimecodeBox on",  "TimecodeBox off",  "RadioButton2 on",
                     "RadioButton1 off", kNoPaper,          "RadioButton1 on",  "RadioButton2 off",
                     kNoPaper,           "RadioButton1 off"}));
}

TEST_F(Shell, FailuresOfAnyKindAreTold) {
    guarded([] { throw IOException("the disk is full."); });
    guarded([] { throw std::bad_alloc(); });
    guarded([] { throw std::logic_error("why"); });
    guarded([] { throw 1; });
    guarded(nullptr);
    std::string told = "message This could not be finished: ";
    EXPECT_EQ(
        desktop.takeLog(),
        (Lines{told + "the disk is full.", told + "there is not enough memory.",
               told + "an internal error occurred (why).", told + "an internal error occurred."}));
}

TEST(Headless, TellsWhatTheScriptDidNotForesee) {
    HeadlessDesktop desktop;
    BevelButton button;
    button.Name = "Button";
    button.Enabled = false;
    desktop.click(button);
    desktop.answerFolder(HeadlessDesktop::cancel());
    EXPECT_FALSE(desktop.chooseFile("text/scc"));
    EXPECT_EQ(desktop.problems(), (Lines{"Button cannot be used", "unexpected open dialog",
                                         "no folder dialog took the answer for it"}));
}

} // namespace
} // namespace norvane
