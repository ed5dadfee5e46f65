#include "command/options.h"

#include "command/suggestion.h"
#include "framework/text/text.h"

#include <algorithm>
#include <getopt.h>
#include <optional>

namespace norvane {

namespace {

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
            return "unknown kind '" + printable(name) + "'" + suggestion(name, kFindingNames);
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
        return "unknown limit '" + printable(name) + "'" + suggestion(name, names);
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
    const std::string problem = conflictIn(options);
    return problem.empty() ? options : wrong(problem);
}

} // namespace norvane
