#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct Run {
    double seconds = 0;
    double processorSeconds = 0;
    long peakKiB = 0;
    bool succeeded = false;
};

/// Runs a command of the shell, which gives way to it, with a new file `out` as its standard
/// output. Removing the one of the run before is not part of the time.
Run timed(const std::string &command, const char *out) {
    unlink(out);
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        dup2(open(out, O_WRONLY | O_CREAT | O_EXCL, 0600), STDOUT_FILENO);
        execl("/bin/sh", "sh", "-c", ("exec " + command).c_str(), nullptr);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const std::chrono::duration<double> duration = std::chrono::steady_clock::now() - start;
    const auto secondsOf = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return {duration.count(), secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime),
            usage.ru_maxrss, WIFEXITED(status) && WEXITSTATUS(status) == 0};
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

/// compare RUNS OUT COMMAND BASE: runs both in turn and prints "WALL PROCESSOR PEAK": the medians
/// of COMMAND's times over BASE's of the same turn, and COMMAND's peak memory in MiB. Fails when
/// one of them fails.
int main(int argc, char **argv) {
    const int runs = argc == 5 ? std::atoi(argv[1]) : 0;
    if (runs <= 0)
        return 2;
    std::vector<double> wall;
    std::vector<double> processor;
    long peakKiB = 0;
    for (int run = -1; run < runs; ++run) { // the first warms up
        const Run command = timed(argv[3], argv[2]);
        const Run base = timed(argv[4], argv[2]);
        if (!command.succeeded || !base.succeeded)
            return 1;
        if (run < 0)
            continue;
        wall.push_back(command.seconds / base.seconds);
        processor.push_back(command.processorSeconds / base.processorSeconds);
        peakKiB = std::max(peakKiB, command.peakKiB);
    }
    constexpr double kKiBPerMiB = 1024;
    std::printf("%.2f %.2f %.1f\n", median(wall), median(processor),
                static_cast<double>(peakKiB) / kKiBPerMiB);
    return 0;
}
