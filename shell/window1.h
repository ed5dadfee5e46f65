#pragma once

#include "framework/files/folder_item.h"
#include "framework/text/text.h"
#include "framework/windows/controls.h"
#include "framework/windows/timer.h"
#include "framework/windows/window.h"

#include <string>
#include <string_view>

namespace norvane {

/// The program's one window and its state: its controls, the folders of the watch, what has been
/// decoded, and every mode of decoding as a method. Methods are defined in the folder of their
/// subject.
class Window1 : public Window {
  public:
    /// The one window; created and opened, and not yet shown, if there is none.
    static Window1 &the();

    /// A window that nobody opened: the controls as designed, no preferences read, nothing on
    /// screen.
    Window1();

    // Controls, in tab order.
    BevelButton BevelButton1;
    CheckBox TimecodeBox;
    CheckBox LineBox;
    CheckBox ParagraphBox;
    Label StaticText1;
    ProgressBar ProgressBar1;
    RadioButton RadioButton1;
    RadioButton RadioButton2;
    BevelButton BevelButton3;
    BevelButton BevelButton2;
    Canvas Canvas1;
    BevelButton BevelButton4;
    BevelButton BevelButton5;
    Timer Timer1;
    CheckBox CheckBox1;
    TextField TextField1;
    Label Label1;
    TextField TextField2;
    Label Label2;
    BevelButton BevelButton6;
    BevelButton BevelButton7;
    Label ProgressText;
    Separator Separator1;
    Label Label3;
    PopupArrow PopupArrow1;
    Label Label4;
    TextField timerText;
    Label Label5;
    Label Label6;
    BevelButton BevelButton8;
    PushButton PushButton1;
    Listbox Listbox1;

    /// Decoded captions, an entry for each data line read so far.
    TextArray captionArray2;
    /// Their timecodes, index by index. It outlives a run that stopped or
    /// whose save dialog was cancelled, and then pairs with the captions of the next file.
    TextArray timeCodeArray;
    std::string fileName;   // of the current file, with its extension
    std::string hotFolder;  // absolute path, ending in the separator; empty when none was chosen
    std::string destFolder; // likewise
    bool myWatchFolder = false;

    // Handlers of controls (shell/; the watch's in folders/hot_folder_control.cpp).
    void BevelButton1_Action();
    void TimecodeBox_Action();
    void LineBox_Action();
    void ParagraphBox_Action();
    void BevelButton3_Action();
    void BevelButton2_Action();
    void BevelButton4_Action();
    void Timer1_Action();
    void CheckBox1_Action();
    void BevelButton6_Action();
    void BevelButton7_Action();
    bool PopupArrow1_MouseDown();
    void timerText_TextChange();
    void BevelButton8_Action();
    void PushButton1_Action();

    // The decode of one file that the user picks (decode/import_scc.cpp), of all files of a folder,
    // once (folders/batch_run.cpp), and of the watched folder (folders/hot_folder_cycle.cpp). Each
    // reports to the user and throws what the framework throws.
    void importSCC();
    void importSCCFolderSingle();
    void importSCCFolder();

    /// Whether a name counts as that of an SCC file: any character and "scc", anywhere in it.
    static bool isSccName(const std::string &name);

    // The writers at the end of each mode (transcript/writers.cpp): the two arrays to a transcript.
    void doTranscTimecode();
    void DoTranscTimecodeFileSingle();
    void DoTranscTimecodeFile();

    /// Ask for a folder that is not chosen yet, by a message and a dialog. Throw NilObjectException
    /// when the dialog is cancelled (folders/hot_folder_control.cpp).
    void promptForWatchFolder();
    void promptForDestination();

    // Text only: see decode/timecode.h and decode/letters.h.
    static std::string timecodeToSecondsSCC(std::string_view timecode);
    static std::string timeCodeToSeconds(std::string_view timecode);
    static std::string returnTimecode(double seconds);
    static std::string convertSCC2Letters(std::string_view text);
    static std::string DoTheRest(std::string_view text);

  protected:
    void Event_Open() override;
    void Event_Close() override;

  private:
    // shell/window1.cpp
    void Layout();
    void CreateControls();
    void _CreateControls0(); // NOLINT: the name is the window designer's
    void _CreateControls1(); // NOLINT
    void nameForScreenReaders();
    void tellFolding(); // shell/window1_handlers.cpp

    // decode/decode_lines.cpp, for all three modes
    bool decodeLines(TextInputStream &stream);
    void clearScreen();

    // transcript/writers.cpp, for all three writers
    std::string composeTranscript();
    void writeTranscript(const FolderItem &transcriptItem, const std::string &name,
                         const std::string &transcriptText, Existing existing = Existing::replaced);
    void hideProgress();

    // folders/hot_folder_control.cpp
    void readInterval();
    static void chooseFolder(std::string &folder, TextField &field);
};

} // namespace norvane
