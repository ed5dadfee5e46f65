#include "framework/headless/headless_desktop.h"
#include "framework/windows/guard.h"
#include "shell/window1.h"
#include "tests/support/plain_walk.h"
#include "transcript/clean_up.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace norvane {
namespace {

/// A file in memory, and a place to save at that forgets.
class InMemory : public FolderItem {
  public:
    explicit InMemory(std::string_view text) : FolderItem("/memory.scc"), text_(text) {}
    Ref<TextInputStream> OpenAsTextFile() const override {
        Bytes bytes(text_.size());
        std::memcpy(bytes.rest(), text_.data(), text_.size());
        bytes.fill(text_.size());
        return Ref(std::make_shared<TextInputStream>(std::move(bytes)));
    }
    Ref<TextOutputStream> CreateTextFile() const override {
        class Nowhere : public TextSink {
          public:
            void write(std::string_view /*bytes*/) override {}
            void commit() override {}
        };
        return Ref(std::make_shared<TextOutputStream>(std::make_unique<Nowhere>()));
    }

  private:
    std::string_view text_;
};

} // namespace
} // namespace norvane

/// Any bytes as a file, in all forms and with both clocks; and as a composed transcript.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace norvane;
    if (size == 0)
        return 0;
    const std::string_view text(reinterpret_cast<const char *>(data) + 1, size - 1);
    HeadlessDesktop desktop;
    Window1 window;
    window.RadioButton1.Value = (data[0] & 1U) != 0;
    window.ParagraphBox.Value = (data[0] & 2U) != 0;
    window.TimecodeBox.Value = (data[0] & 4U) != 0;
    const Ref<FolderItem> item{std::shared_ptr<FolderItem>(std::make_shared<InMemory>(text))};
    for (int run = 0; run < 2; ++run) { // the second may meet stale timecodes
        desktop.answerFile(item);
        desktop.answerSave(item);
        guarded([&] { window.importSCC(); });
    }
    std::string cleaned(text);
    cleanTranscript(cleaned);
    if (cleaned != plain::cleanTranscript(std::string(text)))
        std::abort();
    return 0;
}
