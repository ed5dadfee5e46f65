#include "transcript/layout.h"

namespace norvane {

std::string layOut(Form form, const TextArray &captions, TextArray &timecodes) {
    std::string body;
    for (std::size_t i = 0; i < captions.size(); ++i) {
        if (timecodes[i].find(',') != std::string_view::npos)
            timecodes.set(i, Replace(timecodes[i], ",", "."));
        switch (form) {
        case Form::timecode:
            body.append("[").append(timecodes[i]).append("]\t").append(captions[i]);
            body.append(EndOfLine).append(EndOfLine);
            break;
        case Form::paragraph:
            body.append(" ").append(captions[i]);
            break;
        case Form::line:
            body.append(captions[i]).append(EndOfLine);
            break;
        }
    }
    return body;
}

} // namespace norvane
