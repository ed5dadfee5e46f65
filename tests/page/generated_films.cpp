#include "tests/support/generated.h"

#include <cstdlib>
#include <fstream>
#include <string>

/// generated_films COUNT: writes g1.scc and so on into the folder that it runs in.
int main(int argc, char **argv) {
    const long count = argc == 2 ? std::strtol(argv[1], nullptr, 10) : 0;
    for (long number = 1; number <= count; ++number) {
        norvane::GeneratedHexText text(static_cast<unsigned>(number));
        std::ofstream("g" + std::to_string(number) + ".scc", std::ios::binary) << text.file();
    }
    return 0;
}
