#include "framework/windows/desktop.h"
#include "shell/window1.h"

namespace norvane {

namespace {

/// Copies all that is in the watched folder; gives the paths of those with an SCC name.
std::vector<std::string> copyAndList(const FolderItem &watchItem, const FolderItem &copyFolder) {
    std::vector<std::string> sourceList;
    const std::string copies = copyFolder.AbsolutePath();
    for (std::size_t i = 1; i <= watchItem.Count(); ++i) {
        const Ref<FolderItem> item = watchItem.Item(i);
        const bool goes = Window1::isSccName(item->Name());
        item->CopyFileTo(*GetFolderItem(copies + item->Name()),
                         goes ? CopyOf::whatGoes : CopyOf::whatStays);
        if (goes)
            sourceList.push_back(item->AbsolutePath());
    }
    return sourceList;
}

} // namespace

void Window1::importSCCFolder() {
    captionArray2.clear(); // kept: the timecodes of a cycle that stopped stay for the first file
    ProgressBar1.Visible = true;
    promptForWatchFolder();
    // As a folder: a link of another user in its place does not count as one that exists.
    const Ref<FolderItem> watchItem = GetFolderItem(hotFolder + "/");
    promptForDestination();
    if (!watchItem || !watchItem->Exists()) {
        MsgBox("Could not locate the Watch folder. Please use the Browse button and reselect it.");
        return;
    }

    const auto lock = watchItem->Lock(); // kept: not against this program's own next cycle
    if (!lock)
        return;

    std::vector<std::string> sourceList;
    if (watchItem->Directory()) {
        TextField1.Text = watchItem->AbsolutePath();
        const Ref<FolderItem> copyFolder = GetFolderItem(destFolder)->Child("scc files");
        if (!copyFolder) {
            MsgBox("Could not locate the Destination folder. Please use the Browse button and "
                   "reselect it.");
        } else {
            if (!copyFolder->Exists())
                copyFolder->CreateAsFolder();
            ProgressText.Text = "Copying SCC files...";
            sourceList = copyAndList(*watchItem, *copyFolder);
        }
    }
    ProgressText.Text = "";

    for (const std::string &source : sourceList) {
        const Ref<FolderItem> sourceItem = GetFolderItem(source);
        fileName = sourceItem->Name();
        const Ref<TextInputStream> sourceStream = sourceItem->OpenAsTextFile();
        if (sourceStream && !decodeLines(*sourceStream))
            return; // kept: the bad file stays, and those after it are not reached
        DoTranscTimecodeFile();
        timeCodeArray.clear();
        sourceStream->Close();
        sourceItem->Delete(*sourceStream); // kept: whether or not its copy could be made
    }
}

} // namespace norvane
