#pragma once
// What a user does to the program and what the user sees of it, behind one
// interface: the headless driver goes straight through the runtime, the Qt
// driver through the real widgets. The runner and its expectations speak
// only to this.

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "shell/chart.h"
#include "shell/picture.h"
#include "shell/program.h"

namespace orv::test {
struct FakeServices;
}

namespace orv::scenario {

// A tree view's node as shown.
struct ShownNode {
  std::string text;
  bool expanded = false;
  bool selected = false;
};
using ShownNodes = std::map<std::string, ShownNode>;  // by key

class Driver {
 public:
  virtual ~Driver() = default;

  // The services the program runs on. What the user meets (boxes, print-outs,
  // beeps) ends up in the fakes the driver was made with.
  virtual View* view() = 0;
  virtual MessageService& messages() = 0;
  virtual PrintService& printer() = 0;
  virtual ClipboardService& clipboard() = 0;
  // Called once the program exists, before its start-up routine.
  virtual void Attach(Program& program) = 0;
  // Lets the toolkit deliver whatever the last step left pending.
  virtual void Settle() = 0;

  // The user's actions.
  virtual void Click(Control& c, bool twice) = 0;
  // A click on a tree view's node; fails when the node is out of sight.
  virtual void ClickNode(Control& c, const std::string& key, bool twice) = 0;
  // Gives the control the focus, as before typing into it.
  virtual void Focus(Control& c) = 0;
  // One key, to the control with the focus (the screen itself when none).
  virtual void PressKey(Form& form, Control* focus, const Key& key) = 0;
  // Replaces a box's whole text as the context menu's Paste does.
  virtual void Paste(Control& c, const std::string& text) = 0;
  virtual void Select(Control& c, int row) = 0;
  // The window's close button.
  virtual void Close(Form& form) = 0;
  // Saves the window's image, where there is one.
  virtual void Snapshot(Form& form, const std::string& file) = 0;

  // What the user sees.
  virtual std::string Text(Control& c) = 0;
  virtual bool Enabled(Control& c) = 0;
  virtual bool Visible(Control& c) = 0;
  virtual bool Checked(Control& c) = 0;
  virtual bool Focused(Control& c) = 0;
  virtual std::string ToolTip(Control& c) = 0;
  // The face (back) or caption (fore) colour as RGB, kNoColor where the
  // control keeps the style's.
  virtual int Colour(Control& c, bool back) = 0;
  virtual std::vector<std::string> Rows(Control& c) = 0;
  // A picture box's, a chart's, a rich text box's and a tree view's content.
  virtual std::vector<PictureItem> Drawing(Control& c) = 0;
  virtual const ChartContent& Chart(Control& c) = 0;
  virtual std::vector<int> Offsets(Control& c) = 0;
  virtual ShownNodes Nodes(Control& c) = 0;
  virtual bool WindowVisible(Form& form) = 0;
  virtual std::string Caption(Form& form) = 0;
};

// Straight through the runtime: the program's own fakes, the model's state.
std::unique_ptr<Driver> MakeHeadlessDriver(test::FakeServices& fakes);

}  // namespace orv::scenario
