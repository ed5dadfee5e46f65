#include "framework/qt/dialogs.h"

#include "framework/files/disk.h"
#include "framework/qt/qt_text.h"
#include "framework/text/failures.h"
#include "framework/text/text.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

namespace norvane {

namespace {

/// What a dialog stands before: another dialog that is up, or else the window in use.
QWidget *owner() {
    QWidget *modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

/// A dialog for one name. Unlike the toolkit's own it takes quotation marks for part of the name,
/// and leaves it to the caller to report a name that is too long.
class NameDialog : public QFileDialog {
  public:
    NameDialog(const char *title, const QString &folder)
        : QFileDialog(owner(), QString::fromLatin1(title), folder) {}

    QString path() const { return typed_.isEmpty() ? selectedFiles().value(0) : typed_; }

    /// Any name may be tried, whatever its length.
    void letSave() {
        setAcceptMode(AcceptSave);
        const auto *edit = nameEdit();
        const auto *buttons = findChild<QDialogButtonBox *>();
        if (edit == nullptr || buttons == nullptr)
            return;
        connect(edit, &QLineEdit::textChanged, this,
                [save = buttons->button(QDialogButtonBox::Save)](const QString &name) {
                    save->setEnabled(!name.isEmpty());
                });
    }

  protected:
    void accept() override {
        constexpr int kToolkitsLimit = 255;
        const auto *edit = nameEdit();
        const bool saves = acceptMode() == AcceptSave;
        const bool isOdd = edit != nullptr && (edit->text().contains(u'"') ||
                                               (saves && edit->text().size() > kToolkitsLimit));
        typed_ = isOdd ? directory().filePath(edit->text()) : QString();
        const QFileInfo info(typed_);
        const bool wantsFolder = fileMode() == Directory;
        if (isOdd && info.isDir() && !wantsFolder)
            setDirectory(typed_);
        else if (isOdd && (saves || (info.exists() && info.isDir() == wantsFolder)))
            done(QDialog::Accepted);
        else
            QFileDialog::accept();
    }

  private:
    const QLineEdit *nameEdit() const {
        return findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    }

    QString typed_; // the path that was chosen, where the toolkit would not take its name
};

/// Of what the user's hands did while an action kept the event loop from them, lets through the
/// wishes to close a window and to quit, which the dialog that is about to come up would swallow;
/// the rest is not meant for it either.
void hearWishes() {
    class : public QObject {
        bool eventFilter(QObject *watched, QEvent *event) override {
            const auto *command = qobject_cast<QAction *>(watched);
            if (event->type() == QEvent::Shortcut)
                return command == nullptr || command->menuRole() != QAction::QuitRole;
            return event->isInputEvent() && watched->isWindowType();
        }
    } filter;
    qApp->installEventFilter(&filter);
    constexpr int kMilliseconds = 50; // at most
    QCoreApplication::processEvents(QEventLoop::AllEvents, kMilliseconds);
}

} // namespace

void Dialogs::message(QMessageBox::Icon icon, const std::string &text) {
    QMessageBox box(icon, QCoreApplication::applicationName(), toQt(text), QMessageBox::Ok,
                    owner());
    box.setTextFormat(Qt::PlainText);
    run(box);
}

Ref<FolderItem> Dialogs::openFile(const std::string &fileType) {
    NameDialog dialog("Open", lastFolder_);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilter(filterFor(fileType));
    if (run(dialog) == QDialog::Rejected)
        return cancelled();
    return chosen(dialog.path(), QFileInfo(dialog.path()).path());
}

Ref<FolderItem> Dialogs::saveFile(const std::string &fileType, const std::string &defaultName) {
    NameDialog dialog("Save", lastFolder_);
    dialog.letSave();
    dialog.setNameFilter(filterFor(fileType));
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // which knows nothing of the extension
    dialog.selectFile(QFile::decodeName(defaultName.c_str()));
    for (;;) {
        if (run(dialog) == QDialog::Rejected)
            return cancelled();
        QString path = dialog.path();
        if (!QFileInfo(path).fileName().contains(u'.'))
            path += QStringLiteral(".txt");
        const QString folder = QFileInfo(path).path();
        if (!QFileInfo(folder).isDir()) {
            message(QMessageBox::Warning, inQuotes(folder.toStdString()) + " is not a folder.");
            continue;
        }
        try {
            const disk::Kind kind = disk::kindOf(QFile::encodeName(path).toStdString());
            if (kind == disk::Kind::missing || mayReplace(QFileInfo(path).fileName()))
                return chosen(path, folder);
        } catch (const IOException &failure) { // such as a name that is too long
            message(QMessageBox::Warning, failure.what());
        }
    }
}

Ref<FolderItem> Dialogs::folder() {
    NameDialog dialog("Choose a Folder", lastFolder_);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (run(dialog) == QDialog::Rejected)
        return cancelled();
    return chosen(dialog.path(), dialog.path());
}

void Dialogs::cancelAll() {
    cancelling_ = true;
    while (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
        dialog->reject();
}

int Dialogs::run(QDialog &dialog) {
    if (cancelling_)
        return QDialog::Rejected;
    hearWishes();
    const int result = dialog.exec();
    // Its picture stays on the windows behind it for as long as an action keeps them from painting.
    for (QWidget *window : QApplication::topLevelWidgets())
        window->update();
    return result;
}

bool Dialogs::mayReplace(const QString &name) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Save"),
                    QStringLiteral("“%1” already exists. Replace it?").arg(name),
                    QMessageBox::Yes | QMessageBox::No, owner());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return run(box) == QMessageBox::Yes;
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

Ref<FolderItem> Dialogs::cancelled() {
    return Ref<FolderItem>::nil("nothing was chosen in the dialog.");
}

Ref<FolderItem> Dialogs::chosen(const QString &path, const QString &itsFolder) {
    lastFolder_ = itsFolder;
    return GetFolderItem(QFile::encodeName(path).toStdString(), 0, Links::all);
}

} // namespace norvane
