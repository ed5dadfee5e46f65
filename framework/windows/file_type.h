#pragma once

#include <string>
#include <vector>

namespace norvane {

/// A type of files that dialogs can filter by.
struct FileType {
    std::string Name;
    std::string Extensions; // ".txt;.scc"
    std::string MacType;
    std::string MacCreator;
    std::string MimeType;
    bool Imported = false;
    std::string ConformsTo;
    std::string UTI;
};

} // namespace norvane
