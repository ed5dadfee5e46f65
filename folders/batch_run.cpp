#include "framework/windows/desktop.h"
#include "shell/window1.h"

namespace norvane {

void Window1::importSCCFolderSingle() {
    captionArray2.clear(); // kept: the timecodes of a run that stopped stay for the first file
    ProgressBar1.Visible = true;
    const Ref<FolderItem> chosenItem = SelectFolder();
    if (!chosenItem) {
        MsgBox("No folder selected.");
        return;
    }
    std::vector<std::string> sourceList;
    for (std::size_t i = 1; i <= chosenItem->Count(); ++i) { // whatever is no folder holds nothing
        const Ref<FolderItem> item = chosenItem->Item(i);
        if (!item)
            return;
        if (isSccName(item->Name()))
            sourceList.push_back(item->AbsolutePath());
    }

    // Kept across files: where a file has gone meanwhile, its transcript is offered under the name
    // of the one before, and that one's stream is closed once more.
    auto sourceStream = Ref<TextInputStream>::nil("no file has been opened.");
    for (std::size_t k = 0; k < sourceList.size(); ++k) {
        const Ref<FolderItem> sourceItem = GetFolderItem(sourceList[k], 0, Links::all);
        if (sourceItem) {
            fileName = sourceItem->Name();
            sourceStream = sourceItem->OpenAsTextFile();
            if (sourceStream && !decodeLines(*sourceStream))
                return;
        }
        DoTranscTimecodeFileSingle();
        timeCodeArray.clear();
        sourceStream->Close();
        if (k + 1 == sourceList.size())
            MsgBox("All SCC files have been decoded.");
    }
}

} // namespace norvane
