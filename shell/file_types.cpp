#include "shell/file_types.h"

namespace norvane {

FileType FileTypes1::TextScc;
std::vector<FileType *> FileTypes1::pAllFileTypes;

void FileTypes1::_Initialize() {
    TextScc.Name = kSccFileType;
    TextScc.Extensions = ".scc";
    TextScc.MacType = "TXT";
    TextScc.MacCreator = "R*ch";
    TextScc.MimeType = "";
    TextScc.Imported = true;
    TextScc.ConformsTo = "";
    pAllFileTypes.push_back(&TextScc);
}

FileType scctypes::TextScc;
std::vector<FileType *> scctypes::pAllFileTypes;

void scctypes::_Initialize() {
    TextScc.Name = kSccFileType;
    TextScc.Extensions = ".txt;.scc";
    TextScc.MacType = "TEXT";
    TextScc.MacCreator = "????";
    TextScc.MimeType = "";
    TextScc.Imported = true;
    TextScc.ConformsTo = "public.data, public.content";
    TextScc.UTI = "public.text";
    pAllFileTypes.push_back(&TextScc);
}

void _InitFileTypes() {
    if (!FileTypes1::pAllFileTypes.empty())
        return;
    FileTypes1::_Initialize();
    scctypes::_Initialize();
}

} // namespace norvane
