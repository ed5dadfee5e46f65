#include "framework/files/folder_item.h"

#include "framework/files/disk.h"
#include "framework/text/failures.h"
#include "framework/text/text.h"

#include <algorithm>

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
                                     bool mustBeNew) {
    std::string problem;
    auto file = std::make_unique<disk::NewFile>(path, readers, problem, links);
    if (!file->isOpen())
        return Ref<TextOutputStream>::nil(problem);
    if (mustBeNew)
        file->mustBeNew();
    return Ref(std::make_shared<TextOutputStream>(std::move(file)));
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
    wasMissing_ = kind == disk::Kind::missing;
    return !wasMissing_ && !(asFolder_ && kind == disk::Kind::foreignLink);
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

void FolderItem::Delete() const {
    disk::remove(path_, opened_.get());
}

std::optional<disk::FolderLock> FolderItem::Lock() const {
    return disk::lockFolder(path_);
}

Ref<TextOutputStream> FolderItem::CreateTextFile() const {
    return createTextFile(path_, disk::Readers::byUmask, links_, wasMissing_);
}

Ref<TextOutputStream> FolderItem::CreatePrivateTextFile() const {
    return createTextFile(path_, disk::Readers::userAlone, links_, false);
}

Ref<TextInputStream> FolderItem::OpenAsTextFile() const {
    std::string problem;
    opened_ = std::make_shared<disk::InputFile>(path_, problem, links_);
    if (opened_->hasFailed())
        throw IOException(problem);
    if (!opened_->isOpen())
        return Ref<TextInputStream>::nil(problem);
    return Ref(std::make_shared<TextInputStream>([file = opened_] { return file->readAll(); }));
}

Ref<FolderItem> GetFolderItem(const std::string &path, int /*mode*/, Links links) {
    if (path.empty())
        return Ref<FolderItem>::nil("No folder or file was named.");
    if (!path.starts_with(kSeparator) || path.find('\0') != std::string::npos)
        return Ref<FolderItem>::nil(inQuotes(path) + " is no full path of a folder or file.");
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
