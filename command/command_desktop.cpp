#include "command/command_desktop.h"

#include <cstdio>
#include <unistd.h>

namespace norvane {

namespace {

class StandardOutput : public TextSink {
  public:
    void write(std::string_view bytes) override {
        disk::writeAll(STDOUT_FILENO, bytes, "standard output");
    }
    void commit() override {}
};

class StandardOutputItem : public FolderItem {
  public:
    StandardOutputItem() : FolderItem("/standard output") {}
    Ref<TextOutputStream> CreateTextFile() const override {
        return Ref(std::make_shared<TextOutputStream>(std::make_unique<StandardOutput>()));
    }
};

} // namespace

void printError(const std::string &text) {
    std::fputs(text.c_str(), stderr);
}

CommandDesktop::CommandDesktop(std::string file) : file_(std::move(file)) {}

CommandDesktop::~CommandDesktop() {
    clearProgress();
    if (!written_ && !told_)
        printError(file_ + ": cannot be read.\n");
}

void CommandDesktop::message(const std::string &text) {
    clearProgress();
    printError(file_ + ": " + text + "\n");
    told_ = true;
}

// A decode of one file ends by opening its transcript.
void CommandDesktop::launch(const std::string & /*path*/, bool /*activate*/) {
    written_ = true;
}

void CommandDesktop::followProgress(ProgressBar &bar) {
    if (isatty(STDERR_FILENO) != 0)
        bar.Value.shown = [this, &bar] { showProgress(bar); };
}

void CommandDesktop::showProgress(const ProgressBar &bar) {
    constexpr auto kLong = std::chrono::milliseconds(500);
    const int percent = static_cast<int>(100.0 * bar.Value / bar.Maximum);
    if (percent == shownPercent_ || std::chrono::steady_clock::now() - kStart < kLong)
        return;
    shownPercent_ = percent;
    printError("\r" + file_ + ": " + std::to_string(percent) + " %");
}

void CommandDesktop::clearProgress() {
    if (shownPercent_ >= 0)
        printError("\r\033[K");
    shownPercent_ = -1;
}

Ref<FolderItem> standardOutput() {
    return Ref<FolderItem>(std::make_shared<StandardOutputItem>());
}

} // namespace norvane
