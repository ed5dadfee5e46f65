#include <cstdio>
#include <cstdlib>

/// getline_copy FILE: the file on standard output, copied line by line: the yardstick for whole
/// runs.
int main(int argc, char **argv) {
    std::FILE *file = argc == 2 ? std::fopen(argv[1], "rb") : nullptr;
    if (file == nullptr)
        return 2;
    char *line = nullptr;
    std::size_t room = 0;
    for (ssize_t size = getline(&line, &room, file); size > 0; size = getline(&line, &room, file))
        std::fwrite(line, 1, static_cast<std::size_t>(size), stdout);
    std::free(line);
    std::fclose(file);
    return std::fflush(stdout) == 0 ? 0 : 1;
}
