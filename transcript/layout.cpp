#include "transcript/layout.h"

#include "framework/text/text.h"
#include "transcript/clean_up.h"

#include <algorithm>

// The clean-up runs block by block while the text is still in the cache. That gives the same as a
// pass over the whole text, since no clean-up reaches across the end of a line; a paragraph is one
// line, so it waits for the end.

namespace norvane {

void TranscriptBody::add(std::string_view timecode, std::string_view caption) {
    using std::string_view_literals::operator""sv;
    const auto put = [this](auto... pieces) { // with one look for room
        const std::size_t start = text_.size();
        text_.resize(start + (pieces.size() + ...));
        char *end = text_.data() + start;
        ((end = std::copy(pieces.begin(), pieces.end(), end)), ...);
    };
    if (form_ == Form::timecode)
        put("["sv, timecode, "]\t"sv, caption, EndOfLine, EndOfLine);
    else if (form_ == Form::line)
        put(caption, EndOfLine);
    else
        put(" "sv, caption);
    constexpr std::size_t kWarm = std::size_t{1} << 14U; // bytes, which the cache still holds
    if (form_ != Form::paragraph && text_.size() - clean_ >= kWarm) {
        cleanTranscript(text_, clean_);
        clean_ = text_.size();
    }
}

std::string TranscriptBody::take() {
    cleanTranscript(text_, clean_);
    return std::move(text_);
}

void correctComma(std::string &timecode) {
    if (const std::size_t comma = timecode.find(','); comma != std::string::npos)
        timecode[comma] = '.';
}

std::string composeTranscript(Form form, TextArray &captions, TextArray &timecodes) {
    cleanEntries(captions);
    constexpr std::size_t kMostBesideTexts = 7; // bytes of brackets, tab and ends of line
    std::string room;
    room.reserve(captions.byteCount() + timecodes.byteCount() + captions.size() * kMostBesideTexts);
    TranscriptBody body(form, std::move(room));
    for (std::size_t i = 0; i < captions.size(); ++i) {
        std::string timecode(timecodes[i]);
        correctComma(timecode);
        timecodes.set(i, timecode);
        body.add(timecode, captions[i]);
    }
    return body.take();
}

std::string headingOf(const std::string &name) {
    return "Transcripts of " + name;
}

TranscriptPieces piecesOf(std::string_view heading, std::string_view body) {
    return {heading, EndOfLine, EndOfLine, body, EndOfLine};
}

std::string baseNameOf(const std::string &fileName) {
    return fileName.substr(0, fileName.find('.'));
}

} // namespace norvane
