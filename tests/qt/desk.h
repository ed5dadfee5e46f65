#pragma once

#include "framework/qt/qt_desktop.h"
#include "shell/window1.h"
#include "tests/support/scenario.h"

#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace norvane {

/// A sitting at the real window: preferences and files are in temporary folders, and a script of
/// answers stands ready for the modal dialogs. A dialog that no answer was ready for is closed and
/// fails the test, as does an answer that was not asked for.
class Desk : public testing::Test {
  protected:
    Desk();
    ~Desk() override;

    Window1 &window() { return Window1::the(); }
    QWidget *peer() { return desktop.peerOf(window()); }
    /// The widget of a control of the main window.
    template <class Widget = QWidget>
    Widget *at(const char *name) {
        return peer()->findChild<Widget *>(QString::fromLatin1(name));
    }
    void click(const char *name) { QTest::mouseClick(at(name), Qt::LeftButton); }
    void key(Qt::Key code) { QTest::keyClick(QApplication::focusWidget(), code); }
    static std::string focus();

    /// Enters a path in a file dialog, or closes a dialog by Escape.
    void answerPath(const std::string &path);
    void cancel();
    /// Confirms a message box, whose text is then in `messages`.
    void confirm();
    Lines messages;
    void confirmLater(); // as it comes after the action
    void answers(std::function<void(QWidget &)> answer) { answers_.push_back(std::move(answer)); }

    /// Presses "Select SCC File" and chooses `file`, then saves as `saveAs`, or cancels when it is
    /// "".
    void decode(const std::string &file, const std::string &saveAs);

    TemporaryFolder folder;
    TemporaryFolder preferences;
    TemporaryFolder programs; // holds the desktop's opener, which begins as one that finds nothing
    void setOpener(const std::string &script);
    QtDesktop desktop;

  private:
    void answerDialog();

    std::deque<std::function<void(QWidget &)>> answers_;
    QTimer watcher_;
};

} // namespace norvane
