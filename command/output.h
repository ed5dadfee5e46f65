#pragma once

#include "framework/files/disk.h"

#include <span>
#include <string>
#include <string_view>

namespace norvane {

/// The path of what is called `name` in a folder.
std::string placeIn(const std::string &folder, const std::string &name);

/// Throws Problem when something is at `path` already.
void requireFree(const std::string &path, Links links = Links::trusted);

/// Writes the parts in sequence to the file `path`, completely or not at all, even if a signal ends
/// the program meanwhile. Throws Problem or FileFailure: for one, when the file exists and `force`
/// is false, when it is `input`, which may be null, or when this run has written it, unless only
/// the user may read it.
void writeFile(const std::string &path, std::span<const std::string_view> parts,
               const disk::InputFile *input, bool force,
               disk::Readers readers = disk::Readers::byUmask, Links links = Links::trusted);

} // namespace norvane
