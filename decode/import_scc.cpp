#include "framework/text/regex.h"
#include "framework/windows/desktop.h"
#include "shell/file_types.h"
#include "shell/window1.h"

namespace norvane {

bool Window1::isSccName(const std::string &name) {
    static const RegEx patternRegEx(".scc");
    return patternRegEx.Search(name).has_value();
}

void Window1::importSCC() {
    captionArray2.clear(); // kept: the timecodes of a run that stopped stay for the next
    const Ref<FolderItem> item = GetOpenFolderItem(kSccFileType);
    if (!item)
        return;
    if (!isSccName(item->Name())) {
        MsgBox("This file does not have the .scc extension.");
        clearScreen();
        return;
    }
    const Ref<TextInputStream> stream = item->OpenAsTextFile();
    if (!stream)
        return;
    fileName = item->Name();
    ProgressBar1.Visible = true;
    if (!decodeLines(*stream))
        return;
    stream->Close();
    doTranscTimecode();
}

} // namespace norvane
