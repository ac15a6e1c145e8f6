#pragma once
// The program's number types and its number rules.
//
// Three stored widths exist: Single (32-bit float), Double (64-bit float) and
// Integer (16-bit). Arithmetic on them yields an Expr, which holds the value in
// 64-bit precision; the value is rounded and checked only when an Expr is
// stored into a Single, Double or Integer. Storing checks for overflow; a
// division by zero is caught at the division. This keeps the width of every
// value explicit in the screens' code: `Single r = a / b * 2.0;` rounds once,
// at the assignment, exactly as the program's arithmetic demands.
//
// All number-to-text and text-to-number functions are pure functions of their
// arguments. The decimal point is "." and the group separator ",".

#include <cstdint>
#include <string>
#include <string_view>

#include "shell/errors.h"
#include "shell/variant.h"

namespace orv {

class Single;
class Double;
class Integer;

// A value under evaluation: 64-bit precision, no rounding, no checks but the
// division. Built from a stored value, a literal or another Expr.
class Expr {
 public:
  constexpr Expr(double v) : v_(v) {}  // NOLINT: literals and doubles mix freely
  constexpr double value() const { return v_; }

 private:
  double v_;
};

Expr operator+(Expr a, Expr b);
Expr operator-(Expr a, Expr b);
Expr operator*(Expr a, Expr b);
// Raises "Division by zero" for a non-zero number over zero, "Overflow" for 0/0.
Expr operator/(Expr a, Expr b);
Expr operator-(Expr a);
bool operator==(Expr a, Expr b);
bool operator<(Expr a, Expr b);
bool operator<=(Expr a, Expr b);
bool operator>(Expr a, Expr b);
bool operator>=(Expr a, Expr b);
// a to the power b; an undefined or infinite result raises at the store.
Expr Pow(Expr a, Expr b);
// A negative argument to Sqrt, or a zero or negative one to Log, raises
// "Invalid procedure call or argument".
Expr Sqrt(Expr a);
Expr Log(Expr a);  // natural logarithm
Expr Exp(Expr a);

// 32-bit float. Storing rounds to nearest; a value beyond the single range, an
// infinity or NaN raises "Overflow"; a value too small becomes 0.
class Single {
 public:
  Single() = default;
  Single(Expr e);                        // NOLINT: assignment from an expression is the store
  Single(double v) : Single(Expr(v)) {}  // NOLINT
  float value() const { return v_; }
  operator Expr() const { return Expr(v_); }  // NOLINT

 private:
  float v_ = 0.0f;
};

// 64-bit float. Storing raises "Overflow" on an infinity or NaN.
class Double {
 public:
  Double() = default;
  Double(Expr e);                        // NOLINT
  Double(double v) : Double(Expr(v)) {}  // NOLINT
  double value() const { return v_; }
  operator Expr() const { return Expr(v_); }  // NOLINT

 private:
  double v_ = 0.0;
};

// 16-bit integer. Storing rounds to the nearest integer, ties to even, and
// raises "Overflow" outside -32768..32767. ++ and += are checked as well.
class Integer {
 public:
  Integer() = default;
  Integer(Expr e);                         // NOLINT
  Integer(double v) : Integer(Expr(v)) {}  // NOLINT
  std::int16_t value() const { return v_; }
  operator Expr() const { return Expr(v_); }  // NOLINT
  Integer& operator++();
  Integer& operator--();
  Integer& operator+=(Expr e);
  Integer& operator-=(Expr e);

 private:
  std::int16_t v_ = 0;
};

// Text to number. Accepted: blanks, an optional sign, digits with at most one
// point (at least one digit in all), an optional exponent "E"/"e" with an
// optional sign and at least one digit, blanks. Anything else raises
// "Type mismatch"; a value beyond the type's range raises "Overflow".
Single CSng(std::string_view text);
Double CDbl(std::string_view text);
Integer CInt(std::string_view text);
// Number to 16-bit integer: nearest, ties to even, "Overflow" out of range.
Integer CInt(Expr e);

// Number to text, form 2: at most 7 (Single) or 15 (Double) significant digits,
// fixed notation where it fits, otherwise "1.234568E+07".
std::string Str(Single x);
std::string Str(Double x);
// Form 3: plain digits with a minus sign for negatives.
std::string Str(Integer x);

// Form 1: fixed notation with exactly n decimals, half away from zero, group
// separators, a leading zero; the digits come from form 2 of the value. A
// result of zero has no minus sign; n < 0 raises "Invalid procedure call".
std::string FormatNumber(Single x, int n);
std::string FormatNumber(Double x, int n);

// Form 4: the format patterns ("Scientific", "Standard", "General Number",
// "0.000", "000.00", "###", "###.##", ...). The value's own width decides the
// digits where a pattern shows all of them ("General Number").
std::string Format(Single x, std::string_view pattern);
std::string Format(Double x, std::string_view pattern);

// Any-typed values: a number shows in form 2 of a Double, a text as it stands,
// Null and Empty as the empty text.
std::string Str(const Variant& v);
// A Variant read as a number: a number as it is, a text through CDbl, Empty as
// 0; Null raises "Invalid use of Null".
Double CDbl(const Variant& v);
// A text converts to Variant as readily as to std::string_view; these two
// pick the text conversion for a box's text or a literal.
inline Double CDbl(const std::string& text) { return CDbl(std::string_view(text)); }
inline Double CDbl(const char* text) { return CDbl(std::string_view(text)); }

}  // namespace orv
