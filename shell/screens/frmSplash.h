#pragma once
#include "shell/screen_frame.h"

namespace orv {

// The splash above the main screen; a key or a click on it closes it.
class frmSplash : public Form {
 public:
  explicit frmSplash(Program& program);

 private:
  void Form_Load();
  void Form_KeyPress(int& KeyAscii);
  void Close_Click();
};

}  // namespace orv
