#include "tests/support/plain_modes.h"

#include "decode/timecode.h"
#include "explain/walk/plain_walk.h"
#include "framework/text/text.h"
#include "framework/windows/guard.h"
#include "tests/support/plain_walk.h"
#include "tests/support/scenario.h"
#include "transcript/clean_up.h"

#include <cctype>

namespace norvane {

namespace {

/// The modes as they are told, on plain texts: no tables made ahead, no memory shared.
struct PlainRoad {
    bool unbuffered = false;
    bool timecodeForm = false;
    bool paragraphForm = false;
    Lines captions{};
    Lines timecodes{};

    /// False when a line is refused.
    bool decode(std::string text) {
        const auto digit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
        text = ReplaceAllB(ReplaceAllB(text, "\r\n", "\n"), "\r", "\n");
        std::size_t kept = 0;
        const TextArray lines = Split(text, "\n");
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const std::string line(lines[i]);
            if (line.empty() || ++kept == 1)
                continue;
            const TextArray fields = Split(line, "\t");
            bool found = false;
            for (std::size_t at = 2; at < line.size(); ++at)
                found = found || (digit(line[at - 2]) && digit(line[at - 1]) && line[at] == ':');
            if (!found || fields.size() < 2)
                return false;
            std::string timecode(fields[0]);
            if (unbuffered) {
                timecode = plain::returnTimecode(
                    Val(timecodeToSecondsSCC(ReplaceAll(timecode, ";", ":"))) +
                    static_cast<double>(Len(fields[1])) / 5.0 / 30.0);
            }
            timecodes.push_back(timecode);
            captions.push_back(plain::caption(fields[1]));
        }
        return true;
    }

    std::string transcript(const std::string &name) {
        std::string body;
        for (std::string &caption : captions) {
            TracedText entry(caption);
            plain::cleanEntry(entry);
            caption = entry.text();
        }
        for (std::size_t i = 0; i < captions.size(); ++i) {
            if (i == timecodes.size())
                throw OutOfBoundsException("");
            timecodes[i] = Replace(timecodes[i], ",", ".");
            body += timecodeForm    ? "[" + timecodes[i] + "]\t" + captions[i] + "\n\n"
                    : paragraphForm ? " " + captions[i]
                                    : captions[i] + "\n";
        }
        return "Transcripts of " + name + "\n\n" + plain::cleanTranscript(body) + "\n";
    }
};

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
    PlainRoad road{(options & 1U) != 0, (options & 2U) != 0, (options & 4U) != 0};
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
        road.captions.clear();
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
                    road.captions.clear();
                    road.timecodes.clear();
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
        const std::tuple expected{wanted, road.captions, road.timecodes, told};
        const std::tuple found{got, textsOf(window.captionArray2), textsOf(window.timeCodeArray),
                               saw};
        if (expected != found)
            return "mode " + std::to_string(mode) + ": " + testing::PrintToString(found) +
                   ", not " + testing::PrintToString(expected);
    }
    return "";
}

} // namespace norvane
