// The string routines count characters, not bytes, and refuse what the
// program's own string functions refuse.

#include "shell/text.h"

#include <gtest/gtest.h>

#include <functional>

#include "shell/errors.h"
#include "tests/unit/screen_run.h"

namespace orv {
namespace {

TEST(Text, CutsByCharacters) {
  struct Case {
    std::string got;
    std::string want;
  };
  const Case cases[] = {
      {Mid("2Mn(NO3)2", 4), "(NO3)2"},
      {Mid("2Mn(NO3)2", 5, 3), "NO3"},
      {Mid("abc", 3, 5), "c"},
      {Mid("abc", 4), ""},
      {Mid("°C·g", 2, 2), "C·"},
      {Left("°C", 1), "°"},
      {Left("abc", 0), ""},
      {Left("abc", 9), "abc"},
      {Right("abc", 2), "bc"},
      {Right("abc", 7), "abc"},
      {Right("J/g·°C", 2), "°C"},
  };
  for (const Case& c : cases) EXPECT_EQ(c.got, c.want);
  EXPECT_EQ(Len("J/g·°C"), 6);
  EXPECT_EQ(InStr("CO2 + H2O => C6H12O6", "=>"), 11);
  EXPECT_EQ(InStr("a·b·c", "b"), 3);
  EXPECT_EQ(InStr("abcabc", "a", 2), 4);
  EXPECT_EQ(InStr("abc", "x"), 0);
}

TEST(Text, RefusesAStartBelowOneOrANegativeLength) {
  const std::function<void()> refused[] = {[] { (void)Mid("abc", 0); }, [] { (void)Mid("abc", 1, -1); },
                                           [] { (void)Left("abc", -1); }, [] { (void)Right("abc", -1); },
                                           [] { (void)InStr("abc", "a", 0); }};
  for (const auto& f : refused) EXPECT_EQ(test::Raised(f), "Invalid procedure call or argument");
}

}  // namespace
}  // namespace orv
