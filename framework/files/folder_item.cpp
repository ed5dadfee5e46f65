#include "framework/files/folder_item.h"

#include "framework/files/disk.h"
#include "framework/text/text.h"

#include <algorithm>

namespace norvane {

namespace {

constexpr char kSeparator = '/';

/// The least that is read of a file at a time, in bytes.
constexpr std::size_t kLeastBlock = 4096;

std::string withoutEndSeparator(std::string path) {
    while (path.size() > 1 && path.back() == kSeparator)
        path.pop_back();
    return path;
}

std::string withEndSeparator(const std::string &path) {
    return path.ends_with(kSeparator) ? path : path + kSeparator;
}

/// The folder that holds what is at `path`, which has no separator at its end.
std::string parentOf(const std::string &path) {
    return path.substr(0, std::max<std::size_t>(path.rfind(kSeparator), 1));
}

void makeFolders(const std::string &path) {
    if (disk::kindOf(path) != disk::Kind::missing)
        return;
    makeFolders(parentOf(path));
    disk::makeFolder(path);
}

} // namespace

FolderItem::FolderItem(std::string path) : path_(withoutEndSeparator(std::move(path))) {}

std::string FolderItem::Name() const {
    return path_.substr(path_.rfind(kSeparator) + 1);
}

std::string FolderItem::AbsolutePath() const {
    return Directory() ? withEndSeparator(path_) : path_;
}

bool FolderItem::Exists() const {
    return disk::kindOf(path_) != disk::Kind::missing;
}

bool FolderItem::Directory() const {
    return disk::kindOf(path_) == disk::Kind::folder;
}

const std::vector<std::string> &FolderItem::listing() const {
    if (!listing_)
        listing_ = disk::namesIn(path_);
    return *listing_;
}

std::size_t FolderItem::Count() const {
    return listing().size();
}

Ref<FolderItem> FolderItem::Item(std::size_t index) const {
    if (index < 1 || index > Count())
        return Ref<FolderItem>::nil(inQuotes(path_) + " has no item " + std::to_string(index) +
                                    ".");
    return Ref(std::make_shared<FolderItem>(withEndSeparator(path_) + listing()[index - 1]));
}

Ref<FolderItem> FolderItem::Child(std::string_view name) const {
    const std::string_view outlawed{"/\0", 2};
    if (!Directory() || name.empty() || name == "." || name == ".." ||
        name.find_first_of(outlawed) != std::string_view::npos)
        return Ref<FolderItem>::nil(inQuotes(path_) + " can have no item " + inQuotes(name) + ".");
    return Ref(std::make_shared<FolderItem>(withEndSeparator(path_).append(name)));
}

void FolderItem::CreateAsFolder() const {
    disk::makeFolder(path_);
}

void FolderItem::CopyFileTo(const FolderItem &target) const {
    constexpr std::size_t kMostBlock = std::size_t{1} << 20U;
    std::string problem;
    disk::InputFile source(path_, problem);
    if (!source.isOpen())
        return;
    disk::NewFile copy(target.path_, problem);
    if (!copy.isOpen())
        return;
    try {
        Bytes block(std::clamp(source.size(), kLeastBlock, kMostBlock));
        while (source.readSome(block)) {
            copy.write(block.view());
            block.clear();
        }
        copy.commit();
    } catch (const IOException &) {
        // The outcome of a copy is not told; what stood at the target still stands.
        return;
    }
}

void FolderItem::Delete() const {
    disk::remove(path_);
}

Ref<TextOutputStream> FolderItem::CreateTextFile() const {
    std::string problem;
    auto file = std::make_unique<disk::NewFile>(path_, problem);
    if (!file->isOpen())
        return Ref<TextOutputStream>::nil(problem);
    return Ref(std::make_shared<TextOutputStream>(std::move(file)));
}

Ref<TextInputStream> FolderItem::OpenAsTextFile() const {
    std::string problem;
    disk::InputFile file(path_, problem);
    if (!file.isOpen())
        return Ref<TextInputStream>::nil(problem);
    return Ref(std::make_shared<TextInputStream>(file.readAll()));
}

Ref<FolderItem> GetFolderItem(const std::string &path, int /*mode*/) {
    if (path.empty())
        return Ref<FolderItem>::nil("No folder or file was named.");
    if (!path.starts_with(kSeparator) || path.find('\0') != std::string::npos)
        return Ref<FolderItem>::nil(inQuotes(path) + " is no full path of a folder or file.");
    if (disk::kindOf(parentOf(withoutEndSeparator(path))) != disk::Kind::folder)
        return Ref<FolderItem>::nil(inQuotes(path) + " is in a folder that does not exist.");
    return Ref(std::make_shared<FolderItem>(path));
}

Ref<FolderItem> SpecialFolder::Preferences() {
    const std::string path = disk::preferencesFolder();
    if (path.empty())
        return Ref<FolderItem>::nil("There is no folder for preferences.");
    makeFolders(path);
    return GetFolderItem(path, 0);
}

} // namespace norvane
