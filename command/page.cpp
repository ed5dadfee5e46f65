#include "command/page.h"

#include "command/input.h"
#include "command/output.h"
#include "command/page_place.h"
#include "command/page_text.h"
#include "explain/reports/json.h"
#include "explain/reports/page_data.h"
#include "framework/files/disk.h"
#include "framework/text/text.h"
#include "transcript/layout.h"

#include <array>
#include <optional>
#include <unistd.h>

namespace norvane {

namespace {

constexpr std::string_view kProgram = "norvane-transcript " NORVANE_VERSION;
constexpr const char *kIndexName = "index.html";

/// The largest file that becomes a page: a day of captions has less, and no browser likes more.
constexpr std::size_t kLargest = std::size_t{4} << 20U;

/// Opens `path` as `input`. Never throws: what goes wrong with a film is its page.
PageData dataOf(const std::string &path, const std::string &shown, const Options &options,
                std::optional<Input> &input) {
    try {
        input.emplace(path, options);
        if (input->all(kLargest).size() > kLargest)
            throw Problem("is too large for a page.",
                          "Explain single lines with --explain FILE:LINE, or use --check.");
        return pageData(input->all(), shown, kProgram, options.clock);
    } catch (const Problem &problem) {
        return refusedPage(shown, kProgram, problem);
    } catch (const std::exception &failure) {
        return refusedPage(shown, kProgram, Problem(failure.what()));
    }
}

std::string nameOf(const std::string &path) {
    return path.substr(path.rfind('/') + 1);
}

/// Where pages go.
class Pages {
  public:
    explicit Pages(const Options &options)
        : force_(options.force || options.outputFolder.empty()),
          isPrivate_(options.outputFolder.empty()),
          folder_(isPrivate_ ? privatePageFolder() : options.outputFolder) {}

    /// What the page of a film is called.
    std::string nameFor(const std::string &path) const {
        if (isPrivate_)
            return privatePageName(absolutePath(path));
        const std::string name = baseNameOf(nameOf(path)) + ".html";
        return name == kIndexName ? "index.scc.html" : name;
    }

    std::string indexName(const std::vector<std::string> &paths) const {
        std::string all;
        for (const std::string &path : paths)
            all += absolutePath(path) + '\n';
        return isPrivate_ ? privatePageName(all + '/' + kIndexName) : kIndexName;
    }

    /// Writes a page, but not in the place of `input`, which may be null, and gives its path.
    std::string write(const std::string &name, const std::string &text,
                      const disk::InputFile *input) const {
        const std::string path = placeIn(folder_, name);
        writeFile(path, std::array<std::string_view, 1>{text}, input, force_,
                  isPrivate_ ? disk::Readers::userAlone : disk::Readers::byUmask);
        return absolutePath(path);
    }

  private:
    bool force_;
    bool isPrivate_;
    std::string folder_;
};

/// A film in the index.
std::string entryOf(const std::string &page, const std::string &shown, const PageData &data) {
    JsonWriter entry;
    entry.beginObject();
    entry.member("page", std::string_view(asAddress(page)));
    entry.member("file", std::string_view(shown));
    if (data.refused)
        entry.member("refused", std::string_view(data.refused->what()));
    entry.name("summary");
    return std::string(entry.bytes()) + data.summary + "}";
}

/// Makes the page of a film, and writes it or prints it. Gives its entry in the index. Throws.
std::string makePage(const std::string &file, const Options &options, const Pages *pages,
                     std::string &path, bool &allWell) {
    const std::string shown = shownName(nameOf(file), options);
    std::optional<Input> input;
    const PageData data = dataOf(file, shown, options, input);
    if (data.refused) {
        tell(shownName(file, options), *data.refused);
        allWell = false;
    }
    const std::string text = pageText(PageKind::film, shown, data.film);
    if (pages == nullptr) {
        disk::writeAll(STDOUT_FILENO, text, "standard output");
        return "";
    }
    const std::string name = pages->nameFor(file);
    path = pages->write(name, text, input ? &input->file() : nullptr);
    return entryOf(name, shown, data);
}

} // namespace

bool makePages(const Options &options) {
    const bool hasFolder = options.open || !options.outputFolder.empty();
    bool allWell = true;
    std::string path;
    const bool done = doAndTell(shownName(options.files.front(), options), [&] {
        const std::optional<Pages> pages = hasFolder ? std::optional<Pages>(options) : std::nullopt;
        std::string films;
        for (const std::string &file : options.files) {
            const bool isWritten = doAndTell(shownName(file, options), [&] {
                films += (films.empty() ? "" : ",") +
                         makePage(file, options, pages ? &*pages : nullptr, path, allWell);
            });
            allWell = allWell && isWritten;
        }
        if (pages && (options.files.size() > 1 || !options.outputFolder.empty()) && !films.empty())
            path = pages->write(pages->indexName(options.files),
                                pageText(PageKind::films, "Films", "[" + films + "]"), nullptr);
        if (options.open && !path.empty())
            openByDesktop(path);
    });
    return done && allWell;
}

} // namespace norvane
