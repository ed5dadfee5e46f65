#include "tests/support/scenario.h"

#include <QApplication>
#include <QSettings>
#include <gtest/gtest.h>

int main(int argc, char **argv) {
    const norvane::TemporaryFolder folder; // for what Qt leaves when it ends
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path().c_str());
    qputenv("XDG_RUNTIME_DIR", folder.path().c_str());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication toolkit(argc, argv);
    return RUN_ALL_TESTS();
}
