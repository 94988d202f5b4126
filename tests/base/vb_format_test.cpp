#include "base/vb_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/vb_error.h"

namespace tarnwick::vb {
namespace {

struct Case {
  double value;
  const char* mask;
  const char* expected;
};

void ExpectAll(std::initializer_list<Case> cases) {
  for (const Case& c : cases) {
    EXPECT_EQ(Format(c.value, c.mask), c.expected) << c.value << " with " << c.mask;
  }
}

TEST(FormatTest, ZeroMasksPadAndNeverCutDigits) {
  ExpectAll({{7, "000", "007"},
             {0, "000", "000"},
             {12345, "000", "12345"},
             {5, "00", "05"},
             {42, "00", "42"},
             {-7, "000", "-007"}});
  EXPECT_EQ(Format(std::int64_t{1}, "00000"), "00001");
  EXPECT_EQ(Format(std::int64_t{1234567890123456789}, "0"), "1234567890123456789");
  EXPECT_EQ(Format(std::numeric_limits<std::int64_t>::min(), "0"), "-9223372036854775808");
  EXPECT_EQ(Format(1e20, "0"), "100000000000000000000");
}

TEST(FormatTest, DecimalsRoundHalfAwayFromZero) {
  ExpectAll({{2.25, "0.0", "2.3"},
             {0, "0.0", "0.0"},
             {2.5, "0", "3"},
             {-2.5, "0", "-3"},
             {1.0 / 3, "0.000", "0.333"},
             {2.0 / 3, "0.000", "0.667"},
             {9.9999, "0.000", "10.000"},
             {3.5, "00.00", "03.50"},
             {123.456, "00.00", "123.46"},
             {1.005, "0.00", "1.01"},
             {0.5, "#.00", ".50"},
             {1, "0.##", "1."},
             {1.5, "0.0#", "1.5"},
             {1.25, "0.0#", "1.25"}});
}

TEST(FormatTest, ThousandsGroupsAndScaling) {
  ExpectAll({{1234567, "#,##0", "1,234,567"},
             {999, "#,##0", "999"},
             {1000, "#,##0", "1,000"},
             {0, "#,##0", "0"},
             {-1234, "#,##0", "-1,234"},
             {1234.5, "#,##0", "1,235"},
             {5, "0,000", "0,005"},
             {1234567, "#,##0,", "1,235"},
             {1234.5, "Standard", "1,234.50"}});
}

TEST(FormatTest, PercentAndExponent) {
  ExpectAll({{0.256, "0.0%", "25.6%"},
             {0.5, "Percent", "50.00%"},
             {12345, "0.00E+00", "1.23E+04"},
             {0.00012345, "0.00E+00", "1.23E-04"},
             {12345, "0.00E-00", "1.23E04"},
             {99999, "0.00E+00", "1.00E+05"},
             {0, "0.00E+00", "0.00E+00"},
             {12345, "Scientific", "1.23E+04"}});
}

TEST(FormatTest, SectionsLiteralsAndNamedMasks) {
  ExpectAll({{-5, "0;(0)", "(5)"},
             {-5, "0;", "-5"},
             {0, "0;-0;\"nil\"", "nil"},
             {123456, "00-00", "1234-56"},
             {5, "\"No. \"000", "No. 005"},
             {5, "\\#0", "#5"},
             {1.5, "Fixed", "1.50"},
             {0, "Yes/No", "No"},
             {2, "On/Off", "On"},
             {0.5, "", "0.5"},
             {1e15, "General Number", "1E+15"}});
}

TEST(FormatTest, NonFiniteRaisesOverflow) {
  try {
    Format(std::nan(""), "0");
    FAIL() << "no error";
  } catch (const VbError& e) {
    EXPECT_EQ(e.number(), 6);
  }
  EXPECT_THROW(Format(HUGE_VAL, "0"), VbError);
}

TEST(FormatTextTest, TextsThatReadAsNumbersAreFormatted) {
  EXPECT_EQ(FormatText("3", "00"), "03");
  EXPECT_EQ(FormatText("12", "00"), "12");
  EXPECT_EQ(FormatText(" 42 ", "000"), "042");
  EXPECT_EQ(FormatText("377", "00000"), "00377");
  EXPECT_EQ(FormatText("1111001", "0000000000"), "0001111001");
  // Read as a number in exponent form.
  EXPECT_EQ(FormatText("1E5", "000"), "100000");
  EXPECT_EQ(FormatText("12D3", "0"), "12000");
  // Every digit of a long run survives.
  EXPECT_EQ(FormatText("123456789012345678901234", "0"), "123456789012345678901234");
  EXPECT_EQ(FormatText("2.5", "0.0"), "2.5");
}

TEST(FormatTextTest, OtherTextsStayAsTheyAre) {
  for (const char* text : {"2B5", "", "abc", "1E", "-", "1.2.3", "1E999", "&HFG"}) {
    EXPECT_EQ(FormatText(text, "0000"), text);
  }
}

}  // namespace
}  // namespace tarnwick::vb
