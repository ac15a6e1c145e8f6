// The headless driver: the user's actions are the runtime's User... calls, and
// what the user sees is the model's state.

#include "scenario/driver.h"
#include "scenario/steps.h"
#include "shell/rich_text.h"
#include "shell/text.h"
#include "shell/tree.h"
#include "tests/support/fake_services.h"

namespace orv::scenario {

namespace {

class HeadlessDriver : public Driver {
 public:
  explicit HeadlessDriver(test::FakeServices& fakes) : fakes_(fakes) {}

  View* view() override { return nullptr; }
  MessageService& messages() override { return fakes_.messages; }
  PrintService& printer() override { return fakes_.printer; }
  ClipboardService& clipboard() override { return fakes_.clipboard; }
  void Attach(Program& program) override { program_ = &program; }
  void Settle() override {}

  void Click(Control& c, bool twice) override {
    if (twice)
      program_->UserDblClick(c);
    else
      program_->UserClick(c);
  }
  void ClickNode(Control& c, const std::string& key, bool twice) override {
    if (!c.tree().Shown(key)) Fail(c.key() + " does not show the node " + Quote(key));
    if (twice)
      UserDblClickNode(c, key);
    else
      UserClickNode(c, key);
  }
  void Focus(Control& c) override { program_->UserFocus(c); }
  void PressKey(Form& form, Control* focus, const Key& key) override { program_->UserKey(form, focus, key); }
  void Paste(Control& c, const std::string& text) override {
    // As through Qt, a rich text box's whole text is selected, then replaced.
    if (c.kind() == Kind::RichText) program_->UserCaret(c, 0, CharCount(c.Text()));
    program_->UserEdit(c, text);
  }
  void Select(Control& c, int row) override { program_->UserSelectRow(c, row); }
  void Close(Form& form) override { program_->UserClose(form); }
  void Snapshot(Form&, const std::string&) override {}

  std::string Text(Control& c) override { return c.Text(); }
  bool Enabled(Control& c) override { return c.Enabled(); }
  bool Visible(Control& c) override { return c.Visible(); }
  // A list box counts as selected while a row is chosen.
  bool Checked(Control& c) override { return c.kind() == Kind::ListBox ? c.ListIndex() != -1 : c.Value(); }
  bool Focused(Control& c) override { return c.HasFocus(); }
  std::string ToolTip(Control& c) override { return c.ToolTip(); }
  int Colour(Control& c, bool back) override { return back ? c.BackColor() : c.ForeColor(); }
  std::vector<std::string> Rows(Control& c) override { return c.Items(); }
  std::vector<PictureItem> Drawing(Control& c) override { return c.picture().Items(); }
  const ChartContent& Chart(Control& c) override { return c.chart().content(); }
  std::vector<int> Offsets(Control& c) override { return c.rich().Offsets(); }
  ShownNodes Nodes(Control& c) override {
    ShownNodes nodes;
    const TreeNode* selected = c.tree().SelectedItem();
    for (const TreeNode& n : c.tree().Nodes()) nodes[n.key] = {n.text, n.expanded, selected == &n};
    return nodes;
  }
  bool WindowVisible(Form& form) override { return form.Visible(); }
  std::string Caption(Form& form) override { return form.Caption(); }

 private:
  test::FakeServices& fakes_;
  Program* program_ = nullptr;
};

}  // namespace

std::unique_ptr<Driver> MakeHeadlessDriver(test::FakeServices& fakes) {
  return std::make_unique<HeadlessDriver>(fakes);
}

}  // namespace orv::scenario
