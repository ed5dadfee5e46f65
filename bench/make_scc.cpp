#include "bench/made_scc.h"

#include <cstdlib>
#include <iostream>
#include <string_view>

/// make_scc film|random BYTES: an SCC file of at least that size, on standard output.
int main(int argc, char **argv) {
    using namespace norvane;
    const std::string_view kind = argc == 3 ? argv[1] : "";
    if (kind != "film" && kind != "random")
        return 2;
    std::cout << made::scc(kind == "film" ? made::Kind::film : made::Kind::randomWords,
                           std::strtoull(argv[2], nullptr, 10));
    return std::cout.flush() ? 0 : 1;
}
