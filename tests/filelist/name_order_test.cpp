// The order of names: locale collation, natural numbers, a total order.
#include "filelist/name_order.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> Ordered(const NameOrder& order, std::vector<std::string_view> names) {
  std::vector<std::string> result;
  for (std::uint32_t index : order.Ranking(names)) result.emplace_back(names[index]);
  // Compare must agree with the ranking, pair by pair.
  for (std::size_t i = 1; i < result.size(); ++i) {
    EXPECT_LE(order.Compare(result[i - 1], result[i]), 0) << result[i - 1] << " / " << result[i];
  }
  return result;
}

TEST(NameOrderTest, LettersWithDiacriticsStandBesideTheirLetterUnlessTheLocaleSaysOtherwise) {
  const std::vector<std::string_view> names = {"Zoo", "Ärger", "Apfel", "Bär", "Ast", "Öl", "Ofen"};
  EXPECT_THAT(Ordered(NameOrder({.natural_numbers = false, .locale = "de_DE.UTF-8"}), names),
              ElementsAre("Apfel", "Ärger", "Ast", "Bär", "Ofen", "Öl", "Zoo"));
  EXPECT_THAT(Ordered(NameOrder({.natural_numbers = false, .locale = "C"}), names),
              ElementsAre("Apfel", "Ärger", "Ast", "Bär", "Ofen", "Öl", "Zoo"));
  // Swedish puts Ä and Ö after Z.
  EXPECT_THAT(Ordered(NameOrder({.natural_numbers = false, .locale = "sv_SE"}), names),
              ElementsAre("Apfel", "Ast", "Bär", "Ofen", "Zoo", "Ärger", "Öl"));
}

TEST(NameOrderTest, NumbersCountByValueOnlyWhenAsked) {
  const std::vector<std::string_view> names = {"photo 10.jpg", "photo 2.jpg", "photo 1.jpg",
                                               "photo 02.jpg"};
  EXPECT_THAT(Ordered(NameOrder({.natural_numbers = false, .locale = "en_US"}), names),
              ElementsAre("photo 02.jpg", "photo 1.jpg", "photo 10.jpg", "photo 2.jpg"));
  EXPECT_THAT(Ordered(NameOrder({.natural_numbers = true, .locale = "en_US"}), names),
              ElementsAre("photo 1.jpg", "photo 02.jpg", "photo 2.jpg", "photo 10.jpg"));
}

TEST(NameOrderTest, CaseDecidesOnlyBetweenOtherwiseEqualNamesAndTheOrderIsTotal) {
  const NameOrder order({.natural_numbers = false, .locale = "en_US"});
  EXPECT_THAT(Ordered(order, {"Readme2.txt", "README.TXT", "readme.txt", "Readme.txt"}),
              ElementsAre("readme.txt", "Readme.txt", "README.TXT", "Readme2.txt"));
  // Bytes that are not UTF-8 all read as U+FFFD; the bytes still tell them
  // apart, so no two different names compare equal.
  EXPECT_NE(order.Compare("a\xff", "a\xfe"), 0);
  EXPECT_EQ(order.Compare("a\xff", "a\xfe"), -order.Compare("a\xfe", "a\xff"));
  EXPECT_EQ(order.Compare("same", "same"), 0);
  EXPECT_THAT(Ordered(order, {"a\xff", "a\xfe", "a\xff"}), ElementsAre("a\xfe", "a\xff", "a\xff"));
  // A name longer than one piece of collation key.
  const std::string long_a(700, 'a');
  EXPECT_LT(order.Compare(long_a + "a", long_a + "b"), 0);
  EXPECT_THAT(Ordered(order, {long_a + "b", long_a + "a"}),
              ElementsAre(long_a + "a", long_a + "b"));
}

// Sets an environment variable for the length of a test.
class ScopedEnv {
 public:
  ScopedEnv(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    if (value != nullptr) {
      ::setenv(name, value, 1);
    } else {
      ::unsetenv(name);
    }
  }
  ~ScopedEnv() {
    if (old_) {
      ::setenv(name_, old_->c_str(), 1);
    } else {
      ::unsetenv(name_);
    }
  }

 private:
  const char* name_;
  std::optional<std::string> old_;
};

TEST(NameOrderTest, TheUsersLocaleComesFromTheEnvironmentInItsUsualPrecedence) {
  ScopedEnv all("LC_ALL", nullptr);
  ScopedEnv collate("LC_COLLATE", nullptr);
  ScopedEnv lang("LANG", "de_DE.UTF-8@euro");
  EXPECT_EQ(UserCollationLocale(), "de_DE");
  {
    ScopedEnv sv("LC_COLLATE", "sv_SE.UTF-8");
    EXPECT_EQ(UserCollationLocale(), "sv_SE");
    EXPECT_EQ(NameOrder().locale(), "sv_SE");
    ScopedEnv c("LC_ALL", "C.UTF-8");
    EXPECT_EQ(UserCollationLocale(), "root");
  }
  ScopedEnv empty("LANG", "");
  EXPECT_EQ(UserCollationLocale(), "root");
}

}  // namespace
}  // namespace tarnwick
