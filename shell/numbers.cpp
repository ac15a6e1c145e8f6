#include "shell/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <system_error>

namespace orv {

namespace {

constexpr int kSingleDigits = 7;
constexpr int kDoubleDigits = 15;

// Half way between FLT_MAX and 2^128: a double at or beyond it rounds to an
// infinite float, anything below it rounds to a finite one.
constexpr double kSingleRoundsToInf = 0x1.ffffffp127;

// ---------------------------------------------------------------------------
// Arithmetic checks

float StoreSingle(double d) {
  if (!std::isfinite(d) || std::fabs(d) >= kSingleRoundsToInf) Raise(ErrorCode::Overflow);
  // In range, so the conversion rounds to nearest; tiny values go to a
  // denormal or to zero, which is no error.
  return static_cast<float>(d);
}

double StoreDouble(double d) {
  if (!std::isfinite(d)) Raise(ErrorCode::Overflow);
  return d;
}

// Nearest integer, ties to the even one, independent of the FPU rounding mode.
std::int16_t StoreInteger(double d) {
  if (!std::isfinite(d) || std::fabs(d) > 65536.0) Raise(ErrorCode::Overflow);
  double whole = std::floor(d);
  const double frac = d - whole;  // exact for doubles of this size
  if (frac > 0.5 || (frac == 0.5 && std::fmod(whole, 2.0) != 0.0)) whole += 1.0;
  if (whole < -32768.0 || whole > 32767.0) Raise(ErrorCode::Overflow);
  return static_cast<std::int16_t>(whole);
}

// ---------------------------------------------------------------------------
// Text to number

// Checks the accepted grammar and returns the number's text without blanks or
// a leading "+", ready for std::from_chars (which is locale independent and
// accepts neither a "+" nor blanks). `order` receives the decimal exponent of
// the first significant digit (0 for a zero), which tells an overflow from an
// underflow when the conversion reports the value out of range.
std::string ScanNumber(std::string_view text, long long& order) {
  std::size_t i = 0;
  std::size_t end = text.size();
  while (i < end && text[i] == ' ') ++i;
  while (end > i && text[end - 1] == ' ') --end;

  std::string clean;
  if (i < end && (text[i] == '+' || text[i] == '-')) {
    if (text[i] == '-') clean += '-';
    ++i;
  }
  long long digitsBeforePoint = 0;  // significant digits before the point
  long long zerosAfterPoint = 0;    // zeros between the point and the first significant digit
  bool seenSignificant = false;
  bool seenPoint = false;
  int digits = 0;
  for (; i < end; ++i) {
    const char c = text[i];
    if (c >= '0' && c <= '9') {
      ++digits;
      if (c != '0') seenSignificant = true;
      if (!seenPoint && seenSignificant) ++digitsBeforePoint;
      if (seenPoint && !seenSignificant) ++zerosAfterPoint;
      clean += c;
    } else if (c == '.' && !seenPoint) {
      seenPoint = true;
      clean += c;
    } else {
      break;
    }
  }
  if (digits == 0) Raise(ErrorCode::TypeMismatch);

  long long exponent = 0;
  if (i < end && (text[i] == 'E' || text[i] == 'e')) {
    clean += 'e';
    ++i;
    bool negative = false;
    if (i < end && (text[i] == '+' || text[i] == '-')) {
      negative = text[i] == '-';
      if (negative) clean += '-';
      ++i;
    }
    const std::size_t firstDigit = i;
    for (; i < end && text[i] >= '0' && text[i] <= '9'; ++i) {
      clean += text[i];
      if (exponent < 1'000'000'000) exponent = exponent * 10 + (text[i] - '0');
    }
    if (i == firstDigit) Raise(ErrorCode::TypeMismatch);
    if (negative) exponent = -exponent;
  }
  if (i != end) Raise(ErrorCode::TypeMismatch);

  if (!seenSignificant) {
    order = 0;
  } else {
    order = exponent + (digitsBeforePoint > 0 ? digitsBeforePoint - 1 : -zerosAfterPoint - 1);
  }
  return clean;
}

// The text as a double: "Overflow" beyond the double range, 0 (keeping the
// sign) below it.
double ParseDouble(std::string_view text) {
  long long order = 0;
  const std::string clean = ScanNumber(text, order);
  double value = 0.0;
  const auto [ptr, ec] = std::from_chars(clean.data(), clean.data() + clean.size(), value);
  if (ec == std::errc::result_out_of_range) {
    if (order > 0) Raise(ErrorCode::Overflow);
    return clean[0] == '-' ? -0.0 : 0.0;
  }
  if (ec != std::errc() || ptr != clean.data() + clean.size()) Raise(ErrorCode::TypeMismatch);
  return value;
}

// The text as a float, rounded once from its decimal digits (a detour
// through a double could round twice): "Overflow" beyond the float range, 0
// (keeping the sign) below it.
float ParseFloat(std::string_view text) {
  long long order = 0;
  const std::string clean = ScanNumber(text, order);
  float value = 0.0f;
  const auto [ptr, ec] = std::from_chars(clean.data(), clean.data() + clean.size(), value);
  if (ec == std::errc::result_out_of_range) {
    if (order > 0) Raise(ErrorCode::Overflow);
    return clean[0] == '-' ? -0.0f : 0.0f;
  }
  if (ec != std::errc() || ptr != clean.data() + clean.size()) Raise(ErrorCode::TypeMismatch);
  if (!std::isfinite(value)) Raise(ErrorCode::Overflow);
  return value;
}

// The text as a 16-bit integer, rounded from its decimal digits: only a text
// that is exactly half way between two integers is a tie (and goes to the
// even one), however many digits it takes to tell.
std::int16_t ParseInteger(std::string_view text) {
  long long order = 0;
  const std::string clean = ScanNumber(text, order);
  if (order > 5) Raise(ErrorCode::Overflow);  // 10^6 and more: out of range whatever the digits
  const bool negative = clean[0] == '-';
  std::string digits;  // every mantissa digit, the point dropped
  long long pointAt = -1;
  long long exponent = 0;
  for (std::size_t i = negative ? 1 : 0; i < clean.size(); ++i) {
    const char c = clean[i];
    if (c == '.') {
      pointAt = static_cast<long long>(digits.size());
    } else if (c == 'e') {
      const auto [p, ec] = std::from_chars(clean.data() + i + 1, clean.data() + clean.size(), exponent);
      if (ec == std::errc::result_out_of_range) exponent = clean[i + 1] == '-' ? -2'000'000'000 : 2'000'000'000;
      break;
    } else {
      digits += c;
    }
  }
  if (pointAt < 0) pointAt = static_cast<long long>(digits.size());
  // Digits before `wholeEnd` make the whole part; the rest are the fraction.
  const long long wholeEnd = pointAt + exponent;
  const long long size = static_cast<long long>(digits.size());
  auto digitAt = [&](long long k) { return k >= 0 && k < size ? digits[static_cast<std::size_t>(k)] : '0'; };
  long long whole = 0;
  if (order >= 0) {
    for (long long k = 0; k < wholeEnd; ++k) whole = whole * 10 + (digitAt(k) - '0');
  }
  const char first = digitAt(wholeEnd);  // the first decimal
  bool beyondHalf = false;               // any non-zero digit after it
  for (long long k = std::max(wholeEnd + 1, 0LL); k < size; ++k)
    beyondHalf |= digits[static_cast<std::size_t>(k)] != '0';
  if (first > '5' || (first == '5' && (beyondHalf || whole % 2 != 0))) ++whole;
  if (negative) whole = -whole;
  if (whole < -32768 || whole > 32767) Raise(ErrorCode::Overflow);
  return static_cast<std::int16_t>(whole);
}

// ---------------------------------------------------------------------------
// Number to text

// A finite value as decimal digits: value = 0 when `digits` is empty,
// otherwise d1.d2d3... x 10^exp, with no trailing zeros in `digits`.
struct Decimal {
  bool negative = false;
  std::string digits;
  int exp = 0;
  bool IsZero() const { return digits.empty(); }
};

// The value rounded to `precision` significant digits (correctly rounded from
// its exact binary value), trailing zeros dropped. This is the digit source of
// every number-to-text form.
Decimal Significant(double value, int precision) {
  Decimal d;
  if (!std::isfinite(value)) Raise(ErrorCode::Overflow);
  if (value == 0.0) return d;
  d.negative = std::signbit(value);
  char buf[64];
  const auto res = std::to_chars(buf, buf + sizeof buf, std::fabs(value), std::chars_format::scientific, precision - 1);
  const std::string_view s(buf, static_cast<std::size_t>(res.ptr - buf));  // "d.ddde+XX"
  const std::size_t e = s.find('e');
  for (std::size_t i = 0; i < e; ++i) {
    if (s[i] != '.') d.digits += s[i];
  }
  while (!d.digits.empty() && d.digits.back() == '0') d.digits.pop_back();
  d.exp = std::atoi(std::string(s.substr(e + 1)).c_str());
  return d;
}

// Keeps the digits down to the place 10^lowestPlace, rounding half away from
// zero on the decimal digits.
Decimal RoundAt(Decimal d, int lowestPlace) {
  if (d.IsZero()) return d;
  const long keep = static_cast<long>(d.exp) - lowestPlace + 1;  // digits that survive
  if (keep >= static_cast<long>(d.digits.size())) return d;
  if (keep < 0) return Decimal{};
  const bool up = d.digits[static_cast<std::size_t>(keep)] >= '5';
  d.digits.resize(static_cast<std::size_t>(keep));
  if (up) {
    std::size_t i = d.digits.size();
    while (i > 0 && d.digits[i - 1] == '9') d.digits[--i] = '0';
    if (i == 0) {
      d.digits.insert(d.digits.begin(), '1');
      ++d.exp;
    } else {
      ++d.digits[i - 1];
    }
  }
  while (!d.digits.empty() && d.digits.back() == '0') d.digits.pop_back();
  if (d.digits.empty()) d = Decimal{};
  return d;
}

std::string ExponentText(int exp) {
  std::string s = exp < 0 ? "-" : "+";
  const std::string n = std::to_string(exp < 0 ? -exp : exp);
  if (n.size() < 2) s += '0';
  return s + n;
}

// Form 2. With d1..dk the significant digits after rounding to p and E the
// exponent of d1 (value = d1.d2...dk x 10^E), fixed notation is used when
//   E < p               (the value is below 10^p), and
//   k - 1 - E <= p      (the last significant digit lies within p decimals);
// otherwise the exponent form d1[.d2...dk]E+XX. Fixed notation has a leading
// "0" before the point for values below 1 and no point for whole numbers.
std::string ShortestText(double value, int p) {
  const Decimal d = Significant(value, p);
  if (d.IsZero()) return "0";
  const int k = static_cast<int>(d.digits.size());
  std::string out = d.negative ? "-" : "";
  if (d.exp < p && k - 1 - d.exp <= p) {
    if (d.exp < 0) {
      out += "0.";
      out.append(static_cast<std::size_t>(-d.exp - 1), '0');
      out += d.digits;
    } else if (k <= d.exp + 1) {
      out += d.digits;
      out.append(static_cast<std::size_t>(d.exp + 1 - k), '0');
    } else {
      out += d.digits.substr(0, static_cast<std::size_t>(d.exp + 1));
      out += '.';
      out += d.digits.substr(static_cast<std::size_t>(d.exp + 1));
    }
    return out;
  }
  out += d.digits[0];
  if (k > 1) out += '.' + d.digits.substr(1);
  return out + "E" + ExponentText(d.exp);
}

// The layout of a digit-placeholder pattern such as "#,##0.00".
struct Layout {
  int minInt = 0;      // integer digits always shown (zero padded)
  bool group = false;  // "," between thousands
  bool point = false;  // the point is written, even with no decimals behind it
  int minFrac = 0;     // decimals always shown
  int maxFrac = 0;     // decimals at most; the value is rounded there
};

// Fixed notation of form-2 digits, rounded half away from zero to
// layout.maxFrac decimals. A value that rounds to zero has no minus sign.
std::string FixedText(const Decimal& value, const Layout& layout) {
  const Decimal d = RoundAt(value, -layout.maxFrac);
  const int k = static_cast<int>(d.digits.size());
  auto digitAt = [&](int place) -> char {  // the digit at 10^place
    const int i = d.exp - place;
    return (d.IsZero() || i < 0 || i >= k) ? '0' : d.digits[static_cast<std::size_t>(i)];
  };

  std::string whole;
  const int top = (!d.IsZero() && d.exp >= 0) ? d.exp : -1;
  for (int place = std::max(top, layout.minInt - 1); place >= 0; --place) {
    if (layout.group && !whole.empty() && (place + 1) % 3 == 0) whole += ',';
    whole += digitAt(place);
  }
  int fracDigits = layout.minFrac;
  if (!d.IsZero()) fracDigits = std::max(fracDigits, std::min(layout.maxFrac, k - 1 - d.exp));
  std::string frac;
  for (int place = -1; place >= -fracDigits; --place) frac += digitAt(place);

  std::string out = (d.negative && !d.IsZero()) ? "-" : "";
  out += whole;
  if (layout.point) out += '.';
  return out + frac;
}

// Parses a pattern made of "0", "#", "," and at most one "."; false for any
// other pattern.
bool ParseLayout(std::string_view pattern, Layout& layout) {
  if (pattern.empty()) return false;
  const std::size_t dot = pattern.find('.');
  const std::string_view whole = pattern.substr(0, dot);
  const std::string_view frac = dot == std::string_view::npos ? "" : pattern.substr(dot + 1);
  bool zeroSeen = false;
  for (char c : whole) {
    if (c == ',') {
      layout.group = true;
    } else if (c == '0' || c == '#') {
      zeroSeen = zeroSeen || c == '0';
      if (zeroSeen) ++layout.minInt;
    } else {
      return false;
    }
  }
  for (std::size_t i = 0; i < frac.size(); ++i) {
    if (frac[i] != '0' && frac[i] != '#') return false;
    ++layout.maxFrac;
    if (frac[i] == '0') layout.minFrac = static_cast<int>(i) + 1;
  }
  layout.point = dot != std::string_view::npos;
  return true;
}

bool SameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const auto lower = [](char c) { return (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : c; };
    if (lower(a[i]) != lower(b[i])) return false;
  }
  return true;
}

// Mantissa with two decimals, rounded half away from zero on the form-2
// digits, then "E", the sign and at least two exponent digits.
std::string ScientificText(const Decimal& value) {
  const Decimal d = RoundAt(value, value.exp - 2);
  if (d.IsZero()) return "0.00E+00";
  std::string m = d.digits;
  m.resize(3, '0');
  return std::string(d.negative ? "-" : "") + m[0] + '.' + m.substr(1) + "E" + ExponentText(d.exp);
}

std::string FormatPattern(double value, int p, std::string_view pattern) {
  if (SameName(pattern, "General Number")) return ShortestText(value, p);
  const Decimal d = Significant(value, p);
  if (SameName(pattern, "Scientific")) return ScientificText(d);
  if (SameName(pattern, "Standard")) return FixedText(d, Layout{1, true, true, 2, 2});
  Layout layout;
  if (ParseLayout(pattern, layout)) return FixedText(d, layout);
  return ShortestText(value, p);
}

std::string FormatNumberText(double value, int p, int n) {
  if (n < 0) Raise(ErrorCode::InvalidProcedureCall);
  return FixedText(Significant(value, p), Layout{1, true, n > 0, n, n});
}

}  // namespace

// ---------------------------------------------------------------------------

Expr operator+(Expr a, Expr b) { return Expr(a.value() + b.value()); }
Expr operator-(Expr a, Expr b) { return Expr(a.value() - b.value()); }
Expr operator*(Expr a, Expr b) { return Expr(a.value() * b.value()); }
Expr operator/(Expr a, Expr b) {
  if (b.value() == 0.0) {
    if (a.value() == 0.0 || std::isnan(a.value())) Raise(ErrorCode::Overflow);
    Raise(ErrorCode::DivisionByZero);
  }
  return Expr(a.value() / b.value());
}
Expr operator-(Expr a) { return Expr(-a.value()); }
bool operator==(Expr a, Expr b) { return a.value() == b.value(); }
bool operator<(Expr a, Expr b) { return a.value() < b.value(); }
bool operator<=(Expr a, Expr b) { return a.value() <= b.value(); }
bool operator>(Expr a, Expr b) { return a.value() > b.value(); }
bool operator>=(Expr a, Expr b) { return a.value() >= b.value(); }

Expr Pow(Expr a, Expr b) { return Expr(std::pow(a.value(), b.value())); }
Expr Sqrt(Expr a) {
  if (a.value() < 0.0) Raise(ErrorCode::InvalidProcedureCall);
  return Expr(std::sqrt(a.value()));
}
Expr Log(Expr a) {
  if (!(a.value() > 0.0)) Raise(ErrorCode::InvalidProcedureCall);
  return Expr(std::log(a.value()));
}
Expr Exp(Expr a) { return Expr(std::exp(a.value())); }

Single::Single(Expr e) : v_(StoreSingle(e.value())) {}
Double::Double(Expr e) : v_(StoreDouble(e.value())) {}
Integer::Integer(Expr e) : v_(StoreInteger(e.value())) {}

Integer& Integer::operator++() {
  if (v_ == std::numeric_limits<std::int16_t>::max()) Raise(ErrorCode::Overflow);
  ++v_;
  return *this;
}
Integer& Integer::operator--() {
  if (v_ == std::numeric_limits<std::int16_t>::min()) Raise(ErrorCode::Overflow);
  --v_;
  return *this;
}
Integer& Integer::operator+=(Expr e) { return *this = Integer(Expr(v_) + e); }
Integer& Integer::operator-=(Expr e) { return *this = Integer(Expr(v_) - e); }

// Each conversion rounds once, from the text's own digits.
Single CSng(std::string_view text) { return Single(Expr(ParseFloat(text))); }
Double CDbl(std::string_view text) { return Double(Expr(ParseDouble(text))); }
Integer CInt(std::string_view text) { return Integer(Expr(ParseInteger(text))); }
Integer CInt(Expr e) { return Integer(e); }

std::string Str(Single x) { return ShortestText(x.value(), kSingleDigits); }
std::string Str(Double x) { return ShortestText(x.value(), kDoubleDigits); }
std::string Str(Integer x) { return std::to_string(x.value()); }

std::string FormatNumber(Single x, int n) { return FormatNumberText(x.value(), kSingleDigits, n); }
std::string FormatNumber(Double x, int n) { return FormatNumberText(x.value(), kDoubleDigits, n); }

std::string Format(Single x, std::string_view pattern) { return FormatPattern(x.value(), kSingleDigits, pattern); }
std::string Format(Double x, std::string_view pattern) { return FormatPattern(x.value(), kDoubleDigits, pattern); }

std::string Str(const Variant& v) {
  if (v.IsNumber()) return Str(Double(Expr(v.Number())));
  if (v.IsText()) return v.Text();
  return "";
}

Double CDbl(const Variant& v) {
  if (v.IsNumber()) return Double(Expr(v.Number()));
  if (v.IsText()) return CDbl(std::string_view(v.Text()));
  if (v.IsNull()) Raise(ErrorCode::InvalidUseOfNull);
  return Double(Expr(0.0));
}

}  // namespace orv
