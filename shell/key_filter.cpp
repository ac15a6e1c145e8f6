#include "shell/key_filter.h"

#include "shell/form.h"

namespace orv {

bool KeyFilter::Passes(int keyAscii) const {
  if (keyAscii >= '0' && keyAscii <= '9') return true;
  if (keyAscii > 0 && keyAscii < 128 && extras_.find(static_cast<char>(keyAscii)) != std::string_view::npos) {
    return true;
  }
  if (keyAscii == 13) return enterPasses_;
  return keyAscii == 8;
}

void KeyFilter::Apply(Form& form, int& keyAscii) const {
  if (Passes(keyAscii)) return;
  form.MsgBox(text_, Icon::None, title_);
  keyAscii = 0;
}

}  // namespace orv
