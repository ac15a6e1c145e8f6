#pragma once
// The key filter of the calculators' input boxes: digits pass, then the
// field's extra characters, then Enter and Backspace; anything else is
// refused with a message box and swallowed.

#include <string>
#include <string_view>

namespace orv {

class Form;

class KeyFilter {
 public:
  static constexpr std::string_view kRefusal = "You must enter a valid numerical expression";

  // extras: the characters allowed beside the digits (".", ".E", "+-.E", ...).
  // title: the refusal box's title. enterPasses: false on the few fields
  // where Enter itself is refused.
  constexpr KeyFilter(std::string_view extras, std::string_view title, std::string_view text = kRefusal,
                      bool enterPasses = true)
      : extras_(extras), title_(title), text_(text), enterPasses_(enterPasses) {}

  // Whether the character passes, without any message.
  bool Passes(int keyAscii) const;
  // Runs the filter on a KeyPress: a refused character brings the refusal
  // box and becomes 0.
  void Apply(Form& form, int& keyAscii) const;

  std::string_view extras() const { return extras_; }
  std::string_view title() const { return title_; }
  std::string_view text() const { return text_; }

 private:
  std::string_view extras_;
  std::string_view title_;
  std::string_view text_;
  bool enterPasses_;
};

}  // namespace orv
