#include "shell/numbers.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <functional>
#include <optional>
#include <string>

namespace orv {
namespace {

std::optional<ErrorCode> ErrorOf(const std::function<void()>& f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.code();
  }
  return std::nullopt;
}

struct TextCase {
  double value;
  const char* text;
};

TEST(NumberToText, SingleShortestForm) {
  const TextCase cases[] = {
      {0.1, "0.1"},
      {1234567, "1234567"},
      {12345678, "1.234568E+07"},
      {10000000, "1E+07"},
      {9999999, "9999999"},
      {0.0000001, "0.0000001"},
      {0.00000001, "1E-08"},
      {1.0 / 3000, "3.333333E-04"},
      {0.1234567, "0.1234567"},
      {0.01234567, "1.234567E-02"},
      {0.00001, "0.00001"},
      {0.0000015, "0.0000015"},
      {0.00000125, "1.25E-06"},
      {123.4567, "123.4567"},
      {-2.5, "-2.5"},
      {0, "0"},
      {-1E-46, "0"},
      {1.5E-45, "1.401298E-45"},
      {FLT_MAX, "3.402823E+38"},
      {100, "100"},
      {2.0 / 3, "0.6666667"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(Str(Single(c.value)), c.text);
  }
}

TEST(NumberToText, DoubleShortestForm) {
  const TextCase cases[] = {
      {100000000000000, "100000000000000"},
      {1000000000000000, "1E+15"},
      {999999999999999.9, "1E+15"},
      {123456789012345.6, "123456789012346"},
      {1.0 / 30000, "3.33333333333333E-05"},
      {0.1 + 0.2, "0.3"},
      {1E+20 * 1000000, "1E+26"},
      {0.000000000000001, "0.000000000000001"},
      {1E-16, "1E-16"},
      {1E-300, "1E-300"},
      {DBL_MAX, "1.79769313486232E+308"},
      {-1.0 / 3, "-0.333333333333333"},
      {1000000, "1000000"},
      {-0.0, "0"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(Str(Double(c.value)), c.text);
  }
}

TEST(NumberToText, IntegerPlainDigits) {
  EXPECT_EQ(Str(Integer(-32768)), "-32768");
  EXPECT_EQ(Str(Integer(32767)), "32767");
  EXPECT_EQ(Str(Integer(0)), "0");
}

struct FormatCase {
  double value;
  bool single;  // held in a 32-bit float rather than a 64-bit one
  int n;
  const char* text;
};

TEST(NumberToText, FormatNumber) {
  const FormatCase cases[] = {
      {1234.5678, false, 3, "1,234.568"},
      {0.5, false, 3, "0.500"},
      {1E+20, false, 3, "100,000,000,000,000,000,000.000"},
      {123456789, true, 3, "123,456,800.000"},
      {0.1, true, 3, "0.100"},
      {2.0 / 3, true, 10, "0.6666667000"},
      {1.0 / 3, false, 17, "0.33333333333333300"},
      {0.0004, false, 3, "0.000"},
      {0.0005, false, 3, "0.001"},   // half away from zero
      {-0.0004, false, 3, "0.000"},  // no minus sign on a zero
      {-0.0005, false, 3, "-0.001"},
      {2.5, false, 0, "3"},
      {-2.5, false, 0, "-3"},
      {12.345, false, 2, "12.35"},  // decimal digits, not the binary value 12.3449...
      {999.9995, false, 3, "1,000.000"},
      {-1234567.891, false, 2, "-1,234,567.89"},
      {123456, false, 3, "123,456.000"},
      {100, false, 3, "100.000"},
      {0, false, 3, "0.000"},
      {10, true, 5, "10.00000"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(c.single ? FormatNumber(Single(c.value), c.n) : FormatNumber(Double(c.value), c.n), c.text);
  }
  EXPECT_EQ(ErrorOf([] { FormatNumber(Double(1), -1); }), ErrorCode::InvalidProcedureCall);
}

struct PatternCase {
  double value;
  bool single;
  const char* pattern;
  const char* text;
};

TEST(NumberToText, FormatPatterns) {
  const PatternCase cases[] = {
      {1234.5, false, "Scientific", "1.23E+03"},
      {0, false, "Scientific", "0.00E+00"},
      {2 * 6.023E+23, false, "Scientific", "1.20E+24"},
      {12.011 / 12.011 * 6.023E+23, false, "Scientific", "6.02E+23"},
      {0.5, true, "Scientific", "5.00E-01"},
      {9.995, false, "Scientific", "1.00E+01"},
      {-0.00012345, false, "Scientific", "-1.23E-04"},
      {1E+100, false, "Scientific", "1.00E+100"},
      {1234.5, false, "Standard", "1,234.50"},
      {0.5, false, "Standard", "0.50"},
      {436, false, "Standard", "436.00"},
      {-0.001, false, "Standard", "0.00"},
      {1234.5, false, "General Number", "1234.5"},
      {0.1, true, "General Number", "0.1"},
      {1E+15, false, "General Number", "1E+15"},
      {0.5, false, "0.000", "0.500"},
      {1234.5, false, "0.000", "1234.500"},
      {5, false, "000.00", "005.00"},
      {1234.567, false, "000.00", "1234.57"},
      {42, false, "00000", "00042"},
      {12.6, false, "###", "13"},
      {0, false, "###", ""},
      {0.4, false, "###", ""},
      {1000000, false, "###", "1000000"},
      {12.345, false, "###.##", "12.35"},
      {5, false, "###.##", "5."},
      {0.5, false, "###.##", ".5"},
      {0, false, "###.##", "."},
      {-0.76, false, "##.####", "-.76"},
      {1.23456, false, "##.####", "1.2346"},
      {12.25, false, "###.#", "12.3"},
      {0.99975, false, "#.###", "1."},
      {0.99987, false, "#.#####", ".99987"},
      {1.0 / 3, false, "#.######", ".333333"},
      {6.67E-11, false, "###.#############", ".0000000000667"},
      {0.1, true, "###.#############", ".1"},
      {1234567.891, false, "#,##0.00", "1,234,567.89"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.pattern) + " -> " + c.text);
    EXPECT_EQ(c.single ? Format(Single(c.value), c.pattern) : Format(Double(c.value), c.pattern), c.text);
  }
}

struct ParseCase {
  const char* text;
  double value;
};

TEST(TextToNumber, AcceptedForms) {
  const ParseCase doubles[] = {
      {"12", 12},         {" 12 ", 12},          {"-5", -5},
      {"+5", 5},          {"1.5", 1.5},          {".5", 0.5},
      {"5.", 5},          {"1e5", 1E5},          {"1E+3", 1000},
      {"1.5E-5", 1.5E-5}, {"  -1.25e2  ", -125}, {"0.0", 0},
      {"00012", 12},      {"1E-400", 0},         {"1.7976931348623157E+308", DBL_MAX},
  };
  for (const auto& c : doubles) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(CDbl(c.text).value(), c.value);
  }
  const ParseCase singles[] = {{"0.1", 0.1f}, {"3.4028235E+38", FLT_MAX}, {"1E-46", 0}, {"1.4E-45", 0x1p-149}};
  for (const auto& c : singles) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(CSng(c.text).value(), static_cast<float>(c.value));
  }
  const ParseCase integers[] = {
      {"2.5", 2},         {"3.5", 4},           {"-2.5", -2},        {"0.5", 0},    {"32767", 32767},
      {"-32768", -32768}, {"-32768.5", -32768}, {"32767.49", 32767}, {"1E3", 1000}, {" 7 ", 7},
  };
  for (const auto& c : integers) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(CInt(c.text).value(), c.value);
  }
}

// A text within a hair of a rounding midpoint must round from its own digits,
// not from a nearer double that happens to lie on the midpoint.
TEST(TextToNumber, RoundsOnceFromTheDecimalText) {
  const ParseCase singles[] = {
      {"16777217.0000000001", 16777218},  // just above the midpoint 2^24 + 1
      {"16777216.9999999999", 16777216},  // just below it
      {"16777217", 16777216},             // the midpoint itself: ties to even
      {"16777219", 16777220},             // a midpoint whose lower neighbour is odd
      {"8388609.4999999999", 8388609},    // just below the midpoint 2^23 + 1.5
      {"8388609.5000000001", 8388610},
      {"-16777217.0000000001", -16777218},
      {"1.6777217000000000001E7", 16777218},
      {"0.16777217000000000001E+8", 16777218},
  };
  for (const auto& c : singles) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(CSng(c.text).value(), static_cast<float>(c.value));
  }
  // The edges of the range: a hair below the midpoint between the largest
  // float and 2^128 stays finite, the midpoint itself overflows; a hair
  // below half the smallest denormal becomes 0, a hair above it does not.
  EXPECT_EQ(CSng("3.4028235677973366E+38").value(), FLT_MAX);
  EXPECT_EQ(ErrorOf([] { CSng("3.40282356779733661637539395458142568448E+38"); }), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf([] { CSng("-3.5E+38"); }), ErrorCode::Overflow);
  EXPECT_EQ(CSng("7.0064923216240853E-46").value(), 0.0f);
  EXPECT_EQ(CSng("7.0064923216240854E-46").value(), 0x1p-149f);
  EXPECT_EQ(CSng("-1E-50").value(), 0.0f);

  const ParseCase integers[] = {
      {"2.50000000000000001", 3},
      {"2.49999999999999999", 2},
      {"3.49999999999999999", 3},
      {"-2.50000000000000001", -3},
      {"0.50000000000000001", 1},
      {"25E-1", 2},
      {"2.5000000000000000000", 2},
      {"0.25000000000000001E1", 3},
      {"32767.4999999999999999", 32767},
      {"1.5E0", 2},
      {"-0.5", 0},
      {"0.00000000000000000005E19", 0},
      {"0.0000000000000000000001", 0},
  };
  for (const auto& c : integers) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(CInt(c.text).value(), c.value);
  }
  EXPECT_EQ(ErrorOf([] { CInt("32767.50000000000000001"); }), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf([] { CInt("-32768.50000000000000001"); }), ErrorCode::Overflow);
}

TEST(TextToNumber, BadTextIsTypeMismatch) {
  const char* const cases[] = {"",      " ",     ".",   "+",     "-",     "1E",  "1e+",  "E5",
                               "1.2.3", "5-",    "1 2", "- 5",   "1,000", "12a", "0x10", "inf",
                               "nan",   "1E5.5", "++1", "1E--2", "1D5",   "$5",  "E"};
  for (const char* text : cases) {
    SCOPED_TRACE(std::string("\"") + text + "\"");
    EXPECT_EQ(ErrorOf([&] { CSng(text); }), ErrorCode::TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { CDbl(text); }), ErrorCode::TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { CInt(text); }), ErrorCode::TypeMismatch);
  }
}

TEST(TextToNumber, OutOfRangeIsOverflow) {
  for (const char* text : {"3.4028236E+38", "1E39", "-1E39", "1E400"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(ErrorOf([&] { CSng(text); }), ErrorCode::Overflow);
  }
  for (const char* text : {"1E309", "-1.8E308", "1E99999999999999999999"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(ErrorOf([&] { CDbl(text); }), ErrorCode::Overflow);
  }
  for (const char* text : {"32768", "-32769", "32767.5", "-32768.6", "1E10"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(ErrorOf([&] { CInt(text); }), ErrorCode::Overflow);
  }
}

TEST(Arithmetic, ChecksHappenAtTheStore) {
  // Intermediates keep 64-bit range and precision; only the store rounds.
  EXPECT_EQ(Single(Expr(1E+30) * 1E+30 / 1E+30).value(), 1E+30f);
  EXPECT_EQ(Str(Single(Single(0.1) * 3.0)), "0.3");
  EXPECT_NO_THROW((void)(Expr(1E+308) * 10.0));
  EXPECT_EQ(ErrorOf([] { Double(Expr(1E+308) * 10.0); }), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf([] { Single(Expr(3.5E+38)); }), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf([] { Single(Expr(1E+300) * 1E+300 - 1E+300 * 1E+300); }), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf([] { Double(Pow(0.0, -1.0)); }), ErrorCode::Overflow);
  EXPECT_EQ(Single(Expr(1E-46)).value(), 0.0f);
}

TEST(Arithmetic, DivisionAndFunctionErrors) {
  EXPECT_EQ(ErrorOf([] { (void)(Expr(1) / 0.0); }), ErrorCode::DivisionByZero);
  EXPECT_EQ(ErrorOf([] { (void)(Expr(-1) / Single(0)); }), ErrorCode::DivisionByZero);
  EXPECT_EQ(ErrorOf([] { (void)(Expr(0) / 0.0); }), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf([] { Sqrt(-1.0); }), ErrorCode::InvalidProcedureCall);
  EXPECT_EQ(ErrorOf([] { Log(0.0); }), ErrorCode::InvalidProcedureCall);
  EXPECT_EQ(ErrorOf([] { Log(-1.0); }), ErrorCode::InvalidProcedureCall);
  EXPECT_DOUBLE_EQ(Double(Log(Exp(2.0))).value(), 2.0);
}

TEST(Arithmetic, IntegerRoundsTiesToEvenAndIsChecked) {
  const struct {
    double value;
    int rounded;
  } cases[] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {2.4999, 2}, {-32768.5, -32768}, {32767.49, 32767}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.value);
    EXPECT_EQ(CInt(Expr(c.value)).value(), c.rounded);
  }
  EXPECT_EQ(ErrorOf([] { CInt(Expr(32767.5)); }), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf([] { CInt(Expr(std::nan(""))); }), ErrorCode::Overflow);

  Integer top(32767);
  EXPECT_EQ(ErrorOf([&] { ++top; }), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf([&] { top += 1.0; }), ErrorCode::Overflow);
  EXPECT_EQ((top += 0.4).value(), 32767);
  EXPECT_EQ((--top).value(), 32766);
  Integer bottom(-32768);
  EXPECT_EQ(ErrorOf([&] { --bottom; }), ErrorCode::Overflow);
  EXPECT_EQ(ErrorOf([&] { bottom -= 1.0; }), ErrorCode::Overflow);
  EXPECT_EQ((bottom -= -2.5).value(), -32766);
}

TEST(Variants, StrAndCDbl) {
  EXPECT_EQ(Str(Variant(2.5)), "2.5");
  EXPECT_EQ(Str(Variant(1.0 / 3)), "0.333333333333333");
  EXPECT_EQ(Str(Variant("abc")), "abc");
  EXPECT_EQ(Str(Variant(Null{})), "");
  EXPECT_EQ(Str(Variant()), "");
  EXPECT_EQ(CDbl(Variant(" 12 ")).value(), 12);
  EXPECT_EQ(CDbl(Variant(0.1)).value(), 0.1);
  EXPECT_EQ(CDbl(Variant()).value(), 0);
  EXPECT_EQ(ErrorOf([] { CDbl(Variant(Null{})); }), ErrorCode::InvalidUseOfNull);
  EXPECT_EQ(ErrorOf([] { CDbl(Variant("x")); }), ErrorCode::TypeMismatch);
}

}  // namespace
}  // namespace orv
