#include "explain/captions/film_decoder.h"

namespace norvane {

FilmDecoder::FilmDecoder(CaptionSink sink) : sink_(std::move(sink)) {}

void FilmDecoder::take(const SccLine &line) {
    if (line.refusal)
        return;
    const long start = line.timecode ? line.timecode->count() : nextFrame_;
    Moment moment{static_cast<std::int32_t>(start), static_cast<std::uint32_t>(line.number), 0};
    for (const SccWord &word : line.words) {
        if (!word.repeats && word.service != Service::none && !isText(word.service)) {
            auto &decoder = decoders_.at(channelOf(word.service));
            if (!decoder)
                decoder = std::make_unique<CaptionDecoder>(word.service, lastNumber_, sink_);
            decoder->take(*word.meaning, moment);
        }
        ++moment.frame;
        ++moment.word;
    }
    nextFrame_ = start + static_cast<long>(line.words.size());
}

void FilmDecoder::finish() {
    for (const auto &decoder : decoders_) {
        if (decoder)
            decoder->finish();
    }
}

} // namespace norvane
