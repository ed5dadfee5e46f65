#include "tests/support/scenario.h"

#include "shell/app.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace norvane {

TemporaryFolder::TemporaryFolder(const std::string &where) {
    const auto parent =
        where.empty() ? std::filesystem::temp_directory_path() : std::filesystem::path(where);
    std::string pattern = (parent / "norvane-test-XXXXXX").string();
    path_ = std::string(mkdtemp(pattern.data())) + "/";
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void TemporaryFolder::write(const std::string &name, const std::string &text) const {
    std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
    std::ofstream(path(name), std::ios::binary) << text;
}

std::string TemporaryFolder::read(const std::string &name) const {
    std::ifstream file(path(name), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << name << " is not there";
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

Lines TemporaryFolder::tree() const {
    Lines names;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(path_)) {
        const std::string name = entry.path().string().substr(path_.size());
        names.push_back(entry.is_directory() ? name + "/" : name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

Scenario::Scenario() {
    setenv("XDG_CONFIG_HOME", preferences.path().c_str(), 1);
    _EarlyStartup();
}

Scenario::~Scenario() {
    closeWindow();
    EXPECT_EQ(desktop.problems(), Lines{});
}

void Scenario::decode(const std::string &name, const std::string &saveAs) {
    desktop.answerFile(folder.item(name));
    desktop.answerSave(saveAs.empty() ? HeadlessDesktop::cancel() : folder.item(saveAs));
    desktop.click(window().BevelButton1);
}

std::string Scenario::seen() {
    std::string text;
    for (const std::string &line : desktop.takeLog())
        text += line + "\n";
    return ReplaceAllB(text, folder.path(), "~/");
}

Lines Scenario::messages() {
    constexpr std::string_view kMessage = "message ";
    Lines messages;
    for (const std::string &seen : desktop.takeLog()) {
        if (seen.starts_with(kMessage))
            messages.push_back(seen.substr(kMessage.size()));
    }
    return messages;
}

std::string scene(const std::string &name) {
    std::ostringstream text;
    text << std::ifstream(NORVANE_SCENES + name + ".txt", std::ios::binary).rdbuf();
    return text.str();
}

std::string hiLine(const std::string &timecode) {
    return timecode + "\t9420 9420 94ae 94ae 9470 9470 c8e9 a180 942f 942f";
}

std::string hiTranscript(const std::string &fileName, const Lines &timecodes) {
    std::string text = "Transcripts of " + fileName + "\n\n";
    for (const std::string &timecode : timecodes)
        text += "[" + timecode + "]\t Hi! \n\n";
    return text + "\n";
}

std::string sccFile(const Lines &dataLines) {
    std::string text = "Scenarist_SCC V1.0\n";
    for (const std::string &line : dataLines)
        text += "\n" + line + "\n";
    return text;
}

} // namespace norvane
