#include "framework/windows/desktop.h"
#include "shell/window1.h"
#include "transcript/layout.h"

namespace norvane {

namespace {
constexpr const char *kTranscriptFileType = "TEXT";
} // namespace

// The three writers stand below one another; what they share follows them.

void Window1::doTranscTimecode() {
    const std::string transcriptText = composeTranscript();
    const std::string baseName = baseNameOf(fileName); // a tick may change it during the dialog
    const Ref<FolderItem> transcriptItem =
        GetSaveFolderItem(kTranscriptFileType, baseName + ".txt");
    if (transcriptItem) {
        writeTranscript(*transcriptItem, baseName, transcriptText);
        ProgressBar1.Visible = false;
        captionArray2.clear(); // kept: on Cancel both arrays stay as they are
        timeCodeArray.clear();
        Launch(*GetFolderItem(transcriptItem->AbsolutePath(), 0, Links::all), true);
    }
    hideProgress();
}

void Window1::DoTranscTimecodeFileSingle() {
    const std::string transcriptText = composeTranscript();
    const Ref<FolderItem> transcriptItem =
        GetSaveFolderItem(kTranscriptFileType, baseNameOf(fileName) + ".txt");
    if (transcriptItem)
        writeTranscript(*transcriptItem, fileName, transcriptText);
    hideProgress();
    captionArray2.clear(); // here on Cancel as well
    timeCodeArray.clear();
}

void Window1::DoTranscTimecodeFile() {
    const std::string transcriptText = composeTranscript();
    const std::string path = destFolder + baseNameOf(fileName);
    Ref<FolderItem> transcriptItem = GetFolderItem(path + ".txt");
    Existing existing = Existing::stays; // one that comes after the look
    if (transcriptItem->Exists()) {      // kept: one test and no loop, so an older "_1" is replaced
        transcriptItem = GetFolderItem(path + "_1.txt");
        existing = Existing::replaced;
    }
    if (transcriptItem) {
        writeTranscript(*transcriptItem, fileName, transcriptText, existing);
        captionArray2.clear(); // kept: timeCodeArray is the caller's to empty
    }
    hideProgress();
}

std::string Window1::composeTranscript() {
    const Form form = TimecodeBox.Value    ? Form::timecode
                      : ParagraphBox.Value ? Form::paragraph
                                           : Form::line;
    return norvane::composeTranscript(form, captionArray2, timeCodeArray);
}

void Window1::writeTranscript(const FolderItem &transcriptItem, const std::string &name,
                              const std::string &transcriptText, Existing existing) {
    const Ref<TextOutputStream> transcriptStream = transcriptItem.CreateTextFile(existing);
    transcriptStream->WriteLine(headingOf(name));
    transcriptStream->WriteLine("");
    transcriptStream->WriteLine(transcriptText);
    transcriptStream->Close();
    ProgressText.Text = "Done Writing SCC Transcripts";
    ProgressBar1.Value = 0;
}

void Window1::hideProgress() {
    ProgressText.Visible = false;
    ProgressBar1.Visible = false;
}

} // namespace norvane
