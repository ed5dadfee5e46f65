#include "transcript/layout.h"

#include "framework/text/text.h"
#include "transcript/clean_up.h"

namespace norvane {

std::string layOut(Form form, const TextArray &captions, TextArray &timecodes) {
    constexpr std::size_t kMostBesideTexts = 7; // bytes of brackets, tab and ends of line
    std::string body;
    body.reserve(captions.byteCount() + timecodes.byteCount() + captions.size() * kMostBesideTexts);
    for (std::size_t i = 0; i < captions.size(); ++i) {
        if (timecodes[i].find(',') != std::string_view::npos)
            timecodes.set(i, Replace(timecodes[i], ",", "."));
        switch (form) {
        case Form::timecode:
            body += '[';
            body.append(timecodes[i])
                .append("]\t")
                .append(captions[i])
                .append(EndOfLine)
                .append(EndOfLine);
            break;
        case Form::paragraph:
            body += ' ';
            body += captions[i];
            break;
        case Form::line:
            body.append(captions[i]).append(EndOfLine);
            break;
        }
    }
    return body;
}

std::string composeTranscript(Form form, TextArray &captions, TextArray &timecodes) {
    cleanEntries(captions);
    std::string body = layOut(form, captions, timecodes);
    cleanTranscript(body);
    return body;
}

std::string headingOf(const std::string &name) {
    return "Transcripts of " + name;
}

std::string baseNameOf(const std::string &fileName) {
    return fileName.substr(0, fileName.find('.'));
}

} // namespace norvane
