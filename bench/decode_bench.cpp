#include "bench/made_scc.h"
#include "decode/caption.h"
#include "decode/chain_table.h"
#include "framework/files/system_calls.h"
#include "framework/headless/headless_desktop.h"
#include "shell/window1.h"
#include "tests/support/plain_road.h"
#include "transcript/clean_up.h"
#include "transcript/layout.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <vector>

namespace norvane {
namespace {

/// Hex texts of a film, and how many bytes of an SCC file they stand for.
struct HexTexts {
    explicit HexTexts(std::size_t count) {
        constexpr std::size_t kTimecodeAndEnds = 16;
        for (std::size_t line = 0; line < count; ++line) {
            texts.push_back(made::hexText(made::Kind::film, line));
            sccBytes += texts.back().size() + kTimecodeAndEnds;
        }
    }
    std::vector<std::string> texts;
    std::size_t sccBytes = 0;
};

void count(benchmark::State &state, const HexTexts &lines) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(lines.sccBytes));
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(lines.texts.size()));
}

void captionsByPlainWalk(benchmark::State &state) {
    const HexTexts lines(100);
    for (auto _ : state) {
        for (const std::string &text : lines.texts)
            benchmark::DoNotOptimize(plain::caption(text));
    }
    count(state, lines);
}
BENCHMARK(captionsByPlainWalk)->Unit(benchmark::kMillisecond);

void captions(benchmark::State &state) {
    const HexTexts lines(10'000);
    std::string captions;
    for (auto _ : state) {
        captions.clear();
        for (const std::string &text : lines.texts)
            appendCaption(captions, text);
        benchmark::DoNotOptimize(captions);
    }
    count(state, lines);
}
BENCHMARK(captions)->Unit(benchmark::kMillisecond);

/// Lines that cannot be taken word by word: no blanks between the words.
void captionsWithoutBlanks(benchmark::State &state) {
    HexTexts lines(1000);
    for (std::string &text : lines.texts)
        std::erase(text, ' ');
    for (auto _ : state) {
        for (const std::string &text : lines.texts) {
            std::string caption;
            appendCaption(caption, text);
            benchmark::DoNotOptimize(caption);
        }
    }
    count(state, lines);
}
BENCHMARK(captionsWithoutBlanks)->Unit(benchmark::kMillisecond);

// Texts that could cost more than their length: each at a size and at four times that size.

void oneLine(benchmark::State &state, const std::string &piece) {
    std::string text;
    while (text.size() < static_cast<std::size_t>(state.range(0)))
        text += piece;
    for (auto _ : state) {
        std::string caption;
        appendCaption(caption, text);
        cleanTranscript(caption);
        benchmark::DoNotOptimize(caption);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
std::string everyKey() {
    std::string keys;
    for (const TableRow &row : replacementChain)
        keys.append(row.key).append(" ");
    return keys;
}

constexpr std::int64_t kMega = 1'000'000;
BENCHMARK_CAPTURE(oneLine, ordinaryWords, "9420 9470 c8e5 ecec ef80 ")->Arg(kMega)->Arg(4 * kMega);
BENCHMARK_CAPTURE(oneLine, wordsThatCross, "c8e5 4649 454c c480 ")->Arg(kMega)->Arg(4 * kMega);
BENCHMARK_CAPTURE(oneLine, allCodes, everyKey())->Arg(kMega)->Arg(4 * kMega);
BENCHMARK_CAPTURE(oneLine, bars, "|")->Arg(10'000)->Arg(40'000);
BENCHMARK_CAPTURE(oneLine, oneKey, "9420")->Arg(kMega)->Arg(4 * kMega);
BENCHMARK_CAPTURE(oneLine, keysMadeByDeletion, "949420209480ae9194ae31")
    ->Arg(kMega)
    ->Arg(4 * kMega);
BENCHMARK_CAPTURE(oneLine, beginningsOfKeys, "9")->Arg(kMega)->Arg(4 * kMega);
BENCHMARK_CAPTURE(oneLine, accents, "13b9ad")->Arg(kMega)->Arg(4 * kMega);

/// From a file to its transcript, neither of which has to last.
void fileToTranscript(benchmark::State &state) {
    HeadlessDesktop desktop;
    Window1 window;
    const std::string text = made::scc(made::Kind::film, 10'000'000);
    const std::filesystem::path inMemory = "/dev/shm";
    const std::filesystem::path folder =
        is_directory(inMemory) ? inMemory : std::filesystem::temp_directory_path();
    const std::string film = folder / "norvane-bench.scc";
    const std::string transcript = folder / "norvane-bench.txt";
    std::ofstream(film, std::ios::binary) << text;
    disk::systemCalls.fsync = {[](int) { return 0; }};
    for (auto _ : state) {
        desktop.answerFile(GetFolderItem(film));
        desktop.answerSave(GetFolderItem(transcript));
        window.importSCC();
    }
    disk::systemCalls = {};
    std::filesystem::remove(film);
    std::filesystem::remove(transcript);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(fileToTranscript)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace norvane
