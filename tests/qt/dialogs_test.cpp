#include "tests/qt/desk.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include <csignal>
#include <unistd.h>

namespace norvane {
namespace {

class DialogsAndDesktop : public Desk {
  protected:
    /// Looks at the file dialog that comes, and takes it as it stands.
    void answerAsItStands(const std::string &name, const QString &filter) {
        answers([=](QWidget &widget) {
            const auto &dialog = dynamic_cast<QFileDialog &>(widget);
            auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            EXPECT_EQ(edit->text().toStdString(), name);
            EXPECT_EQ(dialog.acceptMode() == QFileDialog::AcceptSave, !name.empty());
            EXPECT_EQ(dialog.nameFilters(), QStringList({filter, "All files (*)"}));
            QTest::keyClick(edit, Qt::Key_Return);
        });
    }
    void replaceOrNot(QMessageBox::StandardButton choice) {
        answers([choice](QWidget &box) {
            EXPECT_EQ(dynamic_cast<QMessageBox &>(box).textFormat(), Qt::PlainText);
            if (choice == QMessageBox::No) // which is what Return means
                QTest::keyClick(&box, Qt::Key_Return);
            else
                dynamic_cast<QMessageBox &>(box).button(choice)->click();
        });
    }
    const std::string sample_ = sccFile({hiLine("00:00:01:00")});
};

TEST_F(DialogsAndDesktop, NamesArriveAsTheyAre) {
    const std::string odd = " q \"d\" & $x;y, z";
    folder.write(odd + ".scc", sample_);
    answerPath(folder.path(odd + ".scc"));
    answerAsItStands(odd + ".txt", "Text files (*.txt)");
    click("BevelButton1");
    confirmLater();
    EXPECT_TRUE(folder.has(odd + ".txt"));
    answerAsItStands("", "SCC files (*.scc *.SCC)");
    cancel();
    click("BevelButton1");
    std::filesystem::create_directory(folder.path("linked"));
    std::filesystem::create_symlink("linked", folder.path("in \"d\""));
    EXPECT_EQ(lchown(folder.path("in \"d\"").c_str(), 1, 1), geteuid() == 0 ? 0 : -1);
    click("PopupArrow1");
    answerPath(folder.path("in \"d\""));
    click("BevelButton6");
    EXPECT_EQ(window().hotFolder, folder.path("in \"d\"/"));
}

TEST_F(DialogsAndDesktop, TheFinalNameIsWhatIsReplaced) {
    folder.write("a.scc", sample_);
    folder.write("plain", "kept");
    folder.write("old.txt", "");
    answerPath(folder.path("a.scc"));
    answerPath(folder.path("none/a"));
    confirm();
    cancel();
    click("BevelButton1");
    EXPECT_EQ(std::exchange(messages, {}), Lines{"“" + folder.path("none") + "” is not a folder."});
    const std::string longName(252, 'n');
    answerPath(folder.path("a.scc"));
    answerPath(folder.path(longName)); // with its extension too long by one
    confirm();
    answers([](QWidget &dialog) {
        dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(QString(300, u'n'));
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    });
    confirm();
    cancel();
    click("BevelButton1");
    for (const std::string &message : std::exchange(messages, {}))
        EXPECT_NE(message.find("File name too long"), std::string::npos) << message;
    setOpener("echo \"$1\" >\"$0.told\"");
    answerPath(folder.path("a.scc"));
    answerPath(folder.path("plain"));
    click("BevelButton1");
    EXPECT_TRUE(QTest::qWaitFor([&] { return programs.has("xdg-open.told"); }));
    EXPECT_EQ(folder.read("plain"), "kept");
    EXPECT_EQ(messages, Lines());
    for (const auto choice : {QMessageBox::No, QMessageBox::Yes}) {
        answerPath(folder.path("a.scc"));
        answerPath(folder.path("old"));
        replaceOrNot(choice);
        if (choice == QMessageBox::No)
            cancel();
        click("BevelButton1");
        EXPECT_EQ(folder.read("old.txt").empty(), choice == QMessageBox::No);
        EXPECT_EQ(messages.back(), "“old.txt” already exists. Replace it?");
    }
    EXPECT_EQ(folder.read("old.txt"), folder.read("plain.txt"));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return programs.read("xdg-open.told") == "file://" + folder.path("old.txt") + "\n";
    }));
}

TEST_F(DialogsAndDesktop, WhatTheDesktopCannotOpenIsTold) {
    for (const char *opener : {"exit 1", "kill $$", ""}) {
        if (*opener != '\0')
            setOpener(opener);
        else
            std::filesystem::remove(programs.path("xdg-open"));
        ShowURL("file:///a%20page");
        confirmLater();
        EXPECT_EQ(messages.back(),
                  "The desktop has no program that opens this page:\nfile:///a%20page");
    }
    setOpener("sleep 3.2; exit 1"); // has found a program, which failed later
    ShowURL("file:///a%20page");
    QTest::qWait(3500);
    EXPECT_EQ(messages.size(), 3U);
}

TEST_F(DialogsAndDesktop, ASignalCancelsWhatWaitsAndQuits) {
    desktop.quitOnSignals();
    folder.write("a.scc", sample_);
    folder.write("old.txt", "");
    answerPath(folder.path("a.scc"));
    answerPath(folder.path("old.txt"));
    answers([](QWidget & /*question*/) { std::raise(SIGTERM); });
    click("BevelButton1");
    EXPECT_EQ(window().timeCodeArray.size(), 1U);
    click("BevelButton4"); // whose dialog and message nobody is there to see
    const QPointer<QWidget> main = peer();
    QApplication::exec();
    EXPECT_TRUE(main.isNull() || main->isHidden());
    EXPECT_TRUE(preferences.has("com.bellwick.norvane.prefs"));
    EXPECT_EQ(folder.read("old.txt"), "");
}

TEST_F(DialogsAndDesktop, ABoxWithoutAWindowBehindItEndsNothing) {
    peer()->hide();
    answers([](QWidget &box) {
        EXPECT_EQ(dynamic_cast<QMessageBox &>(box).textFormat(), Qt::PlainText);
        QTest::keyClick(&box, Qt::Key_Return);
    });
    QTimer box;
    QTimer end;
    bool went = false;
    box.setSingleShot(true);
    QObject::connect(&box, &QTimer::timeout, &box, [] { MsgBox("<b>a & b</b>"); });
    QObject::connect(&end, &QTimer::timeout, &end, [&] {
        went = true;
        QApplication::exit();
    });
    box.start(0);
    end.start(100);
    QApplication::exec();
    EXPECT_TRUE(went);
}

} // namespace
} // namespace norvane
