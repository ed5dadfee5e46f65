#pragma once

#include "framework/files/folder_item.h"
#include "framework/windows/timer.h"

#include <string>

namespace norvane {

class Application;
class Window;

/// What the program needs of a desktop. One is current from before the first window is made until
/// after the last is gone.
class Desktop {
  public:
    Desktop() = default;
    virtual ~Desktop();
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

    /// Throws std::logic_error when there is none.
    static Desktop &current();
    static bool exists();
    /// Makes `desktop`, which is not owned, the current one.
    static void setCurrent(Desktop &desktop);

    virtual void message(const std::string &text) = 0;
    /// Tells the user of a failure that ended an action.
    virtual void failure(const std::string &text) { message(text); }
    virtual Ref<FolderItem> chooseFile(const std::string &fileType) = 0;
    virtual Ref<FolderItem> chooseSaveFile(const std::string &fileType,
                                           const std::string &defaultName) = 0;
    virtual Ref<FolderItem> chooseFolder() = 0;
    virtual void launch(const std::string &path, bool activate) = 0;
    virtual void showURL(const std::string &address) = 0;

    /// A window's life: add before Event_Open, show any number of times, remove at the end.
    /// Removing a window that is not there does nothing.
    virtual void add(Window &window) = 0;
    virtual void show(Window &window) = 0;
    virtual void remove(Window &window) = 0;

    virtual TimePoint now() const = 0;
    virtual void add(Timer &timer) = 0;
    virtual void remove(Timer &timer) = 0;
    /// Some timer's due time may have changed.
    virtual void timersChanged() = 0;
};

/// A modal message with one button; returns when it is dismissed.
void MsgBox(const std::string &text);

// Of what a person chooses, every link is followed.

/// The file that the user chooses to open among those of the named file type; nil on Cancel.
Ref<FolderItem> GetOpenFolderItem(const std::string &fileType);

/// The place that the user chooses to save at; nil on Cancel. It is the dialog that asks before an
/// existing file is replaced.
Ref<FolderItem> GetSaveFolderItem(const std::string &fileType, const std::string &defaultName);

/// The folder that the user chooses; nil on Cancel.
Ref<FolderItem> SelectFolder();

/// Hands a file to the desktop, which opens it as it opens files of this kind.
void Launch(const FolderItem &file, bool activate);

/// Opens an address in the user's web browser.
void ShowURL(const std::string &address);

} // namespace norvane
