#include "framework/files/disk.h"
#include "shell/start.h"

#include <QApplication>

namespace {

int _RuntimeRun() { // NOLINT: named as the step of the start-up that it is
    return QApplication::exec();
}

/// The program, from its desktop to the end of the event loop. Gives the exit status.
int _Main() { // NOLINT
    norvane::disk::surviveSizeLimits();
    norvane::QtDesktop desktop;
    desktop.quitOnSignals();
    norvane::start(desktop);
    return _RuntimeRun();
}

} // namespace

int main(int argc, char **argv) {
    const QApplication toolkit(argc, argv); // no _SetSupportsHiDPI: it scales by itself
    return _Main();
}
