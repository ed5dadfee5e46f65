#include "framework/headless/headless_desktop.h"
#include "shell/window1.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>

/// Any bytes as the preference file of a start and an end of the program. Whatever comes of it is
/// saved, and a second start finds the program in the same state.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace norvane;
    static const std::string folder = [] {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "norvane-fuzz-XXXXXX").string();
        setenv("XDG_CONFIG_HOME", mkdtemp(pattern.data()), 1);
        return pattern;
    }();
    // Without separators, no line names a folder: a watch that is on would work on it in earnest.
    std::string text(reinterpret_cast<const char *>(data), size);
    std::replace(text.begin(), text.end(), '/', '_');
    std::ofstream(folder + "/com.bellwick.norvane.prefs", std::ios::binary) << text;
    HeadlessDesktop desktop;
    std::string interval[2];
    for (std::string &minutes : interval) {
        Window1 &window = Window1::the();
        minutes = window.timerText.Text;
        window.CheckBox1.Value = false; // the watch of a second start would run a cycle
        window.Close();
    }
    if (interval[0] != interval[1])
        std::abort();
    return 0;
}
