#include "decode/caption.h"
#include "decode/replacement_chain.h"
#include "framework/failures.h"
#include "tests/support/plain_walk.h"

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

} // namespace

/// Any bytes as a line's hex text: the plain walk and the product must agree.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string_view hexText(reinterpret_cast<const char *>(data), size);
    const std::string product = captionOrFailure([&] {
        std::string captions = "before";
        norvane::appendCaption(captions, hexText);
        return captions.substr(6);
    });
    const std::string plain = captionOrFailure([&] { return norvane::plain::caption(hexText); });
    if (product != plain)
        std::abort();
    if (norvane::replaceCodeWords(hexText) != norvane::plain::replaceCodeWords(hexText))
        std::abort();
    return 0;
}
