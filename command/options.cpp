#include "command/options.h"

#include "framework/text/text.h"

#include <algorithm>
#include <getopt.h>
#include <numeric>
#include <optional>

namespace norvane {

namespace {

constexpr const char *kUsage =
    "Usage: norvane-transcript [OPTION]... FILE...\n"
    "       norvane-transcript --explain [--find TEXT] [--at TIME] [--advised] [--screen]\n"
    "                          [--json] FILE[:LINE|:FIRST-LAST]...\n"
    "       norvane-transcript --check [--json] [--each|--summary] [--without KIND,...]\n"
    "                          [--limit NAME=VALUE]... [@RULES] FILE...\n"
    "       norvane-transcript --page [--open] FILE...\n"
    "Turns Scenarist Closed Caption files (.scc) into readable transcripts, explains what became\n"
    "of each word of a file, checks files, or shows them as pages. FILE - is standard input,\n"
    "which is also read if no FILE is given and input is piped in.\n"
    "\n"
    "  --form timecode|line|paragraph  layout of the transcript (timecode)\n"
    "  --clock unbuffered|scc          start times corrected for the buffer, or as in the\n"
    "                                  file (unbuffered)\n"
    "  --no-heading                    omit the heading, which names the file\n"
    "  -o FILE                         write to FILE, not to standard output\n"
    "  --output-dir DIR                write DIR/NAME.txt for each file; NAME is the name of\n"
    "                                  the file up to its first period\n"
    "  --force                         replace existing transcripts and pages\n"
    "  --stdin-name NAME               name for standard input (stdin)\n"
    "  --explain                       explain data lines: what a viewer sees and when, each\n"
    "                                  word, what it means, what became of it, what to do\n"
    "  --find TEXT                     only lines with TEXT in the transcript or on the screen\n"
    "  --at TIME                       only lines sent or seen at TIME, written 00:01:02:03 as\n"
    "                                  in the file or 00:01:02.10 as in the transcript\n"
    "  --advised                       only lines with something to correct\n"
    "  --screen                        show rows as they appear on the screen\n"
    "  --check                         print what is wrong with each file: FILE:LINE: KIND: text;\n"
    "                                  findings with the same cause are reported once\n"
    "  --each                          report every finding\n"
    "  --summary                       print one line per file instead, with tabs: captions,\n"
    "                                  times, findings, fastest reading, longest row, most rows\n"
    "  --limit NAME=VALUE              require more than the standard does; the names are\n"
    "                                  reading-rate (maximum characters per second), shortest,\n"
    "                                  longest (frames on the screen), gap (minimum frames\n"
    "                                  between captions), row-length, rows (maximums),\n"
    "                                  upper-rows (how many of rows 5 to 11 may be used; 0)\n"
    "  @RULES                          read options from the file RULES, one per line\n"
    "  --without KIND,...              omit kinds of findings; the kinds are\n";

constexpr const char *kUsageAfterKinds =
    "  --json                          print one JSON object per line\n"
    "  --page                          print a page for a browser: the captions with all that\n"
    "                                  --explain and --check report; with --output-dir, write\n"
    "                                  DIR/NAME.html for each file and DIR/index.html\n"
    "  --open                          open the page\n"
    "  --help, -h                      print this help and exit\n"
    "  --version                       print the version and exit\n"
    "\n"
    "Exit status: 0 for success, 1 if a transcript failed or a check found something, 2 for wrong\n"
    "usage or if --check or --explain could not read a file.\n";

/// Above all characters, which getopt_long returns for one-letter options.
namespace Found {
enum Option {
    form = 256,
    clock,
    noHeading,
    stdinName,
    outputFolder,
    force,
    explain,
    find,
    at,
    advised,
    screen,
    check,
    each,
    summary,
    limit,
    without,
    json,
    page,
    open,
    version
};
}

constexpr auto kOptions = std::to_array<option>({
    {"form", required_argument, nullptr, Found::form},
    {"clock", required_argument, nullptr, Found::clock},
    {"no-heading", no_argument, nullptr, Found::noHeading},
    {"output-dir", required_argument, nullptr, Found::outputFolder},
    {"force", no_argument, nullptr, Found::force},
    {"stdin-name", required_argument, nullptr, Found::stdinName},
    {"explain", no_argument, nullptr, Found::explain},
    {"find", required_argument, nullptr, Found::find},
    {"at", required_argument, nullptr, Found::at},
    {"advised", no_argument, nullptr, Found::advised},
    {"screen", no_argument, nullptr, Found::screen},
    {"check", no_argument, nullptr, Found::check},
    {"each", no_argument, nullptr, Found::each},
    {"summary", no_argument, nullptr, Found::summary},
    {"limit", required_argument, nullptr, Found::limit},
    {"without", required_argument, nullptr, Found::without},
    {"json", no_argument, nullptr, Found::json},
    {"page", no_argument, nullptr, Found::page},
    {"open", no_argument, nullptr, Found::open},
    {"help", no_argument, nullptr, 'h'},
    {"version", no_argument, nullptr, Found::version},
    {nullptr, 0, nullptr, 0}, // the end, as getopt_long wants it
});

// In the order of the enums.
constexpr auto kForms = std::to_array<std::string_view>({"timecode", "line", "paragraph"});
constexpr auto kClocks = std::to_array<std::string_view>({"unbuffered", "scc"});

Options answered(const std::string &text, int exitStatus = 0) {
    Options options;
    options.answer = text;
    options.exitStatus = exitStatus;
    return options;
}

Options wrong(const std::string &what) {
    return answered("norvane-transcript: " + what + "\nTry 'norvane-transcript --help'.\n", 2);
}

/// How many letters must be put in, taken out or replaced to make one word of the other.
std::size_t distance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (const char letter : from) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t replaced = diagonal + (letter == to[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

/// "; did you mean ...?" when one of the words is near.
template <class Words>
std::string suggestion(std::string_view word, const Words &words, std::string_view prefix) {
    constexpr std::size_t kNear = 2;
    std::string_view best;
    std::size_t bestDistance = kNear + 1;
    for (const std::string_view candidate : words) {
        const std::size_t candidateDistance = distance(word, candidate);
        if (candidateDistance < bestDistance) {
            best = candidate;
            bestDistance = candidateDistance;
        }
    }
    return best.empty() ? "" : std::string("; did you mean '").append(prefix).append(best) + "'?";
}

std::string unknownOption(std::string_view argument) {
    std::vector<std::string_view> names;
    std::string candidates; // that begin with it
    std::size_t count = 0;
    for (const option &known : kOptions) {
        if (known.name == nullptr)
            continue;
        names.emplace_back(known.name);
        const std::string name = std::string("--") + known.name;
        if (!argument.starts_with("--") ||
            !name.starts_with(argument.substr(0, argument.find('='))))
            continue;
        candidates += (count++ == 0 ? "'" : ", '") + name + "'";
    }
    if (count > 1)
        return "option '" + printable(argument) + "' is ambiguous: " + candidates;
    std::string message = "unknown option '" + printable(argument) + "'";
    if (argument.starts_with("--")) {
        argument.remove_prefix(2);
        message += suggestion(argument.substr(0, argument.find('=')), names, "--");
    }
    return message;
}

/// Which of the words `word` is; nothing when none.
template <class Words>
std::optional<std::size_t> indexOf(std::string_view word, const Words &words) {
    const auto found = std::find(words.begin(), words.end(), word);
    if (found == words.end())
        return {};
    return static_cast<std::size_t>(found - words.begin());
}

/// Removes the kinds of a list from those that are wanted. Gives what is wrong with the list, or
/// the empty text.
std::string leaveOut(std::string_view list, FindingKinds &kinds) {
    for (;;) {
        const std::size_t comma = list.find(',');
        const std::string_view name = list.substr(0, comma);
        const auto kind = indexOf(name, kFindingNames);
        if (!kind)
            return "unknown kind '" + printable(name) + "'" + suggestion(name, kFindingNames, "");
        kinds.reset(*kind);
        if (comma == std::string_view::npos)
            return "";
        list.remove_prefix(comma + 1);
    }
}

/// Sets a limit of "NAME=VALUE". Gives what is wrong with it, or the empty text.
std::string setLimit(std::string_view text, Limits &limits) {
    const std::size_t equals = text.find('=');
    const std::string_view name = text.substr(0, equals);
    std::vector<std::string_view> names;
    names.reserve(kLimitNames.size());
    for (const LimitName &known : kLimitNames)
        names.push_back(known.name);
    const auto index = indexOf(name, names);
    if (!index)
        return "unknown limit '" + printable(name) + "'" + suggestion(name, names, "");
    const auto limit = kLimitNames.at(*index).limit;
    const std::string_view value = equals == std::string_view::npos ? "" : text.substr(equals + 1);
    const bool isNumber = !value.empty() && isDigit(value.front()) &&
                          value.find_first_not_of("0123456789.") == std::string_view::npos &&
                          std::count(value.begin(), value.end(), '.') <= 1;
    if (isNumber)
        limits.*limit = Val(value);
    else if (limit == &Limits::upperRows && equals == std::string_view::npos)
        limits.*limit = 0;
    else
        return "limit '" + std::string(name) + "' needs a number, as in '" + std::string(name) +
               "=20'";
    return "";
}

std::string usage() {
    constexpr const char *kIndent = "                                  ";
    constexpr std::size_t kWidth = 56; // of the column after the indent
    std::string text = kUsage;
    std::string line;
    for (const std::string_view name : kFindingNames) {
        if (line.size() + name.size() + 1 > kWidth) {
            text += kIndent + line + "\n";
            line.clear();
        }
        line.append(line.empty() ? "" : " ").append(name);
    }
    return text + kIndent + line + "\n" + kUsageAfterKinds;
}

/// Takes an option with its value. Gives what is wrong with it, or the empty text.
std::string take(int found, const std::string &value, Options &options) {
    const auto form = indexOf(value, kForms);
    const auto clock = indexOf(value, kClocks);
    switch (found) {
    case Found::form:
        if (!form)
            return "unknown form '" + printable(value) + "': use timecode, line or paragraph";
        options.form = static_cast<Form>(*form);
        return "";
    case Found::clock:
        if (!clock)
            return "unknown clock '" + printable(value) + "': use unbuffered or scc";
        options.clock = static_cast<Clock>(*clock);
        return "";
    case Found::outputFolder:
        options.outputFolder = value;
        return value.empty() ? "option '--output-dir' needs a value" : "";
    case Found::noHeading:
        options.heading = false;
        return "";
    case Found::stdinName:
        options.stdinName = value;
        return value.empty() ? "option '--stdin-name' needs a value" : "";
    case 'o':
        options.outputFile = value == "-" ? "" : value;
        return value.empty() ? "option '-o' needs a value" : "";
    case Found::force:
        options.force = true;
        return "";
    case Found::explain:
    case Found::check:
    case Found::page:
        if (options.task != Task::transcribe)
            return "--explain, --check and --page cannot be combined";
        options.task = found == Found::explain ? Task::explain
                       : found == Found::check ? Task::check
                                               : Task::page;
        return "";
    case Found::open:
        options.open = true;
        return "";
    case Found::find:
        options.choice.text = value;
        return value.empty() ? "option '--find' needs a value" : "";
    case Found::at:
        options.choice.time = value;
        return isTime(value) ? ""
                             : "invalid time '" + printable(value) +
                                   "': write 00:01:02:03 as in the file or 00:01:02.10 as in the "
                                   "transcript";
    case Found::advised:
        options.choice.advised = true;
        return "";
    case Found::screen:
        options.screen = true;
        return "";
    case Found::each:
        options.rules.told = Findings::Told::each;
        return "";
    case Found::summary:
        options.summary = true;
        return "";
    case Found::limit:
        return setLimit(value, options.rules.limits);
    case Found::without:
        return leaveOut(value, options.rules.wanted);
    default: // json
        options.json = true;
        return "";
    }
}

/// What does not go together; empty when all does.
std::string contradiction(const Options &options) {
    if (options.files.empty())
        return "no file given";
    if (!options.rules.wanted.all() && options.task != Task::check)
        return "--without can be used only with --check";
    if (options.rules.told == Findings::Told::each && options.task != Task::check)
        return "--each can be used only with --check";
    const bool isChosen =
        !options.choice.text.empty() || !options.choice.time.empty() || options.choice.advised;
    if ((isChosen || options.screen) && options.task != Task::explain)
        return "--find, --at, --advised and --screen can be used only with --explain";
    if (options.summary && options.task != Task::check)
        return "--summary can be used only with --check";
    if (options.rules.limits.isAny() && options.task != Task::check)
        return "--limit can be used only with --check";
    const bool explains = options.task == Task::explain || options.task == Task::check;
    if (options.json && !explains)
        return "--json can be used only with --explain or --check";
    const bool toFile = !options.outputFile.empty();
    const bool toFolder = !options.outputFolder.empty();
    if ((toFile || !options.heading) && options.task != Task::transcribe)
        return "-o and --no-heading can be used only for transcripts";
    if ((options.force || toFolder) && explains)
        return "--output-dir and --force can be used only for transcripts and pages";
    if (options.open && options.task != Task::page)
        return "--open can be used only with --page";
    if (options.task == Task::page && options.files.size() > 1 && !options.open && !toFolder)
        return "--page of several files needs --output-dir or --open";
    if (toFile && toFolder)
        return "-o and --output-dir cannot be combined";
    if (toFile && options.files.size() > 1)
        return "-o is for one file: use --output-dir for several";
    return "";
}

} // namespace

Options readOptions(int count, char **arguments, bool inputIsPiped) {
    Options options;
    opterr = 0;
    for (;;) {
        const int found = getopt_long(count, arguments, ":ho:", kOptions.data(), nullptr);
        if (found < 0)
            break;
        if (found == 'h')
            return answered(usage());
        if (found == Found::version)
            return answered("norvane-transcript " NORVANE_VERSION "\n");
        if (found == ':')
            return wrong("option '" + std::string(arguments[optind - 1]) + "' needs a value");
        if (found == '?') {
            const bool isLetter = optopt > 0 && optopt < Found::form;
            return wrong(unknownOption(isLetter ? std::string("-") + static_cast<char>(optopt)
                                                : arguments[optind - 1]));
        }
        const std::string problem = take(found, optarg == nullptr ? "" : optarg, options);
        if (!problem.empty())
            return wrong(problem);
    }
    options.files.assign(arguments + optind, arguments + count);
    if (options.files.empty() && inputIsPiped)
        options.files.emplace_back("-");
    const std::string problem = contradiction(options);
    return problem.empty() ? options : wrong(problem);
}

} // namespace norvane
