#include "framework/files/disk.h"
#include "shell/start.h"

#include <QApplication>

int main(int argc, char **argv) {
    norvane::disk::surviveSizeLimits();
    QApplication toolkit(argc, argv); // which scales to the screen by itself
    norvane::QtDesktop desktop;
    desktop.quitOnSignals();
    norvane::start(desktop);
    return QApplication::exec();
}
