#include "framework/qt/end_signals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace norvane {

namespace {

// A pipe, since nearly nothing may be done while a signal interrupts the program.
int pipeEnds[2] = {-1, -1};

void noteSignal(int /*signal*/) {
    const int before = errno;
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], "", 1);
    errno = before;
}

} // namespace

void onEndSignals(QObject &owner, std::function<void()> end) {
    if (pipe(pipeEnds) != 0)
        return;
    for (const int pipeEnd : pipeEnds)
        fcntl(pipeEnd, F_SETFD, FD_CLOEXEC);
    auto *notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, &owner);
    QObject::connect(notifier, &QSocketNotifier::activated, [end = std::move(end)] {
        char note = 0;
        if (read(pipeEnds[0], &note, 1) == 1)
            end();
    });
    struct sigaction action {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction before {};
        sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) // as nohup has it
            sigaction(signal, &action, nullptr);
    }
}

} // namespace norvane
