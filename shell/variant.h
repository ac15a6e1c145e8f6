#pragma once
// An any-typed value as the data engine hands out fields and as the formula
// scanner keeps its stack: Empty, Null, a number or a text.

#include <string>
#include <variant>

namespace orv {

struct Empty {
  bool operator==(const Empty&) const = default;
};
struct Null {
  bool operator==(const Null&) const = default;
};

class Variant {
 public:
  Variant() = default;
  Variant(Null) : v_(Null{}) {}
  Variant(double d) : v_(d) {}
  Variant(int i) : v_(static_cast<double>(i)) {}
  Variant(std::string s) : v_(std::move(s)) {}
  Variant(const char* s) : v_(std::string(s)) {}

  bool IsEmpty() const { return std::holds_alternative<Empty>(v_); }
  bool IsNull() const { return std::holds_alternative<Null>(v_); }
  bool IsNumber() const { return std::holds_alternative<double>(v_); }
  bool IsText() const { return std::holds_alternative<std::string>(v_); }

  double Number() const { return std::get<double>(v_); }
  const std::string& Text() const { return std::get<std::string>(v_); }

  bool operator==(const Variant&) const = default;

 private:
  std::variant<Empty, Null, double, std::string> v_;
};

}  // namespace orv
