#include "placeholders/engine.h"

#include <gtest/gtest.h>

#include "engine_test_support.h"

namespace tarnwick {
namespace {

using testing::EngineFixture;

TEST(EngineTest, TextsWithoutTokens) {
  EngineFixture f;
  EXPECT_EQ(f.Expand(""), "");
  EXPECT_EQ(f.Expand("abc"), "abc");
  EXPECT_EQ(f.Expand("{{unknown}}x{{"), "{{unknown}}x{{");
  // Kept: the catalogue offers this one, the engine does not know it.
  EXPECT_EQ(f.Expand("{{mm-dd-yyyy}}"), "{{mm-dd-yyyy}}");
  EXPECT_TRUE(f.log.lines.empty());
}

TEST(EngineTest, TokensMatchInAnyCaseAndEveryOccurrence) {
  EngineFixture f;
  EXPECT_EQ(f.Expand("{{Yyyy}}-{{YYYY}}"), "2004-2004");
  EXPECT_EQ(f.Expand("a{{-}}b{{SEPARATOR}}"), "ab");
  f.context.numbering.limiter = "_";
  EXPECT_EQ(f.Expand("a{{separator}}b"), "a_b");
}

TEST(EngineTest, CasingActsOnWhatStandsBeforeItInTheSequence) {
  EngineFixture f;
  EXPECT_EQ(f.Expand("{{UPPERCASING}}abc{{yyyy}}"), "ABC2004");
  EXPECT_EQ(f.Expand("{{uppercasing}}m\xC3\xBCller"), "M\xC3\x9CLLER");
  // Later tokens survive the casing and still expand: their tests ignore case.
  EXPECT_EQ(f.Expand("{{uppercasing}}x{{hollowmere}}"), "XAster + Bryony + Clover + Fennel");
  EXPECT_EQ(f.Expand("{{lowercasing}}ABC{{fileinfo_type}}"), "abcText document");
  EXPECT_EQ(f.Expand("{{firstcharuppercasing}}"), "{{firstcharuppercasing}}");
  EXPECT_EQ(f.Expand("{{firstcharuppercasing}}abc"), "Abc");
  EXPECT_EQ(f.Expand("a{{space}}b"), "a b");
}

TEST(EngineTest, ATokenOnlyExpandsWhenTheExpressionHoldsIt) {
  EngineFixture f;
  f.context.row.type_text = "{{yyyy}}";
  // The value holds a token the expression does not: it stays.
  EXPECT_EQ(f.Expand("{{fileinfo_type}}"), "{{yyyy}}");
}

TEST(EngineTest, FileDateTokens) {
  EngineFixture f;
  EXPECT_EQ(f.Expand("{{yyyy.mm.dd}}|{{yyyy.dd.mm}}|{{dd-mm-yyyy}}|{{mm.yyyy}}"),
            "2004.03.08|2004.08.03|08-03-2004|03.2004");
  EXPECT_EQ(f.Expand("{{hh.mm}} {{mm}} {{hh-mm-ss}} {{ss}} {{hh}}"), "10.15 03 10-15-05 05 10");
  EXPECT_EQ(f.Expand("{{ww}}", "01.01.2004 00:00:00"), "1");
  EXPECT_EQ(f.Expand("{{ww}}", "08.03.2004"), "11");
  EXPECT_EQ(f.Expand("{{quarter}} {{quarter}}", "15.11.2004"), "4 4");
  EXPECT_EQ(f.Expand("{{mm_text}}"), "March");
  f.SetOption("DateFormat", "mm/dd/yyyy");
  EXPECT_EQ(f.Expand("{{dd}}.{{mm}}", "03/08/2004 10:15:05"), "08.03");
}

TEST(EngineTest, ClockTokens) {
  EngineFixture f;
  f.clock.Set({2023, 11, 24, 23, 59, 58});
  EXPECT_EQ(f.Expand("{{cdate.}} {{cdate-}} {{cdate_yyyy}}{{cdate_mm}}{{cdate_dd}}"),
            "24.11.2023 24-11-2023 20231124");
  EXPECT_EQ(f.Expand("{{ctime-}} {{ctime.}} {{ctime_hh}}:{{ctime_ss}}"), "23-59-58 23.59.58 23:58");
  // Kept: "mm" alone is a month, and a time alone lies in December 1899.
  EXPECT_EQ(f.Expand("{{ctime_mm}}"), "12");
  f.clock.Set({2023, 11, 24, 7, 59, 58});
  EXPECT_EQ(f.Expand("{{ctime_mm}}"), "12");
  EXPECT_EQ(f.Expand("{{cdate_quarter}} {{cdate_mm_text}}"), "4 November");
  EXPECT_FALSE(f.Expand("{{cdate_dd_text}}").empty());
}

TEST(EngineTest, DateTokensOnATextThatIsNoDate) {
  EngineFixture f;
  // The format tokens hand the text through; the name tokens fail and stay.
  EXPECT_EQ(f.Expand("{{yyyy}}|{{mm_text}}|{{dd_text}}|{{count}}", "no date"),
            "no date|{{mm_text}}|{{dd_text}}|1");
  ASSERT_FALSE(f.log.lines.empty());
  EXPECT_EQ(f.log.lines[0].first, "Converting placeholders failed");
  EXPECT_EQ(f.log.lines[0].second, "!13: Type mismatch");
}

TEST(EngineTest, CounterTokens) {
  EngineFixture f;
  f.context.numbering = {"", "001", "1", 1500};
  f.context.current_count = 7;
  EXPECT_EQ(f.Expand("{{count}}"), "007");
  f.context.current_count = -3;
  EXPECT_EQ(f.Expand("{{count}}"), "003");
  f.context.numbering.limiter = "_";
  f.context.current_count = 693;
  EXPECT_EQ(f.Expand("{{count2hexadecimal}}"), "2B5_");
  f.context.current_count = 255;
  EXPECT_EQ(f.Expand("{{count2octal}}{{count2binary}}"), "377_11111111_");
  f.context.current_count = 15;
  EXPECT_EQ(f.Expand("{{count2roman}}{{countDynamic}}"), "XV_0015_");
  // Kept: a hexadecimal text in exponent form reads as a number.
  f.context.current_count = 0x1E5;
  EXPECT_EQ(f.Expand("{{count2hexadecimal}}"), "100000_");
}

TEST(EngineTest, LetterCountersActFromTheSecondPass) {
  EngineFixture f;
  std::vector<std::string> names;
  for (int count = 1; count <= 3; ++count) {
    f.context.current_count = count;
    names.push_back(f.Expand("{{count2char}}"));
  }
  EXPECT_EQ(names, (std::vector<std::string>{"A", "B", "C"}));

  EngineFixture g;
  names.clear();
  for (int count = 1; count <= 3; ++count) {
    g.context.current_count = count;
    names.push_back(g.Expand("{{count2char}}{{yyyy}}").substr(0, 1));
  }
  // Three passes, two steps each; below 2 the counter stays at its start.
  EXPECT_EQ(names, (std::vector<std::string>{"A", "C", "E"}));
}

TEST(EngineTest, PassCountFollowsEveryOpeningBrace) {
  EngineFixture f;
  f.context.current_count = 1;
  // One "{{" of no token still makes a second pass, so the counter steps.
  EXPECT_EQ(f.Expand("{{count2alphanumeric}}"), "A0");
  f.context.current_count = 2;
  EXPECT_EQ(f.Expand("{{count2alphanumeric}}{{"), "A2{{");
}

// A clock whose second counts its readings.
class CountingClock : public Clock {
 public:
  vb::DateTime Now() const override { return {2004, 3, 8, 10, 15, reads++}; }
  double Timer() const override { return 0; }
  mutable int reads = 0;
};

TEST(EngineTest, TheLastPassDecidesAndEarlierOnesRunOnlyForTheirEffects) {
  EngineFixture f;
  CountingClock clock;
  f.context.clock = &clock;
  int& reads = clock.reads;
  const std::string one_pass = ConvertExpression(f.context, "{{ctime_ss}}", "", "");
  const int reads_per_pass = reads;
  reads = 0;
  // Two "{{" make three passes, but a clock token leaves nothing behind in
  // the passes before the last: the text is one pass's reading.
  const std::string text = f.Expand("{{ctime_ss}}{{");
  EXPECT_EQ(reads, reads_per_pass);
  EXPECT_EQ(text, one_pass + "{{");
  // A letter counter beside it makes every pass run: it steps from pass to pass.
  reads = 0;
  f.Expand("{{ctime_ss}}{{count2char}}");
  EXPECT_EQ(reads, 3 * reads_per_pass);
}

TEST(EngineTest, PathAndFileTokens) {
  EngineFixture f;
  EXPECT_EQ(f.Expand("{{parentfolder}}"), "Holiday");
  EXPECT_EQ(f.Expand("abc{{fileinfo_extension}}def"), "txt");
  EXPECT_EQ(f.Expand("[{{fileinfo_companyname}}]"), "[]");
  EXPECT_EQ(f.Expand("{{pic_pixelwidth}}x"), "x");
  EXPECT_EQ(f.Expand("{{mediainfo}}"), "$$$");
  f.dir().WriteFile("file.txt", std::string("GIF89a\x18\x00\x10\x00", 10));
  EXPECT_EQ(f.Expand("{{mediainfo}}"), "24 x 16 Pixel");
  EXPECT_EQ(f.Expand("{{pic_pixelwidth}}x{{pic_pixelheight}}"), "24x16");
  EXPECT_FALSE(f.Expand("{{logged_on_username}}").empty());
  EXPECT_FALSE(f.Expand("{{computername}}").empty());
  EXPECT_FALSE(f.Expand("{{driveFilesystem}}").empty());
}

TEST(EngineTest, ParentFolderCountsFromTheRoot) {
  EngineFixture f;
  EXPECT_EQ(ConvertExpressionMultiple(f.context, "{{ParentFolder[1]}}", "", "/a/b/c.txt"), "a");
  EXPECT_EQ(ConvertExpressionMultiple(f.context, "x{{ParentFolder[3]}}y", "", "/a/b/c.txt"), "xy");
  EXPECT_TRUE(f.log.lines.empty());
  EXPECT_EQ(ConvertExpressionMultiple(f.context, "{{ParentFolder[9]}}{{yyyy}}", "08.03.2004",
                                      "/a/b/c.txt"),
            "{{ParentFolder[9]}}2004");
  ASSERT_EQ(f.log.lines.size(), 3u);  // one line for each of the three passes
  EXPECT_EQ(f.log.lines[0].second, "!9: Subscript out of range");
}

TEST(EngineTest, RegularExpressionToken) {
  EngineFixture f;
  f.context.row.name = "x";
  EXPECT_EQ(f.Expand("a1b2{{RegEx[[0-9]###]}}"), "a#b#");
  EXPECT_EQ(f.Expand("John Smith{{RegEx[(\\w+) (\\w+)##$2 $1]}}"), "Smith John");
  EXPECT_EQ(f.Expand("ABCabc{{RegEx[abc##x]}}"), "ABCx");
  // The text before a match ($`) at every empty match: the name grows with
  // the square of its length (a fuzzing campaign found it; it is the regular
  // expression's meaning, not a fault).
  EXPECT_EQ(f.Expand("abcd{{RegEx[()##<$`>]}}"), "<>a<a>b<ab>c<abc>d<abcd>");
  f.SetOption("IgnoreRegExCasing", "1");
  EXPECT_EQ(f.Expand("ABCabc{{RegEx[abc##x]}}"), "xx");
  // Malformed arguments leave the whole token.
  EXPECT_EQ(f.Expand("q{{RegEx[a]}}"), "q{{RegEx[a]}}");
  EXPECT_EQ(f.Expand("q{{RegEx[a##b##c]}}"), "q{{RegEx[a##b##c]}}");
  EXPECT_EQ(f.Expand("q{{RegEx[##x]}}"), "xqx");
  EXPECT_TRUE(f.log.lines.empty());
  EXPECT_EQ(f.Expand("q{{RegEx[(##x]}}{{yyyy}}"), "q{{RegEx[(##x]}}2004");
  ASSERT_FALSE(f.log.lines.empty());
  EXPECT_EQ(f.log.lines[0].second.substr(0, 6), "!5017:");
}

TEST(EngineTest, SwapAndCipherTokens) {
  EngineFixture f;
  EXPECT_EQ(f.Expand("1 - 2 - 3.txt{{swap_on_[-]}}"), "3 - 2 - 1.txt");
  EXPECT_EQ(f.Expand("a-b{{swap_on_[-]}}"), "b-a");
  EXPECT_EQ(f.Expand("a -b{{swap_on_[-]}}"), "b - a");
  EXPECT_EQ(f.Expand("name{{swap_on_[-]}}"), "name");
  const std::string cipher = f.Expand("Secret{{EncryptFilename[0123456789abcdef0123]}}");
  EXPECT_NE(cipher, "Secret");
  EXPECT_EQ(f.Expand(cipher + "{{decryptFilename[0123456789abcdef0123]}}"), "Secret");
}

TEST(EngineTest, TextCleaningTokens) {
  EngineFixture f;
  EXPECT_EQ(f.Expand("Hello World{{remove_repeatedChars}}"), "Helo Wrd");
  EXPECT_EQ(f.Expand("abc  .txt{{trim_right}}"), "abc.txt");
  EXPECT_EQ(f.Expand("a.b.c{{remove_dots}}"), "ab.c");
  EXPECT_EQ(f.Expand("abc.txt{{reverse}}"), "cba.txt");
  EXPECT_EQ(f.Expand("\xC3\x84\xC3\x96{{convertUmlauts}}"), "AeOe");
  EXPECT_EQ(f.Expand("54{{numberToString_english}}"), "fifty four");
  // The brackets go from unexpanded later tokens too.
  EXPECT_EQ(f.Expand("{{remove_brackets}}{{get_jpg_exif_Flash}}ab"), "get_jpg_exif_Flashab");
  // A transforming token tested later still acts, its own text gone.
  EXPECT_EQ(f.Expand("{{remove_brackets}}{{reverse}}ab"), "baesrever");
}

TEST(EngineTest, AttributeTokensChangeOnlyExistingFiles) {
  EngineFixture f;
  EXPECT_EQ(f.Expand("a{{setFileAttribute_Hidden}}"), "a{{setFileAttribute_Hidden}}");
  f.dir().WriteFile("file.txt", "x");
  EXPECT_EQ(f.Expand("a{{setFileAttribute_ReadOnly}}"), "a");
  EXPECT_EQ(f.Expand("a{{setFileAttribute_Normal}}"), "a");
}

TEST(EngineTest, MediaTokensWithoutMediaData) {
  EngineFixture f;
  EXPECT_EQ(f.Expand("[{{mp3IDTagV1_title}}][{{mpeg_bitrate}}][{{get_jpg_exif_Flash}}]"), "[][][]");
  // The derived date tokens fail on the empty value and stay.
  EXPECT_EQ(f.Expand("{{get_jpg_exif_originaldate_mm_text}}"),
            "{{get_jpg_exif_originaldate_mm_text}}");
}

TEST(EngineTest, UniqueIdIsOneValuePerPass) {
  EngineFixture f;
  const std::string text = f.Expand("{{uniqueid}}|{{uniqueid}}");
  ASSERT_EQ(text.size(), 77u);
  EXPECT_EQ(text.substr(0, 38), text.substr(39));
}

TEST(EngineTest, RandomTokensDrawFromThePool) {
  EngineFixture f;
  f.context.numbering = {"_", "1", "1", 5};
  const std::string value = f.Expand("{{random_number_byNumbering}}");
  ASSERT_EQ(value.size(), 2u);
  EXPECT_GE(value[0], '1');
  EXPECT_LE(value[0], '5');
  EXPECT_EQ(f.state.random_pool.size(), 5u);
  // During a run the pool is not rebuilt: an empty pool gives 0.
  f.state.random_pool.Clear();
  f.context.run_active = true;
  EXPECT_EQ(f.Expand("{{random_number_byFilecount}}"), "-1");
}

}  // namespace
}  // namespace tarnwick
