#include <gtest/gtest.h>

#include <cmath>

#include "base/vb_error.h"
#include "base/vb_number.h"

namespace tarnwick::vb {
namespace {

template <typename F>
int ErrorNumberOf(F&& call) {
  try {
    call();
  } catch (const VbError& e) {
    return e.number();
  }
  return 0;
}

TEST(ValTest, ReadsTheNumberAtTheStart) {
  EXPECT_EQ(Val("  12abc"), 12);
  EXPECT_EQ(Val("1 2 3"), 123);
  EXPECT_EQ(Val("\t-1.5e2x"), -150);
  EXPECT_EQ(Val("1D3"), 1000);
  EXPECT_EQ(Val(".5"), 0.5);
  EXPECT_EQ(Val("1e"), 1);
  EXPECT_EQ(Val("1,000"), 1);
  EXPECT_EQ(Val("01"), 1);
  EXPECT_EQ(Val(""), 0);
  EXPECT_EQ(Val("abc"), 0);
  EXPECT_EQ(Val("-"), 0);
}

TEST(ValTest, HexadecimalAndOctalAreSignedSixteenOrThirtyTwoBits) {
  EXPECT_EQ(Val("&HFF"), 255);
  EXPECT_EQ(Val("&hff"), 255);
  EXPECT_EQ(Val("&HFFFF"), -1);
  EXPECT_EQ(Val("&H8000"), -32768);
  EXPECT_EQ(Val("&H10000"), 65536);
  EXPECT_EQ(Val("&HFFFFFFFF"), -1);
  EXPECT_EQ(Val("&O17"), 15);
  EXPECT_EQ(Val("&H"), 0);
  EXPECT_EQ(Val("&X12"), 0);
  EXPECT_EQ(ErrorNumberOf([] { Val("&H100000000"); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { Val("1e400"); }), 6);
}

TEST(IsNumericTest, WholeTextMustReadAsANumber) {
  for (const char* yes : {"1E5", " 12 ", "1,000", "12-", "-12", "+3", ".5", "1.", "0", "1", "01",
                          "&HFF", "&o17", "1.5D-3"}) {
    EXPECT_TRUE(IsNumeric(yes)) << yes;
  }
  for (const char* no : {"2B5", "", " ", "+-1", "-12-", "1.2.3", "&HFG", "&H", "1e", "1e400", ".",
                         "1 2", "1,", ",1", "&H100000000"}) {
    EXPECT_FALSE(IsNumeric(no)) << no;
  }
}

TEST(ConversionTest, CDblReadsOrRaises) {
  EXPECT_EQ(CDbl("1,234.5"), 1234.5);
  EXPECT_EQ(CDbl("5-"), -5);
  EXPECT_EQ(ErrorNumberOf([] { CDbl("x"); }), 13);
  EXPECT_EQ(ErrorNumberOf([] { CDbl(""); }), 13);
  EXPECT_EQ(ErrorNumberOf([] { CDbl("1e999"); }), 6);
}

TEST(ConversionTest, RoundingIsToNearestWithTiesToEven) {
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(-1.5), -2);
  EXPECT_EQ(RoundHalfEven(-2.5), -2);
  EXPECT_EQ(RoundHalfEven(2.4999), 2);
  EXPECT_EQ(RoundHalfEven(2.5001), 3);
  EXPECT_EQ(CInt(2.5), 2);
  EXPECT_EQ(CInt(3.5), 4);
  EXPECT_EQ(CInt(-2.5), -2);
  EXPECT_EQ(CLng(0.5), 0);
  EXPECT_EQ(CLng(1.5), 2);
  EXPECT_EQ(CInt(std::string_view("1E3")), 1000);
}

TEST(ConversionTest, OverflowRaisesSixAndBadTextThirteen) {
  EXPECT_EQ(CInt(32767.4), 32767);
  EXPECT_EQ(CInt(-32768.5), -32768);
  EXPECT_EQ(ErrorNumberOf([] { CInt(32767.5); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CInt(-32768.6); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CInt(std::nan("")); }), 6);
  EXPECT_EQ(CLng(-2147483648.5), -2147483648);
  EXPECT_EQ(ErrorNumberOf([] { CLng(2147483647.5); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CLng(HUGE_VAL); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { CInt(std::string_view("abc")); }), 13);
  EXPECT_EQ(ErrorNumberOf([] { CLng(std::string_view("")); }), 13);
}

TEST(ConversionTest, StrAndCStrPrintAsTheRuntime) {
  EXPECT_EQ(Str(5), " 5");
  EXPECT_EQ(Str(-5), "-5");
  EXPECT_EQ(Str(0.5), " .5");
  EXPECT_EQ(Str(-0.5), "-.5");
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(1e15), " 1E+15");
  EXPECT_EQ(Str(1e-5), " 1E-05");
  EXPECT_EQ(Str(123456789012345), " 123456789012345");
  EXPECT_EQ(Str(1.0 / 3), " .333333333333333");
  EXPECT_EQ(CStr(0.5), "0.5");
  EXPECT_EQ(CStr(-0.25), "-0.25");
  EXPECT_EQ(CStr(0.0001), "0.0001");
  // Ticks are stored as the texts "0" and "1"; a padded number is another text.
  EXPECT_EQ(CStr(std::int64_t{1}), "1");
  EXPECT_EQ(CStr(std::int64_t{0}), "0");
  EXPECT_NE(CStr(Val("01")), "01");
}

}  // namespace
}  // namespace tarnwick::vb
