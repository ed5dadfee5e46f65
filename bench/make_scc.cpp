#include "bench/ordinary_scc.h"

#include <cstdlib>
#include <iostream>

/// make_scc BYTES: an ordinary SCC file of at least that size, on standard output.
int main(int argc, char **argv) {
    if (argc != 2)
        return 2;
    std::cout << norvane::ordinaryScc(std::strtoull(argv[1], nullptr, 10));
    return std::cout.flush() ? 0 : 1;
}
