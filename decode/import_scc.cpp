#include "framework/desktop.h"
#include "framework/regex.h"
#include "shell/file_types.h"
#include "shell/window1.h"

namespace norvane {

void Window1::importSCC() {
    captionArray2.clear(); // kept: the timecodes of a run that stopped stay for the next
    const RegEx patternRegEx(".scc");
    const Ref<FolderItem> item = GetOpenFolderItem(kSccFileType);
    if (!item)
        return;
    if (!patternRegEx.Search(item->Name())) {
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
