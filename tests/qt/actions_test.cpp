#include "shell/about_win.h"
#include "shell/app.h"
#include "tests/qt/desk.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <optional>

namespace norvane {
namespace {

class Actions : public Desk {
  protected:
    /// The items of a menu that could be chosen now.
    Lines enabledItems(const char *firstItem) {
        Lines items;
        auto *menu = qobject_cast<QMenu *>(at<QAction>(firstItem)->parent());
        emit menu->aboutToShow();
        for (const QAction *action : menu->actions()) {
            if (action->isEnabled() && !action->isSeparator())
                items.push_back(action->objectName().toStdString());
        }
        return items;
    }
    void choose(const char *item) { at<QAction>(item)->trigger(); }
};

TEST_F(Actions, MenusAreTheProgramsOwnAndQuitEndsIt) {
    EXPECT_EQ(QApplication::applicationName(), "Norvane");
    EXPECT_EQ(QGuiApplication::desktopFileName(), "norvane");
    EXPECT_FALSE(QApplication::windowIcon().isNull());
    EXPECT_FALSE(at<QAction>("EditCut")->isEnabled());
    std::string menus;
    for (const QAction *top : peer()->findChild<QMenuBar *>()->actions()) {
        menus += top->text().toStdString() + ":";
        for (const QAction *item : top->menu()->actions()) {
            menus += item->isSeparator() ? " -"
                                         : " " + item->text().toStdString() + "=" +
                                               item->shortcut().toString().toStdString();
            menus += item->menuRole() == QAction::QuitRole          ? " (quit)"
                     : item->menuRole() == QAction::PreferencesRole ? " (settings)"
                                                                    : "";
        }
    }
    EXPECT_EQ(menus, "&File: &Quit=Ctrl+Q (quit) About Norvane= (settings)"
                     "&Edit: &Undo=Ctrl+Z - Cu&t=Ctrl+X &Copy=Ctrl+C &Paste=Ctrl+V &Delete= - "
                     "Select &All=Ctrl+A");
    EXPECT_EQ(peer()->layout()->itemAt(0)->geometry().y(), peer()->layout()->menuBar()->height());
    QTimer later;
    later.setSingleShot(true);
    QObject::connect(&later, &QTimer::timeout, [this] { choose("FileQuit"); });
    later.start(0);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(preferences.has("com.bellwick.norvane.prefs"));
}

TEST_F(Actions, HelpBoxesSayTheirTexts) {
    for (const char *button : {"BevelButton2", "BevelButton3", "BevelButton8"}) {
        confirm();
        click(button);
    }
    std::string starts;
    for (const std::string &message : messages)
        starts += message.substr(0, 17) + "|";
    EXPECT_EQ(starts, "This option gives|This option will |If you designate |");
}

TEST_F(Actions, DialogsCancelledAtEveryPoint) {
    folder.write("one.scc", sccFile({hiLine("00:00:01:00")}));
    click("PopupArrow1");
    cancel();
    click("BevelButton1");
    EXPECT_TRUE(window().timeCodeArray.empty());
    decode("one.scc", "");
    EXPECT_EQ(window().timeCodeArray.size(), 1U);
    EXPECT_FALSE(at("ProgressBar1")->isVisible());
    EXPECT_EQ(messages, Lines());
    cancel();
    confirm();
    click("BevelButton7");
    EXPECT_EQ(messages, Lines{"No folder selected."});
    answers([this](QWidget &dialog) {
        EXPECT_TRUE(dynamic_cast<QFileDialog &>(dialog).testOption(QFileDialog::ShowDirsOnly));
        auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        edit->setText(QString::fromStdString(folder.path()));
        QTest::keyClick(edit, Qt::Key_Return);
    });
    click("BevelButton6");
    EXPECT_EQ(at<QLineEdit>("TextField1")->text().toStdString(), folder.path());
    EXPECT_EQ(window().hotFolder, folder.path());
    answers([this](QWidget &dialog) {
        EXPECT_EQ(dynamic_cast<QFileDialog &>(dialog).directory().path().toStdString() + "/",
                  folder.path());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    click("BevelButton1");
}

TEST_F(Actions, AFailureIsToldOnceAndTheNextDecodeWorks) {
    folder.write("bad.scc", sccFile({hiLine("00:00:01:00"), hiLine("00:00:05")}));
    folder.write("good.scc", sccFile({hiLine("00:01:00:00")}));
    answerPath(folder.path("bad.scc"));
    confirm();
    click("BevelButton1");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_TRUE(messages[0].starts_with("This could not be finished: ")) << messages[0];
    EXPECT_EQ(messages[0].find("exception"), std::string::npos);
    decode("good.scc", "good.txt");
    EXPECT_EQ(folder.read("good.txt"), "Transcripts of good\n\n[00:00:01.33]\t Hi! \n\n\n");
    EXPECT_EQ(messages.back(),
              "This file is saved, but the desktop has no program that opens it:\n" +
                  folder.path("good.txt"));
}

TEST_F(Actions, EditItemsServeTheFieldWithTheFocus) {
    QGuiApplication::clipboard()->clear();
    EXPECT_EQ(enabledItems("FileQuit"), (Lines{"FileQuit", "FileAboutNorvane"}));
    at("LineBox")->setFocus();
    EXPECT_EQ(enabledItems("EditUndo"), Lines());
    click("PopupArrow1");
    auto *field = at<QLineEdit>("timerText");
    field->setFocus();
    field->deselect();
    EXPECT_EQ(enabledItems("EditUndo"), Lines{"EditSelectAll"});
    peer()->findChild<QMenuBar *>()->setFocus(); // as the access letters do
    EXPECT_EQ(enabledItems("EditUndo"), Lines{"EditSelectAll"});
    choose("EditSelectAll");
    EXPECT_EQ(enabledItems("EditUndo"),
              (Lines{"EditCut", "EditCopy", "EditClear", "EditSelectAll"}));
    field->setFocus();
    peer()->findChild<QMenuBar *>()->setFocus(Qt::MenuBarFocusReason);
    choose("EditCut");
    EXPECT_EQ(window().timerText.Text.get(), "");
    EXPECT_EQ(enabledItems("EditUndo"), (Lines{"EditUndo", "EditPaste"}));
    choose("EditPaste");
    choose("EditPaste");
    EXPECT_EQ(window().timerText.Text.get(), "1515");
    choose("EditUndo");
    EXPECT_EQ(window().timerText.Text.get(), "15");
}

TEST_F(Actions, AboutIsOneWindowAndOutlivesTheMainOne) {
    choose("FileAboutNorvane");
    QPointer<QWidget> first = desktop.peerOf(aboutWin::the());
    first->showMinimized();
    choose("FileAboutNorvane");
    EXPECT_FALSE(first->isMinimized());
    EXPECT_EQ(first, desktop.peerOf(aboutWin::the()));
    EXPECT_EQ(first->windowTitle(), "About Norvane");
    const auto *text = first->findChild<QWidget *>("Label1"); // whose last line is empty
    EXPECT_LE(text->heightForWidth(372) - text->fontMetrics().lineSpacing(), 141);
    EXPECT_EQ(text->property("text").toString().left(28), "Norvane version 1.6\n\nThis ap");
    first->resize(700, 400);
    EXPECT_TRUE(aboutWin::the().Width == 700 && aboutWin::the().Height > 300);
    aboutWin::the().Width = 680;
    EXPECT_EQ(first->width(), 680);
    QPointer<QWidget> main = peer();
    main->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return main.isNull(); }));
    EXPECT_TRUE(preferences.has("com.bellwick.norvane.prefs"));
    EXPECT_TRUE(first->isVisible());
    first->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return first.isNull(); }));
    _LateStartup();
    EXPECT_TRUE(peer()->isVisible());
    choose("FileAboutNorvane");
    EXPECT_EQ(desktop.peerOf(aboutWin::the())->width(), 561);
}

TEST_F(Actions, AWindowClosesWhenTheActionHasEnded) {
    const QPointer<QWidget> main = peer();
    answers([](QWidget &box) {
        box.parentWidget()->close();
        box.close();
    });
    click("BevelButton2");
    EXPECT_TRUE(main->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return main.isNull(); }));
}

TEST_F(Actions, TimersTickWhenDue) {
    int ticks = 0;
    Timer timer;
    Timer never;
    std::optional<Timer> gone;
    gone.emplace().Action = [&] { ticks += 1000; };
    gone->Period = 1;
    gone->Reset();
    gone.reset();
    timer.Action = [&] { ++ticks; };
    never.Action = [&] { ticks += 1000; };
    never.Period = std::numeric_limits<std::int64_t>::max();
    never.Reset();
    timer.Period = 20;
    timer.Reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }));
    timer.Mode = 0;
    QTest::qWait(60);
    EXPECT_EQ(ticks, 3);
}

} // namespace
} // namespace norvane
