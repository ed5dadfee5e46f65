#include "framework/files/disk.h"
#include "framework/qt/qt_desktop.h"
#include "shell/app.h"
#include "shell/file_types.h"

#include <QApplication>

int main(int argc, char **argv) {
    using namespace norvane;
    disk::surviveSizeLimits();
    QApplication toolkit(argc, argv); // which scales to the screen by itself
    QApplication::setApplicationName(QStringLiteral("Norvane"));
    QGuiApplication::setDesktopFileName(QStringLiteral("norvane"));

    QtDesktop desktop;
    desktop.quitOnSignals();
    desktop.pictures.name("NORVANE_128", QStringLiteral(":/NORVANE_1281.png"));
    QApplication::setWindowIcon(desktop.pictures.find("NORVANE_128"));

    _EarlyStartup();
    desktop.setApplication(App::the());
    desktop.dialogs.add(FileTypes1::TextScc);
    _LateStartup();
    return QApplication::exec();
}
