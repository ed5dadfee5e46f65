#pragma once

#include "framework/files/ref.h"
#include "framework/files/text_streams.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// A place in the file system, where something may or may not exist. Paths and their names hold
/// UTF-8; other bytes in them pass unchanged.
class FolderItem {
  public:
    virtual ~FolderItem() = default;

    /// The item at an absolute path; GetFolderItem and Child are the ways to have one.
    explicit FolderItem(std::string path);

    /// The last part of the path, extension included.
    std::string Name() const;

    /// The whole path; that of a folder ends in the separator.
    std::string AbsolutePath() const;

    bool Exists() const;

    /// True for a folder.
    bool Directory() const;

    /// How many items the folder holds, hidden ones included; 0 when it is none or cannot be
    /// listed. The listing is taken once, when Count or Item is first asked, and kept.
    std::size_t Count() const;

    /// The item of an index from 1 to Count, in the order of the names' bytes; nil outside.
    Ref<FolderItem> Item(std::size_t index) const;

    /// What is named `name` in this folder, existing or not. Nil when this is no folder, and for
    /// a name that is empty, "." or ".." or has a separator or a NUL in it.
    Ref<FolderItem> Child(std::string_view name) const;

    /// Makes the folder. Whether it worked is not told.
    void CreateAsFolder() const;

    /// Copies this regular file to `target`, whole or not at all, replacing what is there; passes
    /// over anything else. Whether it worked is not told.
    void CopyFileTo(const FolderItem &target) const;

    /// Deletes the file. Whether it worked is not told.
    void Delete() const;

    /// A stream whose text takes this item's place when it is closed; nil when it cannot be
    /// created.
    virtual Ref<TextOutputStream> CreateTextFile() const;

    /// A stream over the file's text; nil for whatever is no readable regular file.
    virtual Ref<TextInputStream> OpenAsTextFile() const;

    /// Hands the file to the desktop, which opens it as it opens files of this kind.
    void Launch(bool activate) const;

  private:
    const std::vector<std::string> &listing() const;

    std::string path_; // without a separator at its end, but for the root
    mutable std::optional<std::vector<std::string>> listing_;
};

/// The item at an absolute path; `mode` is 0, absolute path. Nil when the path is empty or not
/// absolute or holds a NUL, or its folder is missing.
Ref<FolderItem> GetFolderItem(const std::string &path, int mode);

namespace SpecialFolder {

/// The user's folder for preferences, made when missing; nil when there can be none.
Ref<FolderItem> Preferences();

} // namespace SpecialFolder

} // namespace norvane
