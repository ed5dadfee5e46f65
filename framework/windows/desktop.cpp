#include "framework/windows/desktop.h"

#include <stdexcept>

namespace norvane {

namespace {
Desktop *currentDesktop = nullptr;
}

Desktop::~Desktop() {
    if (currentDesktop == this)
        currentDesktop = nullptr;
}

bool Desktop::exists() {
    return currentDesktop != nullptr;
}

Desktop &Desktop::current() {
    if (currentDesktop == nullptr)
        throw std::logic_error("no desktop");
    return *currentDesktop;
}

void Desktop::setCurrent(Desktop &desktop) {
    currentDesktop = &desktop;
}

void MsgBox(const std::string &text) {
    Desktop::current().message(text);
}

Ref<FolderItem> GetOpenFolderItem(const std::string &fileType) {
    return Desktop::current().chooseFile(fileType);
}

Ref<FolderItem> GetSaveFolderItem(const std::string &fileType, const std::string &defaultName) {
    return Desktop::current().chooseSaveFile(fileType, defaultName);
}

Ref<FolderItem> SelectFolder() {
    return Desktop::current().chooseFolder();
}

void Launch(const FolderItem &file, bool activate) {
    Desktop::current().launch(file.AbsolutePath(), activate);
}

void ShowURL(const std::string &address) {
    Desktop::current().showURL(address);
}

} // namespace norvane
