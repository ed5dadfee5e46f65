#include "explain/checks/check.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace norvane {
namespace {

/// A film of words as people write them: names of control codes, four digits, and any other text
/// with "_" for a blank. "@30" begins a line at frame 30; the first begins at frame 0.
std::string filmOf(const std::string &words) {
    constexpr auto kNames =
        std::to_array<std::string_view>({"RCL", "BS", "AOF", "AON", "DER", "RU2", "RU3", "RU4",
                                         "FON", "RDC", "TR", "RTD", "EDM", "CR", "ENM", "EOC"});
    std::string film = "Scenarist_SCC V1.0\n00:00:00:00\t";
    std::istringstream tokens(words);
    for (std::string token; tokens >> token;) {
        const auto name = std::find(kNames.begin(), kNames.end(), token);
        if (name != kNames.end()) {
            film += wordOf(static_cast<std::uint16_t>(code::kRcl + (name - kNames.begin()))) + " ";
        } else if (token[0] == '@') {
            film += "\n" + frameTimecode(std::stol(token.substr(1)), false) + "\t";
        } else if (codeOfWord(token) >= 0) {
            film += token + " ";
        } else {
            std::replace(token.begin(), token.end(), '_', ' ');
            token += '\0'; // where a pair lacks its second
            for (std::size_t i = 0; i + 1 < token.size(); i += 2)
                film += wordOf(static_cast<std::uint16_t>(token[i] << 8 | token[i + 1])) + " ";
        }
    }
    return film;
}

std::string nameOf(const Style &style) {
    constexpr std::string_view kColours = "wgbcrymkt";
    return std::string{kColours[static_cast<std::size_t>(style.colour)],
                       kColours[static_cast<std::size_t>(style.background)]} +
           (style.semiTransparent ? "s" : "") + (style.italics ? "i" : "") +
           (style.underlined ? "u" : "") + (style.flashes ? "f" : "");
}

std::string nameOf(const std::optional<Moment> &moment) {
    return moment ? std::to_string(moment->frame) + "@" + std::to_string(moment->line) : "";
}

/// "CC1 pop-on 4@2-9@3 15,1 text {columns style}": frames and lines, of both ends.
std::string textOf(const Caption &caption) {
    constexpr std::string_view kModes[] = {"pop-on", "roll-up", "paint-on"};
    std::ostringstream text;
    text << nameOf(caption.service) << " " << kModes[static_cast<std::size_t>(caption.mode)] << " "
         << nameOf(caption.shownBy) << "-" << nameOf(caption.removedBy);
    for (const CaptionRow &row : caption.rows) {
        text << " " << row.row << "," << row.column << " " << textOf(row);
        for (const StyledColumns &run : stylesOf(row))
            text << " {" << run.from << "-" << run.to << " " << nameOf(run.style) << "}";
        text << (row.beyond > 0 ? " +" + std::to_string(row.beyond) : "");
    }
    return text.str();
}

std::string captionsIn(const std::string &words) {
    std::string text;
    FilmDecoder decoder(
        [&text](Caption &&caption) { text += (text.empty() ? "" : " | ") + textOf(caption); });
    const std::string film = filmOf(words);
    SccReader reader(film);
    while (const SccLine *line = reader.next())
        decoder.take(*line);
    decoder.finish();
    return text;
}

TEST(Decoder, ShowsWhatAViewerSees) {
    struct Row {
        std::string words;
        std::string captions;
    };
    const Row rows[] = {
        // Before the first code that selects a mode, nothing is taken.
        {"1470 Hi EDM EOC", ""},
        {"RCL 1470 Hi EOC @30 EDM", "CC1 pop-on 3@2-30@3 15,1 Hi"},
        {"EOC 1470 Hi EOC", "CC1 pop-on 3@2- 15,1 Hi"},
        // Doubled codes act at the first; a third acts again. Elsewhere the frames must follow.
        {"RCL RCL 1470 1470 Hi EOC EOC @30 EDM EDM", "CC1 pop-on 5@2-30@3 15,1 Hi"},
        {"RCL 1470 Hi EOC EOC EOC", "CC1 pop-on 3@2-5@2 15,1 Hi"},
        {"RCL 1470 Hi EOC @4 EOC", "CC1 pop-on 3@2- 15,1 Hi"},
        {"RCL 1470 Hi EOC @5 EOC", "CC1 pop-on 3@2-5@3 15,1 Hi"},
        {"RCL 1470 1130 1130 1130 0000 1130 EOC", "CC1 pop-on 7@2- 15,1 ®®®"},
        // EOC exchanges the memories and erases none.
        {"RCL ENM 1470 One EOC @20 RCL ENM 1450 Two EOC @40 EDM",
         "CC1 pop-on 5@2-25@3 15,1 One | CC1 pop-on 25@3-40@4 14,1 Two"},
        {"RCL 1450 One EOC RCL 1470 Two EOC 1470 3 EOC",
         "CC1 pop-on 4@2-9@2 14,1 One | CC1 pop-on 9@2-12@2 15,1 Two | CC1 pop-on 12@2- 14,1 One "
         "15,1 3"},
        {"RCL 1470 One EDM EOC @20 EDM EOC", "CC1 pop-on 5@2-20@3 15,1 One"},
        // Loaded and erased, or never shown.
        {"RCL 1470 One ENM 1470 Two", "CC1 pop-on -4@2 15,1 One | CC1 pop-on - 15,1 Two"},
        {"RCL 1470 __ EOC ENM", ""},
        {"RCL 1470 ab BS ENM", "CC1 pop-on -4@2 15,1 a"},
        {"RCL 1470 A BS ENM 1470 Hi EOC", "CC1 pop-on 7@2- 15,1 Hi"},
        {"RCL 145e wxyz DER 1220 EOC", "CC1 pop-on 6@2- 14,29 wxÁ"},
        // RCL leaves what is on the screen; EDM and ENM select nothing.
        {"RU2 CR 1470 Up RCL 1450 Pop EDM EOC",
         "CC1 roll-up 3@2-8@2 15,1 Up | CC1 pop-on 9@2- 14,1 Pop"},
        {"RDC 1470 Up ENM In EDM Out",
         "CC1 paint-on 2@2-5@2 15,1 UpIn | CC1 paint-on 6@2- 15,5 Out"},
        // Text mode: passed over, but for erasing; captions go on behind a code that selects a
        // mode.
        {"RCL 1470 Hi EOC TR 1470 Text EDM More EOC", "CC1 pop-on 3@2-8@2 15,1 Hi"},
        {"RU2 CR 1470 Up RTD Text CR RU2 _on", "CC1 roll-up 3@2- 15,1 Up on"},
        // Roll-up: a caption a row; the base row of the preamble; depth.
        {"RU2 CR 1470 One CR Two @20 CR 3",
         "CC1 roll-up 3@2-20@3 15,1 One | CC1 roll-up 6@2- 15,1 Two | CC1 roll-up 21@3- 15,1 3"},
        {"RU2 RU2 CR CR 1470 1470 One CR CR Two",
         "CC1 roll-up 6@2- 15,1 One | CC1 roll-up 10@2- 15,1 Two"},
        {"RU3 One CR Two CR Three RU2 CR 4",
         "CC1 roll-up 1@2-10@2 15,1 One | CC1 roll-up 4@2-11@2 15,1 Two | CC1 roll-up 7@2- 15,1 "
         "Three | CC1 roll-up 12@2- 15,1 4"},
        {"RU2 One CR Two RU3 CR Three CR Four",
         "CC1 roll-up 1@2-11@2 15,1 One | CC1 roll-up 4@2- 15,1 Two | CC1 roll-up 8@2- 15,1 Three "
         "| CC1 roll-up 12@2- 15,1 Four"},
        {"RU2 One CR Two 1140 _on", "CC1 roll-up 1@2- 15,1 One | CC1 roll-up 4@2- 15,2 on"},
        {"RU2 One CR Two 1440 _on EDM",
         "CC1 roll-up 1@2-9@2 15,1 One | CC1 roll-up 4@2-9@2 15,2 on"},
        {"RU3 1160 One CR Two 1140", "CC1 roll-up 2@2- 3,1 One | CC1 roll-up 5@2- 3,1 Two"},
        {"RU2 One RU2 _on RCL RU2 Two",
         "CC1 roll-up 1@2-7@2 15,1 One on | CC1 roll-up 8@2- 15,1 Two"},
        {"RCL 1470 Pop EOC RU2 Up", "CC1 pop-on 4@2-5@2 15,1 Pop | CC1 roll-up 6@2- 15,1 Up"},
        {"RU2 1140 One RCL RU2 Two", "CC1 roll-up 2@2-5@2 2,1 One | CC1 roll-up 6@2- 15,1 Two"},
        {"RU2 1458 A", "CC1 roll-up 2@2- 14,17 A"},
        // CR is for roll-up alone.
        {"RCL 1470 A CR B EOC RDC C CR D",
         "CC1 pop-on 5@2-7@2 15,1 AB | CC1 paint-on 7@2- 15,1 ABCD"},
        // Paint-on: a painting from RDC, or an empty screen, until its last row is gone.
        {"RDC 1450 One 1470 Two EDM 1470 Three",
         "CC1 paint-on 2@2-7@2 14,1 One 15,1 Two | CC1 paint-on 9@2- 15,1 Three"},
        {"RDC 1450 One RDC 1470 Two EDM",
         "CC1 paint-on 2@2-8@2 14,1 One | CC1 paint-on 6@2-8@2 15,1 Two"},
        {"RDC 1470 One RDC 1476 Two EDM",
         "CC1 paint-on 2@2-6@2 15,1 One | CC1 paint-on 6@2-8@2 15,1 One         Two"},
        {"RCL 1450 One 1470 Two EOC RDC 1474 X",
         "CC1 pop-on 7@2-10@2 14,1 One 15,1 Two | CC1 paint-on 10@2- 14,1 One 15,1 Two     X"},
        {"RCL 1450 One 1470 Two EOC RDC 1470 DER",
         "CC1 pop-on 7@2-10@2 14,1 One 15,1 Two | CC1 paint-on 10@2- 14,1 One"},
        {"RU2 One CR Two RDC 2 RCL 1470 Pop EOC",
         "CC1 roll-up 4@2-7@2 15,1 Two | CC1 roll-up 1@2-12@2 15,1 One | CC1 paint-on 7@2-12@2 "
         "15,1 Two2 | CC1 pop-on 12@2- 15,1 Pop"},
        {"RDC 1470 Hi BS 0000 BS Yo", "CC1 paint-on 2@2-5@2 15,1 H | CC1 paint-on 6@2- 15,1 Yo"},
        {"RDC __ 1470 A 1470 _ B", "CC1 paint-on 3@2-5@2 15,1 A | CC1 paint-on 6@2- 15,2 B"},
        {"RDC 1140 Top", "CC1 paint-on 2@2- 1,1 Top"},
        {"RU3 One CR Two CR Three RU2 RDC 1378 X",
         "CC1 roll-up 1@2-10@2 15,1 One | CC1 roll-up 4@2- 15,1 Two | CC1 roll-up 7@2- 15,1 Three "
         "| CC1 paint-on 13@2- 13,17 X"},
        // A preamble moves the cursor and restyles nothing; in a row, the style to the left goes
        // on.
        {"RCL 146e Ital 1472 ic 1450 Wide 1474 _r EOC",
         "CC1 pop-on 11@2- 14,1 Wide 15,1 Italic   r {1-6 wki}"},
        {"RCL 1465 Red 1450 Wh EOC", "CC1 pop-on 6@2- 14,1 Wh 15,1 Red {1-3 bku}"},
        {"RCL 1479 ab 1449 cd EOC", "CC1 pop-on 5@2- 14,1 cd {1-2 rku} 15,17 ab {17-18 wku}"},
        // Columns: tab offsets, the last column.
        {"RCL 1470 A 1722 B 1723 C EOC", "CC1 pop-on 7@2- 15,1 A  B   C"},
        {"RCL 147e uvwxyz EOC", "CC1 pop-on 5@2- 15,29 uvwz +2"},
        {"RCL 147e wxyz 1230 EOC", "CC1 pop-on 5@2- 15,29 wxyÀ"},
        {"RCL 147e wxyz BS v EOC", "CC1 pop-on 6@2- 15,29 wxvz"},
        {"RCL 147e yz 1723 1721 1723 a EOC", "CC1 pop-on 7@2- 15,29 yz a"},
        // Extended characters step back, where there is something.
        {"RCL 1470 Oue 123b EOC", "CC1 pop-on 5@2- 15,1 OuÙ"},
        {"RCL 1470 123b 123c EOC", "CC1 pop-on 4@2- 15,1 ù"},
        {"RCL 1474 123b EOC", "CC1 pop-on 3@2- 15,9 Ù"},
        {"RDC 1470 e 123b", "CC1 paint-on 2@2- 15,1 Ù"},
        // Background codes and black step back as well.
        {"RCL 1470 A_ 1028 B_ 172e C EOC", "CC1 pop-on 7@2- 15,1 A B C {3-3 wr} {5-5 kr}"},
        {"RCL 1470 1025 A_ 172d B EOC", "CC1 pop-on 6@2- 15,2 A B {2-2 wbs} {4-4 wt}"},
        // Mid-row codes and FON take a column; a colour ends italics, italics keep the colour.
        {"RCL 1470 a 1128 b 112e c 1123 d FON e 1120 f EOC",
         "CC1 pop-on 13@2- 15,1 a b c d e f {3-3 rk} {5-5 rki} {7-7 gku} {9-9 gkuf}"},
        {"RCL 1470 a 112f b EOC", "CC1 pop-on 5@2- 15,1 a b {3-3 wkiu}"},
        // Transparent space, BS, DER.
        {"RCL 1470 WXYZ 1470 1139 0000 1139 EOC", "CC1 pop-on 8@2- 15,3 YZ"},
        {"RCL 1470 BS WX BS BS BS Y EOC", "CC1 pop-on 8@2- 15,1 Y"},
        {"RCL 1470 a 112e BS b EOC", "CC1 pop-on 6@2- 15,1 ab"},
        {"RCL 1470 112e ab BS 1721 c EOC", "CC1 pop-on 7@2- 15,2 a c {2-4 wki}"},
        {"RCL 1470 Hello 1472 DER EOC", "CC1 pop-on 7@2- 15,1 Hell"},
        {"RCL 1470 Hello 1470 DER EOC", ""},
        // Other channels have their own cursor and mode.
        {"RCL 1470 One 1c20 1c50 Two EOC 1470 1c2f",
         "CC1 pop-on 8@2- 15,1 One | CC2 pop-on 10@2- 14,1 Two"},
        {"RCL 1470 One 1520 1570 Three 152f EOC",
         "CC1 pop-on 10@2- 15,1 One | CC3 pop-on 9@2- 6,1 Three"},
        {"RCL 1470 A 0161 B EOC", "CC1 pop-on 5@2- 15,1 AB"},
        {"1520 1570 A 0161 zz 0f00 B 0161 152f", "CC3 pop-on 8@2- 6,1 AB"},
        // A timecode that cannot be read: the line goes on behind the one before.
        {"RCL 1470 Bo th EOC zz EDM", "CC1 pop-on 4@2-6@2 15,1 Both | CC1 pop-on - 15,5 zz"}};
    for (const Row &row : rows) {
        EXPECT_EQ(captionsIn(row.words), row.captions) << row.words;
    }
}

struct CheckRow {
    std::string words;
    std::string kinds;
    std::string limit{};
    double value = 0;
};

/// The kinds of findings, each with how often, by cause.
std::string kindsIn(const CheckRow &row) {
    CheckRules rules;
    for (const FindingKind kind : {FindingKind::parity, FindingKind::digits, FindingKind::altered})
        rules.wanted.reset(static_cast<std::size_t>(kind));
    for (const LimitName &name : kLimitNames) {
        if (name.name == row.limit)
            rules.limits.*name.limit = row.value;
    }
    Check check(rules);
    const std::string film = filmOf(row.words);
    SccReader reader(film);
    check.begin(film, reader.header(), reader.headerNumber());
    while (const SccLine *line = reader.next())
        check.take(*line);
    std::string kinds;
    for (const Finding &finding : check.finish().findings) {
        kinds += (kinds.empty() ? "" : " ") + std::string(infoOf(finding.kind).name) + "@" +
                 std::to_string(finding.line) +
                 (finding.count > 1 ? "x" + std::to_string(finding.count) : "");
    }
    return kinds;
}

TEST(Check, FindsWhatIsWrongWithCaptions) {
    const CheckRow rows[] = {
        // Each kind, and what just misses it.
        {"RCL 1470 Hi EOC @30 EDM", ""},
        {"RCL ENM EDM", "empty@1"},
        {"RCL 1470 Hi EOC @60 RCL 1470 Hi ENM 1470 Yo EOC @90 EDM", "never-shown@3"},
        {"RCL 1470 Hi EOC @60 RCL 1470 Hi 1470 Yo EOC @90 EDM", ""},
        {"RCL 1470 Hi EOC @60 RCL 1470 Hi @90 EDM", "never-shown@3"},
        {"RCL 1470 Hi EOC @5 EDM", "never-shown@2"},
        {"RCL 1470 Hi EOC @6 EDM", ""},
        {"RCL 1470 Hi EOC", "never-erased@2"},
        {"RU2 CR 1470 Hi CR Ho", "never-erased@2"},
        {"RCL 1340 1 1360 2 1440 3 1460 4 EOC @30 EDM", ""},
        {"RCL 1040 1 1340 2 1360 3 1440 4 1460 5 EOC @30 EDM", "rows@2"},
        {"RU3 CR 1160 Hi @30 EDM", "rows@2"},
        {"RU3 CR 1240 Hi @30 EDM", ""},
        {"RU2 CR 1160 Hi @30 EDM", ""},
        {"RCL 1470 Hi EOC @2591999 EDM", ""},
        {"RCL 1470 Hi EOC @2592000 EDM", "hours@3"},
        {"RCL 1470 Hi EOC @30 EDM @30 EDM", "twice@4"},
        {"RCL 1470 Hi EOC @30 EDM @31 EDM", ""},
        {"RCL 147c 12345678 EOC @30 EDM", ""},
        {"RCL 147c 12345678_9 EOC @30 RCL 147c 12345678_9 EOC @60 EDM", "columns@2x2"},
        {"RCL 1470 Hi EOC @30 EDM RTD RU3", "text-mode@3"},
        // Only behind the last line it is known what is usual.
        {"RCL RCL 1470 1470 Hi EOC @30 EDM EDM", "single@2"},
        {"RCL 1470 Hi EOC EOC @30 EDM", ""},
        {"RCL RCL 1470 1470 Hi EOC @6 EOC EDM EDM @30 ENM ENM", "never-shown@2"},
        // Limits, on both of their sides: Hello! is seen for 30 frames.
        {"RCL 1470 Hello! EOC @35 EDM", "", "shortest", 30},
        {"RCL 1470 Hello! EOC @35 EDM", "shortest@2", "shortest", 31},
        {"RCL 1470 Hello! EOC @35 EDM", "", "longest", 30},
        {"RCL 1470 Hello! EOC @35 EDM", "longest@2", "longest", 29},
        {"RCL 1470 Hello! EOC @35 EDM", "", "reading-rate", 6},
        {"RCL 1470 Hello! EOC @36 RCL 1470 Hello! EOC @71 EDM", "reading-rate@3", "reading-rate",
         5.9},
        {"RCL 1470 Hi EOC @30 RCL ENM 1470 Yo EDM 0000 EOC @60 EDM", "", "gap", 2},
        {"RCL 1470 Hi EOC @30 RCL ENM 1470 Yo EDM EOC @60 EDM", "gap@3", "gap", 2},
        {"RCL 1470 Hello! EOC @35 EDM", "", "row-length", 6},
        {"RCL 1470 Hello! EOC @35 EDM", "row-length@2", "row-length", 5},
        {"RCL 1450 Hi 1470 Yo EOC @35 EDM", "", "rows", 2},
        {"RCL 1450 Hi 1470 Yo EOC @35 EDM", "rows@2", "rows", 1},
        {"RCL 1260 Hi 1340 Yo EOC @35 EDM", "", "upper-rows", 0},
        {"RCL 1540 Hi EOC @35 EDM", "upper-rows@2", "upper-rows", 0},
        {"RCL 1540 Hi EOC @35 RCL 1540 Yo EOC", "upper-rows@2x2 never-erased@3", "upper-rows", 0},
    };
    for (const CheckRow &row : rows) {
        EXPECT_EQ(kindsIn(row), row.kinds) << row.words << " " << row.limit << row.value;
    }
}

} // namespace
} // namespace norvane
