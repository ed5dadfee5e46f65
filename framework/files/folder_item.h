#pragma once

#include "framework/files/links.h"
#include "framework/files/ref.h"
#include "framework/files/text_streams.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// What the copy of a file is for: what goes is deleted later, and its copy must last through a
/// power failure from the start.
enum class CopyOf { whatStays, whatGoes };

/// What happens to an existing file when a new one of its name is closed.
enum class Existing { replaced, stays };

/// A place in the file system, where something may or may not exist. Paths and their names hold
/// UTF-8; other bytes in them pass unchanged. Which symbolic links are followed is decided when an
/// item is made; its items and children inherit that.
class FolderItem {
  public:
    /// The item at an absolute path; made by GetFolderItem and Child.
    explicit FolderItem(const std::string &path, Links links = Links::trusted);

    /// The last part of the path, extension included.
    std::string Name() const;

    /// The whole path; that of a folder ends in the separator. Throws IOException when it cannot be
    /// determined whether it is one, as with a failing disk.
    std::string AbsolutePath() const;

    /// False when there is nothing, or no folder that could hold it, or another user's link where
    /// a folder was named. Throws IOException when that cannot be determined.
    bool Exists() const;

    /// True for a folder. Throws IOException when that cannot be determined.
    bool Directory() const;

    /// How many items the folder holds, hidden ones included; 0 when it is not a folder or
    /// cannot be listed. The listing is taken once, at the first call of Count or Item, and kept.
    /// Both throw IOException when the disk fails in it.
    std::size_t Count() const;

    /// The item of an index from 1 to Count, in the order of the names' bytes; nil outside.
    Ref<FolderItem> Item(std::size_t index) const;

    /// What is named `name` in this folder, existing or not. Nil when this is no folder, for a name
    /// that is empty, "." or ".." or has a separator or a NUL in it, and for the name of
    /// another user's link. Throws IOException when it cannot be determined whether this is a
    /// folder.
    Ref<FolderItem> Child(std::string_view name) const;

    /// Makes the folder. Whether it worked is not reported.
    void CreateAsFolder() const;

    /// Copies this regular file with its permission bits to `target`, whole or not at all,
    /// replacing what is there unless it is the same; ignores anything else. Whether it worked
    /// is not reported.
    void CopyFileTo(const FolderItem &target, CopyOf use) const;

    /// Deletes the file that `read` is, or was until it was closed, but not another that has taken
    /// its place. Whether it worked is not reported.
    void Delete(const TextInputStream &read) const;

    /// Keeps cycles of the user's other programs out of this folder for as long as the result
    /// lives; nullopt when one of them is in it. Where nothing can be locked, nobody is kept out.
    std::optional<std::shared_ptr<const void>> Lock() const;

    /// A stream whose text takes this item's place when it is closed; nil when it cannot be
    /// created. The new file has the permission bits of the one that it replaces, or those that the
    /// user gives to new files. Where a file is there and stays, closing the stream fails.
    Ref<TextOutputStream> CreateTextFile(Existing existing = Existing::replaced) const;

    /// The same, but a new file is readable by its user only.
    Ref<TextOutputStream> CreatePrivateTextFile() const;

    /// A stream over the file's text; nil unless it is a regular file that the user may read. The
    /// text is read at the first call of the stream. Both throw IOException when the disk
    /// fails.
    Ref<TextInputStream> OpenAsTextFile() const;

  private:
    const std::vector<std::string> &listing() const;

    std::string path_; // without a separator at its end, but for the root
    bool asFolder_;    // it was named with one
    Links links_;
    mutable std::optional<std::vector<std::string>> listing_;
};

/// The item at an absolute path; `mode` is 0, absolute path; `links` is `all` for what a person
/// picked. Nil when the path is empty or not
/// absolute or holds a NUL, or its folder is missing; what cannot be examined, as on a failing
/// disk, counts as existing here, and its use fails.
Ref<FolderItem> GetFolderItem(const std::string &path, int mode = 0, Links links = Links::trusted);

namespace SpecialFolder {

/// The user's folder for preferences, made when missing; nil when there can be none. Throws
/// IOException when that cannot be determined.
Ref<FolderItem> Preferences();

} // namespace SpecialFolder

} // namespace norvane
