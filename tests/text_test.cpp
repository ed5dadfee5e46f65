#include "decode/data_line.h"
#include "framework/files/text_streams.h"
#include "framework/text/c_locale_numbers.h"
#include "framework/text/reg_ex.h"
#include "framework/text/text.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <vector>

namespace norvane {
namespace {

using Pieces = std::vector<std::string>;

Pieces piecesOf(const TextArray &array) {
    Pieces pieces;
    for (std::size_t i = 0; i < array.size(); ++i)
        pieces.emplace_back(array[i]);
    return pieces;
}

TEST(Text, NamesInMessages) {
    EXPECT_EQ(inQuotes("\x01\x1F a\n~\x7F\xC2\x80\xC2\x9F\xC2\xA0é\x80\x9F\xA0\xFF"),
              "“?? a?~???\xC2\xA0é??\xA0\xFF”");
    const std::string forty(40, '\x1B');
    EXPECT_EQ(inQuotes("é" + forty), "“é" + std::string(40, '?') + "”");
    EXPECT_EQ(startInQuotes(forty), "“" + std::string(40, '?') + "”");
    EXPECT_EQ(startInQuotes("é" + forty), "“é" + std::string(39, '?') + "…”");
}

TEST(Text, ValReadsTheLeadingNumber) {
    const double infinite = std::numeric_limits<double>::infinity();
    // clang-format off
    const std::pair<const char *, double> rows[] = {
        {"5.", 5}, {".5", 0.5}, {"1e", 1}, {"-3", -3}, {"+3", 3}, {"12ab", 12}, {"1.5.7", 1.5},
        {"1,5", 1}, {"2e3x", 2000}, {"1e400", infinite}, {"-1e400", -infinite},
        {"59.96667", 59.96667}, {"1e-05", 1e-5}, {"123456789012345", 123456789012345.0},
        {"0.1234567890123456789", 0.1234567890123456789}, {"1e99999999999999999999", infinite}};
    // clang-format on
    for (const auto &[text, value] : rows) {
        EXPECT_EQ(Val(text), value) << text;
        const bool isSigned = text[0] == '-' || text[0] == '+';
        EXPECT_EQ(c_locale::leadingNumber(text + isSigned), std::abs(value)) << text;
    }
    EXPECT_EQ(c_locale::leadingNumber("0x10"), 0);
    for (const char *zero : {"", "abc", " 5", "inf", "nan", "0x10", "-", ".", "1e-400", "0-0.01",
                             "1e-99999999999999999999"})
        EXPECT_EQ(Val(zero), 0) << zero;
    const std::string zeros(400, '0');
    EXPECT_EQ(Val("1" + zeros), infinite);
    EXPECT_EQ(Val("0." + zeros + "1"), 0);
    EXPECT_EQ(Val("1" + zeros + "e-400"), 1);
}

TEST(Text, StrHasSevenSignificantDigits) {
    // clang-format off
    const std::pair<double, const char *> rows[] = {
        {0, "0"}, {60, "60"}, {3723.5, "3723.5"}, {59.0 + 29.0 / 30, "59.96667"},
        {36000 + 1.0 / 30, "36000.03"}, {3599.9999 / 60, "60"}, {9999999, "9999999"},
        {9999999.5, "1e+07"}, {12345678, "1.234568e+07"}, {0.0001, "0.0001"}, {0.00001, "1e-05"},
        {-0.01, "-0.01"}, {1e300, "1e+300"}, {std::numeric_limits<double>::infinity(), "inf"}};
    // clang-format on
    for (const auto &[value, text] : rows) {
        EXPECT_EQ(Str(value), text);
        EXPECT_EQ(c_locale::general(value, 7), text);
    }
}

TEST(Text, FormatRoundsAndPads) {
    EXPECT_EQ(Format(5, "0"), "5");
    EXPECT_EQ(Format(5, "00"), "05");
    EXPECT_EQ(Format(100, "00"), "100");
    EXPECT_EQ(Format(1.326667, "00.00"), "01.33");
    EXPECT_EQ(Format(59.996, "00.00"), "60.00");
    EXPECT_EQ(Format(0, "00.00"), "00.00");
    EXPECT_EQ(Format(1e20, "0"), "100000000000000000000");
    EXPECT_EQ(Format(-5.5, "00.00"), "-05.50");
    EXPECT_EQ(c_locale::fixed(59.996, 2), "60.00");
}

TEST(Text, ReplacementsIgnoreCaseButForTheByteForm) {
    EXPECT_EQ(ReplaceAll("94AE94ae", "94ae", "x"), "xx");
    EXPECT_EQ(ReplaceAll("|||", "||", "| "), "| |");
    EXPECT_EQ(ReplaceAll("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(ReplaceAllB("Å-å-", "å-", "å"), "Å-å");
    EXPECT_EQ(Replace("xAxa", "a", ""), "xxa");
    EXPECT_EQ(Replace("abc", "", "x"), "abc");
    EXPECT_EQ(ReplaceAll("É", "é", "e"), "É"); // case is ASCII's
    EXPECT_TRUE(equal("TRUE", "true"));
    EXPECT_FALSE(equal("true", "true "));
}

TEST(Text, CharactersAreCodePointsOrStrayBytes) {
    EXPECT_EQ(Len("♪ é"), 3U);
    EXPECT_EQ(Len("\xFF\xC3\x28\xE2\x99"), 5U);
    EXPECT_EQ(Len("\xC0\x80\xED\xA0\x80\xF4\x90\x80\x80"),
              9U); // overlong, surrogate, beyond the last
    EXPECT_EQ(Len("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF\xEE\x80\x80\xED\x9F\xBF\xE0\xA0\x80"),
              5U); // next to those
    EXPECT_EQ(piecesOf(Split("aé\xFF", "")), (Pieces{"a", "é", "\xFF"}));
    EXPECT_EQ(piecesOf(Split("", "")), Pieces{});
    EXPECT_EQ(piecesOf(Split("a:b::", ":")), (Pieces{"a", "b", "", ""}));
    EXPECT_EQ(piecesOf(Split("", ":")), Pieces{""});
}

TEST(Text, ArraysKeepTheirBounds) {
    TextArray array;
    EXPECT_THROW(array[0], OutOfBoundsException);
    array.Append("short");
    array.Append("other");
    array.set(0, "something longer");
    array.set(1, "");
    EXPECT_EQ(piecesOf(array), (Pieces{"something longer", ""}));
    try {
        (void)array[2];
        FAIL();
    } catch (const OutOfBoundsException &failure) {
        EXPECT_STREQ(failure.what(), "entry 3 is missing from a list of 2.");
    }
    EXPECT_THROW(array.set(2, ""), OutOfBoundsException);
}

TEST(Text, NamesAndLinesAreSearchedForPatterns) {
    const std::pair<RegEx, const char *> found[] = {
        {{"B."}, "aab\n"}, {{"[^ *|]\\d\\["}, "*0[é9[x"}, {{"ß"}, "ß"}, {{""}, ""}};
    for (const auto &[pattern, text] : found)
        EXPECT_TRUE(pattern.Search(text)) << pattern.SearchPattern;
    const std::pair<RegEx, const char *> missed[] = {
        {{"b."}, "aab"}, {{"[^Ab é]"}, "a Bé"}, {{"\\d"}, "d٣"}, {{"ß"}, "\xC3"}};
    for (const auto &[pattern, text] : missed)
        EXPECT_FALSE(pattern.Search(text)) << pattern.SearchPattern;
    for (const char *name : {"a.SCC.txt", "xscc", "\nscc", "sccscc"})
        EXPECT_TRUE(isSccName(name)) << name;
    for (const char *name : {"scc", "file.txt", ""})
        EXPECT_FALSE(isSccName(name)) << name;
    const std::pair<const char *, std::optional<Refusal>> rows[] = {
        {"ab12:\t", {}},
        {"\t9:09:", {}},
        {"1:2:\t", Refusal::noTimecode},
        {"1/:2;:\t", Refusal::noTimecode},
        {"12", Refusal::noTimecode},
        {"12: 9420", Refusal::noTab}};
    for (const auto &[line, refusal] : rows) {
        const auto apart = takeApart(line);
        const Refusal *refused = std::get_if<Refusal>(&apart);
        EXPECT_EQ(refused == nullptr ? std::nullopt : std::optional(*refused), refusal) << line;
    }
    const auto line = std::get<DataLine>(takeApart("00:1\t94\t20"));
    EXPECT_EQ(line.timecode, "00:1");
    EXPECT_EQ(line.hexText, "94");
}

TEST(Text, LinesEndInAnyWay) {
    const std::string_view text = "a\r\n\r\nb\rc\n\rd\n\ne";
    Bytes bytes(text.size());
    std::copy(text.begin(), text.end(), bytes.rest());
    bytes.fill(text.size());
    TextInputStream stream(std::move(bytes));
    Pieces lines;
    while (!stream.EndOfFile())
        lines.emplace_back(stream.ReadLine());
    EXPECT_EQ(lines, (Pieces{"a", "", "b", "c", "", "d", "", "e"}));
    EXPECT_EQ(stream.ReadLine(), "");
}

} // namespace
} // namespace norvane
