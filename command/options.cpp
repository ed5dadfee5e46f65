#include "command/options.h"

namespace norvane {

namespace {

constexpr const char *kUsage =
    "Usage: norvane-transcript [OPTION]... FILE...\n"
    "Turns Scenarist Closed Caption files (.scc) into readable transcripts.\n"
    "\n"
    "  --form timecode|line|paragraph  how captions are laid out (timecode)\n"
    "  --clock unbuffered|scc          start times corrected for the buffer, or as the\n"
    "                                  file has them (unbuffered)\n"
    "  --output-dir DIR                write DIR/NAME.txt for each file, not standard output;\n"
    "                                  NAME is the file's name up to its first point\n"
    "  --force                         replace transcripts that exist already\n"
    "  --help                          print this and exit\n"
    "  --version                       print the version and exit\n"
    "\n"
    "Exit status: 0 when all went well, 1 when a file failed, 2 for wrong usage.\n";

Options wrong(const std::string &what) {
    Options options;
    options.answer = "norvane-transcript: " + what + "\nTry 'norvane-transcript --help'.\n";
    options.exitStatus = 2;
    return options;
}

Options answered(const std::string &text) {
    Options options;
    options.answer = text;
    return options;
}

} // namespace

Options readOptions(const std::vector<std::string> &arguments) {
    Options options;
    bool onlyFiles = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string &argument = arguments[i];
        if (onlyFiles || !argument.starts_with("-") || argument == "-") {
            options.files.push_back(argument);
            continue;
        }
        if (argument == "--help")
            return answered(kUsage);
        if (argument == "--version")
            return answered("norvane-transcript " NORVANE_VERSION "\n");
        if (argument == "--") {
            onlyFiles = true;
            continue;
        }
        if (argument == "--force") {
            options.force = true;
            continue;
        }
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        if (name != "--form" && name != "--clock" && name != "--output-dir")
            return wrong("unknown option '" + argument + "'");
        if (equals == std::string::npos && i + 1 == arguments.size())
            return wrong("option '" + name + "' needs a value");
        const std::string value =
            equals == std::string::npos ? arguments[++i] : argument.substr(equals + 1);
        if (name == "--form" && value != "timecode" && value != "line" && value != "paragraph")
            return wrong("'" + value + "' is no form; there are timecode, line and paragraph");
        if (name == "--clock" && value != "unbuffered" && value != "scc")
            return wrong("'" + value + "' is no clock; there are unbuffered and scc");
        if (value.empty())
            return wrong("option '" + name + "' needs a value");
        (name == "--form"    ? options.form
         : name == "--clock" ? options.clock
                             : options.outputFolder) = value;
    }
    return options.files.empty() ? wrong("no file was named") : options;
}

} // namespace norvane
