#include "tests/support/generated.h"
#include "tests/support/plain_modes.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

TEST(Modes, AreThoseOfThePlainRoadOnGeneratedFiles) {
    GeneratedHexText generated(2);
    for (int round = 0; round < 300; ++round) {
        std::string bytes;
        for (int i = 0; i < 3; ++i)
            bytes += static_cast<char>(generated.below(256));
        bytes += generated.file();
        ASSERT_EQ(differenceOfModes(bytes), "") << bytes.substr(3);
    }
}

} // namespace
} // namespace norvane
