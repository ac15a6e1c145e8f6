#pragma once
// The significant-figure counter and its module-level state. The state
// outlives the screen: the two truth values carry over from one count to the
// next until cmdClear resets them.

#include <string>

#include "shell/numbers.h"

namespace orv {

class Form;

struct Module2 {
  std::string SigText;
  Integer SigLength;
  Integer SigIndex;
  Integer SigCount;
  Integer SigPoint;
  bool SigNonZeroSeen = false;
  bool SigHasPoint = false;
  Double SigDigit;
  Integer SigScan;

  // Counts the significant figures of `text` into SigCount. A character that
  // is no digit stops the count with a message box on `form` (own trap).
  void CountSigFigs(Form& form, const std::string& text);
  void CountZero(const Double& digit);
  bool ZeroHasDigitBehind();

 private:
  void Process(int position);
};

}  // namespace orv
