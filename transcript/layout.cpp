#include "transcript/layout.h"

#include "framework/text/text.h"
#include "transcript/clean_up.h"

namespace norvane {

void TranscriptBody::add(std::string_view timecode, std::string_view caption) {
    if (form_ == Form::timecode)
        text_.append("[").append(timecode).append("]\t");
    else if (form_ == Form::paragraph)
        text_ += ' ';
    text_ += caption;
    if (form_ != Form::paragraph)
        text_ += EndOfLine;
    if (form_ == Form::timecode)
        text_ += EndOfLine;
}

std::string TranscriptBody::take() {
    cleanTranscript(text_);
    return std::move(text_);
}

void correctComma(std::string &timecode) {
    const std::size_t comma = timecode.find(',');
    if (comma != std::string::npos)
        timecode[comma] = '.';
}

std::string composeTranscript(Form form, TextArray &captions, TextArray &timecodes) {
    cleanEntries(captions);
    constexpr std::size_t kMostBesideTexts = 7; // bytes of brackets, tab and ends of line
    TranscriptBody body(form, captions.byteCount() + timecodes.byteCount() +
                                  captions.size() * kMostBesideTexts);
    std::string timecode;
    for (std::size_t i = 0; i < captions.size(); ++i) {
        timecode = timecodes[i];
        correctComma(timecode);
        timecodes.set(i, timecode);
        body.add(timecode, captions[i]);
    }
    return body.take();
}

std::string headingOf(const std::string &name) {
    return "Transcripts of " + name;
}

std::string baseNameOf(const std::string &fileName) {
    return fileName.substr(0, fileName.find('.'));
}

} // namespace norvane
