#pragma once

#include "framework/files/bytes.h"
#include "framework/files/handle.h"
#include "framework/files/place.h"
#include "framework/files/text_streams.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The program's access to the file system. Paths are absolute, in UTF-8 or whatever bytes the
/// system has. Links are followed as `links` says; the default is trusted ones. Nothing here blocks
/// on a FIFO or a device.
namespace norvane::disk {

enum class Kind { missing, file, folder, foreignLink, other };

/// The kind of what is at `path`; `missing` also when a folder on the way is. Throws FileFailure
/// when that cannot be determined, as with a failing disk.
Kind kindOf(const std::string &path, Links links = Links::trusted);

/// The same, but `unknown` when it cannot be determined.
Kind kindOf(const std::string &path, Kind unknown, Links links = Links::trusted);

/// The folder that holds what is at `path`, which has no separator at its end; the root is its own.
std::string folderOf(const std::string &path);

/// The names in a folder but "." and "..", sorted by their bytes; none when it is no folder or may
/// not be read. Throws FileFailure when reading it fails.
std::vector<std::string> namesIn(const std::string &path, Links links = Links::trusted);

/// Appends the names in an open folder, as the system has them; false when reading it failed.
bool readNames(Handle folder, std::vector<std::string> &names);

/// Makes a folder; its parent must exist. Whether it worked is not reported.
void makeFolder(const std::string &path, Links links = Links::trusted);

/// Makes a folder and those above it that are missing. Whether it worked is not reported.
void makeFolders(const std::string &path, Links links = Links::trusted);

class InputFile;

/// Removes a file, or a link to it, if `read` is still what is there. Whether it worked
/// is not reported.
void remove(const std::string &path, const InputFile &read);

/// A lock, held for as long as a copy of this lives; null where there is none.
using FolderLock = std::shared_ptr<const void>;

/// Locks a folder against other programs of the same user that call this, and nobody else: what is
/// locked is a file in the user's folder for preferences. A second call of this program succeeds.
/// nullopt when another program has the lock; null where nothing can be locked.
std::optional<FolderLock> lockFolder(const std::string &path);

/// The per-user folder for preferences, not ending in a separator; empty when the user has none:
/// without a home, or without a full path to it.
std::string preferencesFolder();

/// The per-user folder for what can be recreated, in the form of preferencesFolder.
std::string cacheFolder();

/// The folder of the running program, not ending in a separator; empty when it is unknown.
std::string programFolder();

/// A file open for reading, up to the size that it had then.
class InputFile {
  public:
    /// Opens a regular file. Throws FileFailure.
    explicit InputFile(const std::string &path, Links links = Links::trusted);

    /// Opens for reading what a person names: links are followed, the path may be relative, and a
    /// pipe or a device is read to its end, if it has one. Throws FileFailure,
    /// also for a folder.
    static InputFile named(const std::string &path);
    static InputFile standardInput();

    bool isRegular() const { return place_.isFile(); }

    /// Whether it is still the file at `place`, even if that was written to since.
    bool isAt(const Place &place) const;

    /// Fills the rest of `bytes`, or some of it; false at the end of the file. Throws FileFailure.
    bool readSome(Bytes &bytes);

    /// The rest of a regular file. Throws FileFailure.
    Bytes readAll();

    /// The size in bytes when it was opened, 0 for a pipe; less may be there to read if it shrinks.
    std::size_t size() const { return static_cast<std::size_t>(place_.status.st_size); }

    /// Its permission bits when it was opened, those for reading, writing and executing.
    mode_t permissions() const { return place_.permissions(); }

    /// Makes its bytes and its name durable through a power failure. Throws FileFailure.
    void flush();

  private:
    InputFile(const std::string &path, Handle handle);

    std::string path_;
    Place place_; // only its status, if it was not opened by its place
    Handle handle_;
    std::size_t left_ = 0;
};

/// Whether standard input is a pipe or a file, not a keyboard.
bool standardInputIsPiped();

/// Who may read and write a new file.
enum class Readers { byUmask, userAlone };

/// Whether a file must last through a power failure when it is said to be written.
enum class Lasting { no, yes };

/// A file that is created completely or not at all: written next to its target, without a name
/// where the system allows that, and then put in the target's place. Destroyed before that, it
/// leaves the target unchanged and no other file. A killed process leaves at most a file
/// ".norvane-*.part", which the next process that writes to that folder removes.
class NewFile : public TextSink {
  public:
    /// Begins a file for `path`. A regular file that is there must be writable, and the new one
    /// gets its permission bits; `readers` applies where there was none. Throws FileFailure.
    NewFile(const std::string &path, Readers readers, Links links = Links::trusted);

    /// Begins a copy for `path` with these permission bits, whatever those of a file there are.
    /// Throws FileFailure.
    NewFile(const std::string &path, mode_t permissions);

    ~NewFile() override;
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    /// Whether it would replace `input`, under this name or another.
    bool replaces(const InputFile &input) const { return input.isAt(place_); }

    /// From here on it replaces no file: if the target exists by then, `commit` fails.
    void mustBeNew() { isNew_ = true; }

    /// Throws FileFailure when not all could be written.
    void write(std::string_view bytes) override;

    /// Replaces the target durably. Throws FileFailure: the old target then remains, unless only
    /// making the new name durable failed.
    void commit() override { finish(Lasting::yes); }

    void finish(Lasting lasting);

  private:
    void findTarget(Links links);
    void begin(mode_t mode);
    bool openTemporary(mode_t mode);
    void nameTemporary();
    void giveName(Lasting lasting);
    void takePlace();
    void takeFreePlace();
    bool linkTo(const std::string &name) const;
    std::string openFile() const; // a path to it other than its name
    [[noreturn]] void fail(int error);

    std::string path_;
    Place place_;
    std::string temporary_; // empty while the file has no name
    Handle handle_;
    std::optional<mode_t> permissions_; // given at the end; without, the umask's
    bool isNew_ = false;
};

/// Copies a regular file with its permission bits, whole or not at all; ignores anything else.
/// A copy that is there already is left alone. Whether it worked is not reported.
void copyFile(const std::string &source, const std::string &target, Lasting lasting);

/// Lets a write beyond the limit of a file's size fail like any other; without this call, it ends
/// the process.
void surviveSizeLimits();

/// Writes all of `bytes` to an open descriptor. Throws FileFailure, naming `what`.
void writeAll(int handle, std::string_view bytes, const std::string &what);

/// Makes the names in a folder durable through a power failure, as far as the file system can.
/// Throws FileFailure, naming `what`, when its disk fails.
void flushNames(const Place &place, const std::string &what);

} // namespace norvane::disk
