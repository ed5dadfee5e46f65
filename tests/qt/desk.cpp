#include "tests/qt/desk.h"

#include "shell/start.h"

#include <QMessageBox>

#include <cstdlib>

namespace norvane {

Desk::Desk() {
    setenv("XDG_CONFIG_HOME", preferences.path().c_str(), 1);
    setenv("PATH", (programs.path() + ":/usr/bin:/bin").c_str(), 1);
    setOpener("exit 4");
    QObject::connect(&watcher_, &QTimer::timeout, [this] { answerDialog(); });
    watcher_.start(5);
    start(desktop);
    EXPECT_TRUE(QTest::qWaitForWindowActive(peer()));
    EXPECT_TRUE(QTest::qWaitForWindowExposed(peer()));
    QTest::qWait(1);
}

Desk::~Desk() {
    QTimer::singleShot(0, &watcher_, [this] { desktop.quit(); });
    QApplication::exec();
    EXPECT_TRUE(answers_.empty()) << answers_.size() << " answers were not asked for";
}

std::string Desk::focus() {
    const QWidget *widget = QApplication::focusWidget();
    return widget == nullptr ? "" : widget->objectName().toStdString();
}

void Desk::answerDialog() {
    QWidget *dialog = QApplication::activeModalWidget();
    if (dialog == nullptr)
        return;
    if (auto *box = qobject_cast<QMessageBox *>(dialog))
        messages.push_back(box->text().toStdString());
    if (answers_.empty()) {
        ADD_FAILURE() << "unexpected dialog: " << dialog->windowTitle().toStdString();
        dialog->close();
        return;
    }
    const auto answer = answers_.front();
    answers_.pop_front();
    answer(*dialog);
}

void Desk::answerPath(const std::string &path) {
    answers_.emplace_back([path](QWidget &dialog) {
        auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(edit, nullptr) << "no file dialog";
        edit->setText(QString::fromStdString(path));
        QTest::keyClick(edit, Qt::Key_Return);
    });
}

void Desk::cancel() {
    answers_.emplace_back([](QWidget &dialog) {
        EXPECT_EQ(qobject_cast<QMessageBox *>(&dialog), nullptr);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
}

void Desk::confirm() {
    answers_.emplace_back([](QWidget &dialog) {
        EXPECT_NE(qobject_cast<QMessageBox *>(&dialog), nullptr);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
}

void Desk::confirmLater() {
    confirm();
    EXPECT_TRUE(QTest::qWaitFor([this] { return answers_.empty(); }));
}

void Desk::setOpener(const std::string &script) {
    programs.write("xdg-open", "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(programs.path("xdg-open"), std::filesystem::perms::owner_all);
}

void Desk::decode(const std::string &file, const std::string &saveAs) {
    answerPath(folder.path(file));
    if (saveAs.empty())
        cancel();
    else
        answerPath(folder.path(saveAs));
    click("BevelButton1");
    if (!saveAs.empty())
        confirmLater();
}

} // namespace norvane
