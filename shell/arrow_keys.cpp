#include "shell/arrow_keys.h"

#include <climits>
#include <cstdlib>

#include "shell/form.h"
#include "shell/geometry.h"
#include "shell/program.h"

namespace orv {

bool IsArrowKey(int keyCode) {
  return keyCode == kKeyLeft || keyCode == kKeyRight || keyCode == kKeyUp || keyCode == kKeyDown;
}

Control* ButtonToward(const Control& from, int keyCode) {
  if (!IsArrowKey(keyCode)) return nullptr;
  const bool across = keyCode == kKeyLeft || keyCode == kKeyRight;
  const int sign = (keyCode == kKeyRight || keyCode == kKeyDown) ? 1 : -1;
  const Rect f = FormRect(from);
  Control* best = nullptr;
  bool bestInLine = false;
  long bestScore = LONG_MAX;
  for (const auto& owned : from.form().controls()) {
    Control& c = *owned;
    if (&c == &from || c.kind() != Kind::Button || !c.TakesInput()) continue;
    const Rect r = FormRect(c);
    // Distances along the key's way and across it, on doubled centres.
    const long along = sign * (across ? CentreX2(r) - CentreX2(f) : CentreY2(r) - CentreY2(f));
    const long aside = std::labs(across ? CentreY2(r) - CentreY2(f) : CentreX2(r) - CentreX2(f));
    if (along <= 0) continue;
    // Sharing a row (or a column) means the spans overlap across the way.
    const bool inLine = across ? (r.y < f.y + f.h && r.y + r.h > f.y) : (r.x < f.x + f.w && r.x + r.w > f.x);
    const long score = inLine ? along * 4 + aside : along + 2 * aside;
    if ((inLine && !bestInLine) || (inLine == bestInLine && score < bestScore)) {
      best = &c;
      bestInLine = inLine;
      bestScore = score;
    }
  }
  return best;
}

}  // namespace orv
