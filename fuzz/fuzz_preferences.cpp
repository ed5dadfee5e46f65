#include "framework/headless/description.h"
#include "tests/support/scenario.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

/// Any bytes as the preference file of a start and an end of the program. Whatever comes of it is
/// saved, and a second start shows the same window.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace norvane;
    static const TemporaryFolder folder;
    setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
    // Without separators, no line names a folder: a watch that is on would work on it in earnest.
    std::string text(reinterpret_cast<const char *>(data), size);
    std::replace(text.begin(), text.end(), '/', '_');
    folder.write("com.bellwick.norvane.prefs", text);
    const HeadlessDesktop desktop;
    std::string first = describe(Window1::the());
    Window1::the().Close();
    if (first != describe(Window1::the()))
        std::abort();
    Window1::the().Close();
    return 0;
}
