#include "tests/support/plain_modes.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Any bytes as a file, in all modes and forms and with both clocks: they and the plain road must
/// agree.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string difference =
        norvane::differenceOfModes({reinterpret_cast<const char *>(data), size});
    if (!difference.empty()) {
        std::puts(difference.c_str());
        std::abort();
    }
    return 0;
}
