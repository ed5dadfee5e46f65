#include "framework/files/disk.h"
#include "framework/files/file_failure.h"
#include "framework/files/system_calls.h"

#include <algorithm>
#include <memory>

namespace norvane::disk {

namespace {

/// What stands at `path`; in `error` why that is unknown, or 0.
Kind look(const std::string &path, Links links, int &error) {
    Place place;
    error = findPlace(path, place, links);
    if (error == ENOENT || error == ENOTDIR) { // a folder on the way is missing
        error = 0;
        return Kind::missing;
    }
    return error != 0 || !place.isTaken() ? Kind::missing
           : place.isFile()               ? Kind::file
           : place.isFolder()             ? Kind::folder
           : place.isLink()               ? Kind::foreignLink
                                          : Kind::other;
}

} // namespace

Kind kindOf(const std::string &path, Links links) {
    int error = 0;
    const Kind kind = look(path, links, error);
    if (error != 0)
        throw FileFailure(FileCall::reach, path, error);
    return kind;
}

Kind kindOf(const std::string &path, Kind unknown, Links links) {
    int error = 0;
    const Kind kind = look(path, links, error);
    return error == 0 ? kind : unknown;
}

std::string folderOf(const std::string &path) {
    return path.substr(0, std::max<std::size_t>(path.rfind('/'), 1));
}

bool readNames(Handle folder, std::vector<std::string> &names) {
    const std::unique_ptr<DIR, int (*)(DIR *)> listing(systemCalls.fdopendir(folder.get()),
                                                       closedir);
    if (listing == nullptr)
        return false;
    folder.release();
    for (;;) {
        const dirent *entry = systemCalls.readdir(listing.get());
        if (entry == nullptr)
            return errno == 0;
        const std::string_view name = static_cast<const char *>(entry->d_name);
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
}

std::vector<std::string> namesIn(const std::string &path, Links links) {
    Place place;
    Handle folder;
    int error = findPlace(path, place, links);
    if (error == 0) {
        folder = openPlace(place, O_RDONLY | O_DIRECTORY);
        error = folder.isOpen() ? 0 : errno;
    }
    std::vector<std::string> names;
    if (error == ENOENT || error == ENOTDIR || error == EACCES)
        return names;
    if (error != 0 || !readNames(std::move(folder), names))
        throw FileFailure(FileCall::reach, path, error != 0 ? error : errno);
    std::sort(names.begin(), names.end());
    return names;
}

void makeFolder(const std::string &path, Links links) {
    Place place;
    if (findPlace(path, place, links) == 0 && !place.isTaken())
        systemCalls.mkdirat(place.folder.get(), place.name.c_str(), 0777);
}

void makeFolders(const std::string &path, Links links) {
    for (std::size_t end = 0; end != std::string::npos;) {
        end = path.find('/', end + 1);
        makeFolder(path.substr(0, end), links);
    }
}

void remove(const std::string &path, const InputFile &read) {
    Place place;
    if (findPlace(path, place) == 0 && read.isAt(place) &&
        findPlace(path, place, Links::trusted, LastLink::keep) == 0)
        systemCalls.unlinkat(place.folder.get(), place.name.c_str(), 0);
}

} // namespace norvane::disk
