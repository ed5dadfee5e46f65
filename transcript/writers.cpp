#include "framework/windows/desktop.h"
#include "shell/window1.h"
#include "transcript/clean_up.h"
#include "transcript/layout.h"

namespace norvane {

namespace {
constexpr const char *kTranscriptFileType = "TEXT";
constexpr const char *kHeading = "Transcripts of ";
} // namespace

// The three writers stand below one another; what they share follows them.

void Window1::doTranscTimecode() {
    const std::string transcriptText = composeTranscript();
    const Ref<FolderItem> transcriptItem =
        GetSaveFolderItem(kTranscriptFileType, baseName() + ".txt");
    if (transcriptItem) {
        writeTranscript(*transcriptItem, kHeading + baseName(), transcriptText);
        ProgressBar1.Visible = false;
        captionArray2.clear(); // kept: on Cancel both arrays stay as they are
        timeCodeArray.clear();
        GetFolderItem(transcriptItem->AbsolutePath(), 0)->Launch(true);
    }
    hideProgress();
}

void Window1::DoTranscTimecodeFileSingle() {
    const std::string transcriptText = composeTranscript();
    const Ref<FolderItem> transcriptItem =
        GetSaveFolderItem(kTranscriptFileType, baseName() + ".txt");
    if (transcriptItem)
        writeTranscript(*transcriptItem, kHeading + fileName, transcriptText);
    hideProgress();
    captionArray2.clear(); // here on Cancel as well
    timeCodeArray.clear();
}

void Window1::DoTranscTimecodeFile() {
    const std::string transcriptText = composeTranscript();
    Ref<FolderItem> transcriptItem = GetFolderItem(destFolder + baseName() + ".txt", 0);
    if (transcriptItem->Exists()) // kept: one test and no loop, so an older "_1" is replaced
        transcriptItem = GetFolderItem(destFolder + baseName() + "_1.txt", 0);
    if (transcriptItem) {
        writeTranscript(*transcriptItem, kHeading + fileName, transcriptText);
        captionArray2.clear(); // kept: timeCodeArray is the caller's to empty
    }
    hideProgress();
}

std::string Window1::composeTranscript() {
    cleanEntries(captionArray2);
    const Form form = TimecodeBox.Value    ? Form::timecode
                      : ParagraphBox.Value ? Form::paragraph
                                           : Form::line;
    std::string transcriptText = layOut(form, captionArray2, timeCodeArray);
    cleanTranscript(transcriptText);
    return transcriptText;
}

std::string Window1::baseName() const {
    return fileName.substr(0, fileName.find('.'));
}

void Window1::writeTranscript(const FolderItem &transcriptItem, const std::string &heading,
                              const std::string &transcriptText) {
    const Ref<TextOutputStream> transcriptStream = transcriptItem.CreateTextFile();
    transcriptStream->WriteLine(heading);
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
