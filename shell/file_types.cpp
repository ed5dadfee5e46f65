#include "shell/file_types.h"

namespace norvane {

FileType FileTypes1::TextScc;
std::vector<FileType *> FileTypes1::pAllFileTypes;

void FileTypes1::_Initialize() {
    TextScc = {kSccFileType, ".scc", "TXT", "R*ch", "", true, "", ""};
    pAllFileTypes.push_back(&TextScc);
}

FileType scctypes::TextScc;
std::vector<FileType *> scctypes::pAllFileTypes;

void scctypes::_Initialize() {
    TextScc = {kSccFileType, ".txt;.scc", "TEXT", "????", "", true, "public.data, public.content",
               "public.text"};
    pAllFileTypes.push_back(&TextScc);
}

void _InitFileTypes() {
    if (!FileTypes1::pAllFileTypes.empty())
        return;
    FileTypes1::_Initialize();
    scctypes::_Initialize();
}

} // namespace norvane
