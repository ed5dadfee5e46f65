#include "tests/support/plain_modes.h"

#include "framework/windows/guard.h"
#include "tests/support/plain_road.h"
#include "tests/support/scenario.h"
#include "transcript/clean_up.h"

namespace norvane {

namespace {

Lines textsOf(const TextArray &array) {
    Lines texts;
    for (std::size_t i = 0; i < array.size(); ++i)
        texts.emplace_back(array[i]);
    return texts;
}

} // namespace

std::string differenceOfModes(std::string_view bytes) {
    if (bytes.size() < 3)
        return "";
    const auto options = static_cast<unsigned char>(bytes[0]);
    const auto modes = static_cast<unsigned>(static_cast<unsigned char>(bytes[1]));
    const std::string whole(bytes.substr(3));
    const std::string part =
        whole.substr(std::min(whole.size(), std::size_t{static_cast<unsigned char>(bytes[2])} * 4));
    std::string cleaned(bytes);
    cleanTranscript(cleaned);
    if (cleaned != plain::cleanTranscript(bytes))
        return "text passes";

    static const TemporaryFolder folder;
    HeadlessDesktop desktop;
    Window1 window;
    plain::Road road{(options & 1U) != 0, (options & 2U) != 0, (options & 4U) != 0};
    for (CheckBox *box : {&window.ParagraphBox, &window.TimecodeBox})
        box->Value.changed = nullptr; // any states, also those out of reach
    window.RadioButton1.Value = road.unbuffered;
    window.TimecodeBox.Value = road.timecodeForm;
    window.ParagraphBox.Value = road.paragraphForm;
    window.hotFolder = folder.path("in/");
    window.destFolder = folder.path("out/");

    for (unsigned run = 0; run < 4; ++run) {
        // One file, the same cancelled, batch, cycle.
        const unsigned mode = (modes >> (2 * run)) & 3U;
        const bool oneFile = mode < 2;
        for (const char *name : {"in", "out"})
            std::filesystem::remove_all(folder.path(name));
        folder.write("out/x", "");
        folder.write("in/a.scc", whole);
        folder.write("in/b.scc", part);

        Lines wanted;
        road.captionArray2.clear();
        bool told = mode == 2;
        try {
            for (const auto &[name, text] : {std::pair("a.scc", whole), {"b.scc", part}}) {
                if (!road.decode(text)) {
                    told = true;
                    break;
                }
                const std::string transcript = road.transcript(oneFile ? "a" : name);
                if (mode != 1) {
                    wanted.push_back(transcript);
                    road.captionArray2.clear();
                    road.timeCodeArray.clear();
                }
                if (oneFile)
                    break;
            }
        } catch (const OutOfBoundsException &) {
            told = true;
        }

        desktop.whenSeen = [&](const std::string &line) {
            if (line.starts_with("open dialog"))
                desktop.answerFile(folder.item("in/a.scc"));
            if (line == "folder dialog")
                desktop.answerFolder(folder.item("in"));
            if (line.starts_with("save dialog"))
                desktop.answerSave(mode == 1 ? HeadlessDesktop::cancel()
                                             : folder.item("out/" + line.substr(line.size() - 5)));
        };
        guarded([&] {
            oneFile     ? window.importSCC()
            : mode == 2 ? window.importSCCFolderSingle()
                        : window.importSCCFolder();
        });

        Lines got;
        for (const char *name : {"out/a.txt", "out/b.txt"}) {
            if (folder.has(name))
                got.push_back(folder.read(name));
        }
        const Lines log = desktop.takeLog();
        const bool saw = std::any_of(log.begin(), log.end(), [](const std::string &line) {
            return line.starts_with("message");
        });
        const std::tuple expected{wanted, road.captionArray2, road.timeCodeArray, told};
        const std::tuple found{got, textsOf(window.captionArray2), textsOf(window.timeCodeArray),
                               saw};
        if (expected != found)
            return "mode " + std::to_string(mode) + ": " + testing::PrintToString(found) +
                   ", not " + testing::PrintToString(expected);
    }
    return "";
}

} // namespace norvane
