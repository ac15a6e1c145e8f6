#pragma once
#include "shell/screen_frame.h"

namespace orv {

// The program's title, version and maker, and a button for the system
// information tool.
class frmAbout : public Form {
 public:
  explicit frmAbout(Program& program);

 private:
  void Form_Load();
  void cmdOk_Click();
  void cmdSysInfo_Click();
  void StartSysInfo();
};

}  // namespace orv
