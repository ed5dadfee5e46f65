#include "decode/data_line.h"
#include "framework/windows/desktop.h"
#include "shell/file_types.h"
#include "shell/window1.h"

namespace norvane {

bool Window1::isSccName(const std::string &name) {
    return norvane::isSccName(name);
}

void Window1::importSCC() {
    captionArray2.clear(); // kept: the timecodes of a run that stopped stay for the next
    const Ref<FolderItem> item = GetOpenFolderItem(kSccFileType);
    if (!item)
        return;
    if (!isSccName(item->Name())) {
        MsgBox(std::string(kNotSccMessage));
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
