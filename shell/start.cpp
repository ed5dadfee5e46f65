#include "shell/start.h"

#include "shell/app.h"
#include "shell/file_types.h"

#include <QApplication>

namespace norvane {

void start(QtDesktop &desktop) {
    QApplication::setApplicationName(QStringLiteral("Norvane"));
    QGuiApplication::setDesktopFileName(QStringLiteral("norvane"));
    desktop.pictures.name("NORVANE_128", QStringLiteral(":/NORVANE_1281.png"));
    QApplication::setWindowIcon(desktop.pictures.find("NORVANE_128"));
    _EarlyStartup();
    desktop.setApplication(App::the());
    desktop.dialogs.add(FileTypes1::TextScc);
    _LateStartup();
}

} // namespace norvane
