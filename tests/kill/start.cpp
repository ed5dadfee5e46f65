#include "framework/headless/headless_desktop.h"
#include "shell/app.h"
#include "shell/window1.h"

#include <chrono>
#include <cstdio>

/// Starts the program without a screen, with the preferences that it finds, and closes its window.
/// A preference file with the watch on thus runs one cycle. Prints how long that took;
/// messages go to standard error and make it exit with 1.
int main() {
    using namespace norvane;
    HeadlessDesktop desktop;
    const auto start = std::chrono::steady_clock::now();
    _EarlyStartup();
    Window1::the().Close();
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;

    std::printf("%.3f seconds\n", time.count());
    bool told = false;
    for (const std::string &seen : desktop.takeLog()) {
        if (seen.starts_with("message ")) {
            std::fprintf(stderr, "%s\n", seen.c_str());
            told = true;
        }
    }
    return told ? 1 : 0;
}
