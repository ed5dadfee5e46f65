#include "framework/files/folder_item.h"

#include "framework/files/disk.h"
#include "framework/files/file_failure.h"
#include "framework/text/text.h"

#include <cerrno>

namespace norvane {

namespace {

constexpr char kSeparator = '/';

std::string withoutEndSeparator(std::string path) {
    while (path.size() > 1 && path.back() == kSeparator)
        path.pop_back();
    return path;
}

std::string withEndSeparator(const std::string &path) {
    return path.ends_with(kSeparator) ? path : path + kSeparator;
}

Ref<TextOutputStream> createTextFile(const std::string &path, disk::Readers readers, Links links,
                                     Existing existing) {
    try {
        auto file = std::make_unique<disk::NewFile>(path, readers, links);
        if (existing == Existing::stays)
            file->mustBeNew();
        return Ref(std::make_shared<TextOutputStream>(std::move(file)));
    } catch (const FileFailure &failure) {
        return Ref<TextOutputStream>::nil(failure.what());
    }
}

/// Whether there is no file for this user to read, while the disk is well.
bool meansNoFile(const FileFailure &failure) {
    switch (failure.error()) {
    case 0:
    case ENOENT:
    case ENOTDIR:
    case EACCES:
    case ENAMETOOLONG:
    case ELOOP:
        return true;
    default:
        return false;
    }
}

} // namespace

FolderItem::FolderItem(const std::string &path, Links links)
    : path_(withoutEndSeparator(path)), asFolder_(path.ends_with(kSeparator)), links_(links) {}

std::string FolderItem::Name() const {
    return path_.substr(path_.rfind(kSeparator) + 1);
}

std::string FolderItem::AbsolutePath() const {
    return disk::kindOf(path_, links_) == disk::Kind::folder ? withEndSeparator(path_) : path_;
}

bool FolderItem::Exists() const {
    const disk::Kind kind = disk::kindOf(path_, links_);
    return kind != disk::Kind::missing && !(asFolder_ && kind == disk::Kind::foreignLink);
}

bool FolderItem::Directory() const {
    return disk::kindOf(path_, links_) == disk::Kind::folder;
}

const std::vector<std::string> &FolderItem::listing() const {
    if (!listing_)
        listing_ = disk::namesIn(path_, links_);
    return *listing_;
}

std::size_t FolderItem::Count() const {
    return listing().size();
}

Ref<FolderItem> FolderItem::Item(std::size_t index) const {
    if (index < 1 || index > Count())
        return Ref<FolderItem>::nil(inQuotes(path_) + " has no item " + std::to_string(index) +
                                    ".");
    return Ref(
        std::make_shared<FolderItem>(withEndSeparator(path_) + listing()[index - 1], links_));
}

Ref<FolderItem> FolderItem::Child(std::string_view name) const {
    const std::string_view outlawed{"/\0", 2};
    const std::string path = withEndSeparator(path_).append(name);
    if (disk::kindOf(path_, links_) != disk::Kind::folder || name.empty() || name == "." ||
        name == ".." || name.find_first_of(outlawed) != std::string_view::npos ||
        disk::kindOf(path, disk::Kind::other, links_) == disk::Kind::foreignLink)
        return Ref<FolderItem>::nil(inQuotes(path_) + " can have no item " + inQuotes(name) + ".");
    return Ref(std::make_shared<FolderItem>(path, links_));
}

void FolderItem::CreateAsFolder() const {
    disk::makeFolder(path_);
}

void FolderItem::CopyFileTo(const FolderItem &target, CopyOf use) const {
    disk::copyFile(path_, target.path_,
                   use == CopyOf::whatGoes ? disk::Lasting::yes : disk::Lasting::no);
}

void FolderItem::Delete(const TextInputStream &read) const {
    if (const disk::InputFile *file = read.file())
        disk::remove(path_, *file);
}

std::optional<disk::FolderLock> FolderItem::Lock() const {
    return disk::lockFolder(path_);
}

Ref<TextOutputStream> FolderItem::CreateTextFile(Existing existing) const {
    return createTextFile(path_, disk::Readers::byUmask, links_, existing);
}

Ref<TextOutputStream> FolderItem::CreatePrivateTextFile() const {
    return createTextFile(path_, disk::Readers::userAlone, links_, Existing::replaced);
}

Ref<TextInputStream> FolderItem::OpenAsTextFile() const {
    try {
        return Ref(
            std::make_shared<TextInputStream>(std::make_shared<disk::InputFile>(path_, links_)));
    } catch (const FileFailure &failure) {
        if (meansNoFile(failure))
            return Ref<TextInputStream>::nil(failure.what());
        throw;
    }
}

Ref<FolderItem> GetFolderItem(const std::string &path, int /*mode*/, Links links) {
    if (path.empty())
        return Ref<FolderItem>::nil("No folder or file was named.");
    if (!path.starts_with(kSeparator) || path.find('\0') != std::string::npos)
        return Ref<FolderItem>::nil(inQuotes(path) + " is not the full path of a folder or file.");
    const std::string folder = disk::folderOf(withoutEndSeparator(path));
    if (disk::kindOf(folder, disk::Kind::folder, links) != disk::Kind::folder)
        return Ref<FolderItem>::nil(inQuotes(path) + " is in a folder that does not exist.");
    return Ref(std::make_shared<FolderItem>(path, links));
}

Ref<FolderItem> SpecialFolder::Preferences() {
    const std::string path = disk::preferencesFolder();
    if (path.empty())
        return Ref<FolderItem>::nil(
            "there is no folder for preferences, since HOME is not the full path of one.");
    disk::makeFolders(path);
    if (disk::kindOf(path) != disk::Kind::folder)
        return Ref<FolderItem>::nil(inQuotes(path) + " is not a folder and cannot be made one.");
    return GetFolderItem(path);
}

} // namespace norvane
