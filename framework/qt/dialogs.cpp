#include "framework/qt/dialogs.h"

#include "framework/qt/qt_text.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

namespace norvane {

namespace {

/// What a dialog stands before: another dialog that is up, or else the window in use.
QWidget *owner() {
    QWidget *modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

} // namespace

void Dialogs::message(QMessageBox::Icon icon, const std::string &text) {
    QMessageBox box(icon, QCoreApplication::applicationName(), toQt(text), QMessageBox::Ok,
                    owner());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

Ref<FolderItem> Dialogs::openFile(const std::string &fileType) {
    const QString path = QFileDialog::getOpenFileName(owner(), QStringLiteral("Open"), lastFolder_,
                                                      filterFor(fileType));
    return chosen(path, QFileInfo(path).path());
}

Ref<FolderItem> Dialogs::saveFile(const std::string &fileType, const std::string &defaultName) {
    const QString start = QFileInfo(lastFolder_, QFile::decodeName(defaultName.c_str())).filePath();
    const QString path =
        QFileDialog::getSaveFileName(owner(), QStringLiteral("Save"), start, filterFor(fileType));
    return chosen(path, QFileInfo(path).path());
}

Ref<FolderItem> Dialogs::folder() {
    const QString path =
        QFileDialog::getExistingDirectory(owner(), QStringLiteral("Choose a Folder"), lastFolder_);
    return chosen(path, path);
}

QString Dialogs::filterFor(const std::string &fileType) const {
    QString filter = QStringLiteral("Text files (*.txt)");
    for (const FileType &type : types_) {
        if (type.Name != fileType)
            continue;
        const QString extension = toQt(type.Extensions).section(u';', 0, 0).mid(1);
        filter = QStringLiteral("%2 files (*.%1 *.%2)").arg(extension, extension.toUpper());
        break;
    }
    return filter + QStringLiteral(";;All files (*)");
}

Ref<FolderItem> Dialogs::chosen(const QString &path, const QString &itsFolder) {
    if (path.isEmpty())
        return Ref<FolderItem>::nil("nothing was chosen in the dialog.");
    lastFolder_ = itsFolder;
    return GetFolderItem(QFile::encodeName(path).toStdString(), 0);
}

} // namespace norvane
