#pragma once

#include "framework/files/bytes.h"
#include "framework/files/text_streams.h"

#include <string>
#include <string_view>
#include <vector>

/// What the program asks of the file system. Paths are UTF-8, or whatever bytes the system has;
/// links are followed. Nothing here blocks on a FIFO or a device.
namespace norvane::disk {

enum class Kind { missing, file, folder, other };

/// What stands at `path`; missing when that cannot be told.
Kind kindOf(const std::string &path);

/// The names in a folder but "." and "..", sorted by their bytes; none when it cannot be listed.
std::vector<std::string> namesIn(const std::string &path);

/// Makes a folder; its parent must exist. False when that failed.
bool makeFolder(const std::string &path);

/// Removes a file, a link or an empty folder. False when that failed.
bool remove(const std::string &path);

/// The per-user folder for preferences, not ending in a separator; empty when the user has none.
std::string preferencesFolder();

/// The folder of the running program, not ending in a separator; empty when that cannot be told.
std::string programFolder();

/// A regular file open for reading.
class InputFile {
  public:
    /// Opens `path`. When it is no regular file or cannot be opened, the file is not open and
    /// `problem` says why, in words for the user.
    InputFile(const std::string &path, std::string &problem);
    ~InputFile();
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;

    bool isOpen() const { return handle_ >= 0; }

    /// Fills the rest of `bytes`, or some of it; false at the end of the file. Throws IOException.
    bool readSome(Bytes &bytes);

    /// All that is left of the file. Throws IOException.
    Bytes readAll();

    /// The size in bytes when it was opened: a hint, since it may grow or shrink.
    std::size_t size() const { return size_; }

  private:
    std::string path_;
    int handle_ = -1;
    std::size_t size_ = 0;
};

/// A file that comes into being whole or not at all: written beside its target without a name where
/// the system allows that, and put in the target's place by commit. When it is destroyed before,
/// the target stays as it was and nothing is left behind. What a killed process leaves is a file
/// ".norvane-*.part" at most, which the next process to write in that folder removes.
class NewFile : public TextSink {
  public:
    /// Begins a file for `path`; when it cannot be created, it is not open and `problem` says why.
    NewFile(std::string path, std::string &problem);
    ~NewFile() override;
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    bool isOpen() const { return handle_ >= 0; }

    /// Throws IOException when not all could be written.
    void write(std::string_view bytes) override;

    /// Flushes to the disk and takes the target's place. Throws IOException; the file is then gone
    /// and the old target stays.
    void commit() override;

  private:
    void nameTemporary();
    [[noreturn]] void fail(int error);

    std::string path_;
    std::string temporary_; // empty while the file has no name
    int handle_ = -1;
};

/// Lets a write beyond the limit of a file's size fail like any other; without this call, it ends
/// the process.
void surviveSizeLimits();

/// Writes all of `bytes` to an open descriptor. Throws IOException, naming `what`.
void writeAll(int handle, std::string_view bytes, const std::string &what);

} // namespace norvane::disk
