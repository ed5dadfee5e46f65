#include "decode/caption.h"
#include "decode/replacement_chain.h"
#include "explain/checks/check.h"
#include "explain/reports/check_report.h"
#include "explain/reports/report.h"
#include "framework/text/failures.h"
#include "tests/support/film.h"
#include "tests/support/plain_road.h"
#include "transcript/layout.h"

#include <cstdint>
#include <cstdlib>

namespace {

template <class Decode>
std::string captionOrFailure(Decode decode) {
    try {
        return decode();
    } catch (const norvane::OutOfBoundsException &) {
        return "no pair";
    }
}

void compare(std::string_view hexText) {
    const std::string product = captionOrFailure([&] {
        std::string captions = "before";
        norvane::appendCaption(captions, hexText);
        return captions.substr(6);
    });
    const std::string plain = captionOrFailure([&] { return norvane::plain::caption(hexText); });
    if (product != plain ||
        norvane::replaceCodeWords(hexText) != norvane::plain::replaceCodeWords(hexText))
        std::abort();
}

/// Any bytes as a file: each line's explanation has the line's entry, and all of it can be told.
void explainAll(const std::string &text) {
    using namespace norvane;
    TextReport told;
    JsonWriter json;
    FindingKinds kinds = FindingKinds().set();
    kinds.reset(static_cast<std::size_t>(FindingKind::digits)); // explain looks for these two
    kinds.reset(static_cast<std::size_t>(FindingKind::altered));
    const std::vector<Finding> findings = check(text, kinds);
    for (const Finding &finding : findings) {
        add(told, "", finding);
        add(json, "", finding);
    }
    Explainer explainer(Clock::scc, findings);
    const FilmCaptions captions = captionsOf(text);
    SccReader reader(text);
    while (const SccLine *line = reader.next()) {
        const Explanation &explanation = explainer.explain(*line);
        add(told, "", explanation, captions, true);
        add(json, "", explanation, captions, true);
        if (line->refusal)
            continue;
        const std::string entry = captionOrFailure([&] {
            TextArray timecodes;
            TextArray captions;
            appendEntry(line->data, Clock::scc, timecodes, captions);
            return composeTranscript(Form::line, captions, timecodes);
        });
        if (entry != (explanation.entry ? std::string(*explanation.entry) + "\n" : "no pair"))
            std::abort();
    }
}

} // namespace

/// Any bytes as a line's hex text, and as the bytes that its words stand for: the plain walk and
/// the product must agree.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string text(reinterpret_cast<const char *>(data), size);
    compare(text);
    explainAll(text);
    std::string words;
    for (std::size_t i = 0; i < size; ++i) {
        words += norvane::kHexDigits[data[i] / 16];
        words += norvane::kHexDigits[data[i] % 16];
        if (i % 2 == 1)
            words += ' ';
    }
    compare(words);
    explainAll("\n00:00:00:00\t9420\n00:00:00;02\t" + words);
    return 0;
}
