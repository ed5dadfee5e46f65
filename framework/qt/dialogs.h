#pragma once

#include "framework/files/folder_item.h"
#include "framework/windows/file_type.h"

#include <QDir>
#include <QMessageBox>
#include <QString>

#include <string>
#include <vector>

namespace norvane {

/// The modal dialogs. Each is in front of the active window, if there is one, and blocks
/// until the user has answered.
class Dialogs {
  public:
    /// Lets the open and save dialogs filter by this type's name.
    void add(const FileType &type) { types_.push_back(type); }

    /// A box with one button.
    void message(QMessageBox::Icon icon, const std::string &text);

    // A file of the type, or of any other; a place to save at, which gets ".txt" where the user
    // names no extension, asking before a file is replaced; a folder. All begin in the folder used
    // last, and give nil on Cancel.
    Ref<FolderItem> openFile(const std::string &fileType);
    Ref<FolderItem> saveFile(const std::string &fileType, const std::string &defaultName);
    Ref<FolderItem> folder();

    /// Cancels the dialogs that wait, and from now on each before it is shown.
    void cancelAll();

  private:
    int run(QDialog &dialog);
    bool mayReplace(const QString &name);
    QString filterFor(const std::string &fileType) const;
    static Ref<FolderItem> cancelled();
    Ref<FolderItem> chosen(const QString &path, const QString &itsFolder);

    std::vector<FileType> types_;
    QString lastFolder_ = QDir::homePath();
    bool cancelling_ = false;
};

} // namespace norvane
