#pragma once
#include <string>
#include <vector>

#include "shell/screen_frame.h"

namespace orv {

// The help browser: a tree of topics and the text of the topic opened by a
// double click, read from a plain text file beside the executable.
class frmHelp : public Form {
 public:
  explicit frmHelp(Program& program);

  // Loads a topic's file into RTB1; a failure shows its words and leaves
  // RTB1 as it was.
  void GetHelp(const std::string& fileName);

 private:
  void Form_Load();
  void TreeView1_DblClick();
  void cmdClear_Click();
  void cmdPrint_Click();
  void cmdCancel_Click();

  // The tree's pictures, taken from Image1 at load.
  std::vector<std::string> ImageList1;
};

}  // namespace orv
