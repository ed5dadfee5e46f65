#pragma once

#include "framework/files/disk.h"
#include "framework/headless/headless_desktop.h"

#include <chrono>
#include <string>

namespace norvane {

/// Writes to standard error at once. (The stream library would take longer to start than a short
/// file to decode.)
void printError(const std::string &text);

/// The desktop of one decode from a shell: messages go to standard error, and a progress line is
/// kept there while a long decode runs on a terminal.
class CommandDesktop : public HeadlessDesktop {
  public:
    /// `file` is what the user called the file.
    explicit CommandDesktop(std::string file);
    ~CommandDesktop() override;
    CommandDesktop(const CommandDesktop &) = delete;
    CommandDesktop &operator=(const CommandDesktop &) = delete;

    /// A transcript was written and nothing had to be told.
    bool succeeded() const { return written_ && !told_; }

    void followProgress(ProgressBar &bar);

    void message(const std::string &text) override;
    void launch(const std::string &path, bool activate) override;

  private:
    void showProgress(const ProgressBar &bar);
    void clearProgress();

    std::string file_;
    bool written_ = false;
    bool told_ = false;
    inline static const auto kStart = std::chrono::steady_clock::now(); // of the program
    int shownPercent_ = -1;
};

/// An item that stands for standard output: its text goes there as it is written.
Ref<FolderItem> standardOutput();

} // namespace norvane
