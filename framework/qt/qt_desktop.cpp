#include "framework/qt/qt_desktop.h"

#include "framework/qt/end_signals.h"
#include "framework/qt/qt_text.h"
#include "framework/windows/guard.h"
#include "framework/windows/window.h"

#include <QApplication>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QFile>
#include <QFontInfo>
#include <QFontMetrics>
#include <QProcess>
#include <QScreen>
#include <QStyleFactory>

#include <algorithm>
#include <chrono>
#include <limits>

namespace norvane {

namespace {

/// The screen's free area, without what stands around a window's own.
QSize roomOnScreen() {
    constexpr QSize kFrame(10, 45); // of a window manager's
    constexpr int kAroundMenus = 12;
    const int menuBar = QFontMetrics(QApplication::font("QMenuBar")).height() + kAroundMenus;
    return QGuiApplication::primaryScreen()->availableSize() - kFrame - QSize(0, menuBar);
}

} // namespace

QtDesktop::QtDesktop()
    : scale(QFontInfo(QApplication::font()).pixelSize(), roomOnScreen()),
      style_(*new ControlStyle(QStyleFactory::create(QApplication::style()->name()), scale)) {
    style_.setParent(qApp); // which deletes its widgets first
    setCurrent(*this);
    // A dialog that closes while no window is shown must not end the program.
    QApplication::setQuitOnLastWindowClosed(false);
    alarm_.setSingleShot(true);
    alarm_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&alarm_, &QTimer::timeout, [this] { raiseTicks(); });
    quitting_.setSingleShot(true);
    QObject::connect(&quitting_, &QTimer::timeout, [this] { quit(); });
}

QtDesktop::~QtDesktop() {
    for (const auto &[window, peer] : peers_)
        delete peer;
}

QWidget *QtDesktop::peerOf(const Window &window) const {
    const auto found = peers_.find(&window);
    return found == peers_.end() ? nullptr : found->second;
}

void QtDesktop::quit() {
    if (actionAtWork()) {
        quitting_.start(kAskAgain);
        return;
    }
    while (!windows_.empty())
        windows_.back()->Close();
    QCoreApplication::exit();
}

void QtDesktop::quitOnSignals() {
    onEndSignals(alarm_, [this] {
        dialogs.cancelAll();
        quit();
    });
}

void QtDesktop::message(const std::string &text) {
    dialogs.message(QMessageBox::Information, text);
}

void QtDesktop::failure(const std::string &text) {
    dialogs.message(QMessageBox::Warning, text);
}

Ref<FolderItem> QtDesktop::chooseFile(const std::string &fileType) {
    return dialogs.openFile(fileType);
}

Ref<FolderItem> QtDesktop::chooseSaveFile(const std::string &fileType,
                                          const std::string &defaultName) {
    return dialogs.saveFile(fileType, defaultName);
}

Ref<FolderItem> QtDesktop::chooseFolder() {
    return dialogs.folder();
}

void QtDesktop::launch(const std::string &path, bool /*activate*/) {
    open(QUrl::fromLocalFile(QFile::decodeName(path.c_str())),
         "This file is saved, but the desktop has no program that opens it:\n" + path);
}

void QtDesktop::showURL(const std::string &address) {
    open(QUrl::fromEncoded(QByteArray::fromStdString(address)),
         "The desktop has no program that opens this page:\n" + address);
}

/// Hands an address to the desktop. Where there is an opener, only its end tells whether it found a
/// program, and some openers last as long as that program; so it is waited for on the side.
void QtDesktop::open(const QUrl &address, const std::string &trouble) {
    constexpr int kFindsNothing = 3000; // milliseconds: what takes longer has found a program
    auto *opener = new QProcess;        // left alone when this program ends first
    QElapsedTimer started;
    started.start();
    QObject::connect(opener, &QProcess::finished, &alarm_, [=, this](int status) {
        opener->deleteLater();
        if (status != 0 && started.elapsed() < kFindsNothing)
            tellLater(trouble);
    });
    QObject::connect(opener, &QProcess::errorOccurred, &alarm_,
                     [this, opener, address, trouble](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart)
                             return;
                         opener->deleteLater();
                         if (!QDesktopServices::openUrl(address))
                             tellLater(trouble);
                     });
    opener->setProcessChannelMode(QProcess::ForwardedChannels);
    opener->setStandardInputFile(QProcess::nullDevice());
    opener->start(QStringLiteral("xdg-open"), {QString::fromLatin1(address.toEncoded())});
}

/// From the event loop: in a message's own loop the sender of a signal may go.
void QtDesktop::tellLater(const std::string &text) {
    const auto tell = [this, text] { guarded([&] { message(text); }); };
    QMetaObject::invokeMethod(&alarm_, tell, Qt::QueuedConnection);
}

void QtDesktop::add(Window &window) {
    windows_.push_back(&window);
}

void QtDesktop::show(Window &window) {
    QPointer<WindowPeer> &peer = peers_[&window];
    if (!peer)
        peer = new WindowPeer(window, *application_, Look{scale, style_, pictures},
                              [this] { quit(); });
    peer->show();
    peer->setWindowState(peer->windowState() & ~Qt::WindowMinimized);
    peer->raise();
    peer->activateWindow();
}

void QtDesktop::remove(Window &window) {
    std::erase(windows_, &window);
    const auto found = peers_.find(&window);
    if (found == peers_.end())
        return;
    if (WindowPeer *peer = found->second) {
        peer->hide();
        peer->deleteLater(); // the event that closed it may still be on its way through it
    }
    peers_.erase(found);
#ifndef Q_OS_MACOS // where the menu bar is the screen's, the program stays
    if (peers_.empty())
        QCoreApplication::exit();
#endif
}

TimePoint QtDesktop::now() const {
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count();
}

void QtDesktop::add(Timer &timer) {
    timers_.push_back(&timer);
}

void QtDesktop::remove(Timer &timer) {
    std::erase(timers_, &timer);
    timersChanged();
}

void QtDesktop::timersChanged() {
    constexpr TimePoint kLongestWait = std::numeric_limits<int>::max();
    TimePoint wait = kLongestWait;
    for (const Timer *timer : timers_) {
        if (timer->due())
            wait = std::min(wait, std::max<TimePoint>(*timer->due() - now(), 0));
    }
    alarm_.start(static_cast<int>(wait)); // when none is due, it comes in vain
}

void QtDesktop::raiseTicks() {
    const TimePoint moment = now();
    const std::vector<Timer *> timers = timers_;
    for (Timer *timer : timers) {
        const bool exists = std::ranges::find(timers_, timer) != timers_.end();
        if (exists && timer->due() && *timer->due() <= moment)
            timer->tick();
    }
    timersChanged();
}

} // namespace norvane
