#include "explain/checks/check.h"
#include "explain/checks/film_transcript.h"
#include "explain/reports/check_report.h"
#include "explain/reports/film_report.h"
#include "explain/reports/page_data.h"
#include "explain/reports/report.h"
#include "framework/text/text.h"

#include <memory>
#include <new>

/// What the page calls. Whatever goes in or out is a Text; the page frees it. Where memory does not
/// suffice, nothing comes back.
namespace norvane {

#ifdef __wasm__
#define IMPORTED(name) __attribute__((import_module("page"), import_name(#name)))
#define EXPORTED(name) __attribute__((export_name(#name)))
#else // in the tests, which link it
#define IMPORTED(name)
#define EXPORTED(name)
#endif

/// Tells the page how much of a film has been gone through, from 0 to 1.
extern "C" IMPORTED(progress) void progress(double);

namespace {

struct Text {
    std::string bytes{};
    bool isProblem = false; // then `bytes` is {"text", "help", "line"}
};

/// Bytes of a film; its page data has some twenty times as many.
constexpr std::size_t kLargestShown = std::size_t{4} << 20U;

constexpr std::string_view kOtherWay = "paste its text";

std::string jsonOf(const Problem &problem) {
    JsonWriter json;
    json.beginObject();
    json.member("text", std::string_view(problem.what()));
    json.member("help", std::string_view(problem.help));
    json.member("line", problem.line);
    json.endObject();
    return std::string(json.bytes());
}

template <class Work>
Text *answer(Work work) {
    try {
        auto text = std::make_unique<Text>();
        try {
            text->bytes = work();
        } catch (const Problem &problem) {
            *text = {jsonOf(problem), true};
        }
        return text.release();
    } catch (const std::bad_alloc &) {
        return nullptr;
    } catch (const std::length_error &) {
        return nullptr;
    }
}

std::string transcriptOf(const std::string &name, std::string_view film, Form form, Clock clock) {
    constexpr std::size_t kStep = std::size_t{1} << 20U;
    FilmTranscript transcript(form, clock, film, {});
    LineReader lines(film);
    lines.nextNotEmpty(); // the header
    std::size_t left = film.size();
    for (auto line = lines.nextNotEmpty(); !line.empty(); line = lines.nextNotEmpty()) {
        transcript.add(line, lines.number());
        if (left - lines.rest().size() >= kStep) {
            left = lines.rest().size();
            progress(1 - static_cast<double>(left) / static_cast<double>(film.size()));
        }
    }
    const std::string body = transcript.take();
    const std::string heading = headingOf(baseNameOf(name));
    std::string file;
    for (const std::string_view piece : piecesOf(heading, body))
        file += piece;
    return file;
}

} // namespace

extern "C" {

EXPORTED(newText) Text *newText(std::size_t size) {
    return answer([size] { return std::string(size, '\0'); });
}

EXPORTED(deleteText) void deleteText(Text *text) {
    delete text;
}

EXPORTED(bytesOf) char *bytesOf(Text *text) {
    return text->bytes.data();
}

EXPORTED(sizeOf) std::size_t sizeOf(const Text *text) {
    return text->bytes.size();
}

EXPORTED(isProblem) bool isProblem(const Text *text) {
    return text->isProblem;
}

EXPORTED(isSccName) bool isSccNameText(const Text *name) {
    return isSccName(name->bytes);
}

/// The file that norvane-transcript --output-dir writes.
EXPORTED(transcript) Text *transcript(const Text *name, const Text *film, Form form, Clock clock) {
    return answer([&] {
        requireSccName(name->bytes, kOtherWay);
        return transcriptOf(name->bytes, film->bytes, form, clock);
    });
}

/// What the viewer shows; {"isTooLarge"} where that would be too much.
EXPORTED(page) Text *page(const Text *name, const Text *film, Clock clock) {
    return answer([&] {
        requireSccName(name->bytes, kOtherWay);
        if (film->bytes.size() > kLargestShown)
            return std::string(R"({"isTooLarge":true})");
        return pageData(film->bytes, printable(name->bytes), "Norvane " NORVANE_VERSION, clock)
            .film;
    });
}

/// What --explain --json prints.
EXPORTED(explain) Text *explain(const Text *name, const Text *film, Clock clock) {
    return answer([&] {
        requireSccName(name->bytes, kOtherWay);
        JsonWriter json;
        explainFilm(film->bytes, printable(name->bytes), {clock}, json);
        return std::string(json.bytes());
    });
}

/// What --check --json prints.
EXPORTED(check) Text *checkText(const Text *name, const Text *film, Clock /*clock*/) {
    return answer([&] {
        requireSccName(name->bytes, kOtherWay);
        JsonWriter json;
        for (const Finding &finding : check(film->bytes, CheckRules()).findings)
            add(json, printable(name->bytes), finding);
        return std::string(json.bytes());
    });
}

} // extern "C"

} // namespace norvane
