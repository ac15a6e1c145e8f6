#include "general/module2.h"

#include "shell/screen_frame.h"

namespace orv {

namespace {
// One character of the text read as a number, as the counter reads digits.
Double CharValue(const std::string& text, int position) { return CDbl(Mid(text, position, 1)); }
}  // namespace

void Module2::CountSigFigs(Form& form, const std::string& text) {
  form.Trapped({"", Icon::Information, kTitle}, [&] {
    SigCount = Expr(0);
    SigLength = Expr(Len(text));
    SigPoint = Expr(InStr(text, "."));
    if (SigPoint.value() == 0) {
      for (SigIndex = Expr(1); SigIndex.value() <= SigLength.value(); ++SigIndex) Process(SigIndex.value());
    } else {
      SigHasPoint = true;
      for (SigIndex = Expr(1); SigIndex.value() <= SigPoint.value() - 1; ++SigIndex) Process(SigIndex.value());
      for (SigIndex = Expr(SigPoint.value() + 1); SigIndex.value() <= SigLength.value(); ++SigIndex) {
        Process(SigIndex.value());
      }
    }
  });
}

void Module2::Process(int position) {
  const Double digit = CharValue(SigText, position);
  if (digit.value() > 0) {
    ++SigCount;
    SigNonZeroSeen = true;
  } else if (digit.value() == 0) {
    SigDigit = digit;
    CountZero(SigDigit);
  }
}

void Module2::CountZero(const Double& /*digit*/) {
  if (SigHasPoint && SigNonZeroSeen) {
    ++SigCount;
    return;
  }
  if (ZeroHasDigitBehind() && SigNonZeroSeen) ++SigCount;
}

bool Module2::ZeroHasDigitBehind() {
  for (SigScan = SigIndex; SigScan.value() <= SigLength.value(); ++SigScan) {
    const int p = SigScan.value();
    const int look = p < SigLength.value() ? p + 1 : p;
    if (CharValue(SigText, look).value() > 0) return true;
  }
  return false;
}

}  // namespace orv
