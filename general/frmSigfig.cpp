#include "general/frmSigfig.h"

#include "general/module2.h"

namespace orv {

namespace {

constexpr std::string_view kScreenTitle = "Significant Figures";
constexpr KeyFilter kSigfigFilter{".", kScreenTitle};

constexpr ControlSpec kControls[] = {
    {Kind::Label, "lblsigfig1", "Enter a number", {20, 22, 150, 22}},
    {Kind::TextBox, "txtSigfig1", "", {176, 18, 180, 26}, "Enter a number.", {}, -1, 0, &kSigfigFilter},
    {Kind::Label, "lblSigfig2", "Significant figures", {20, 62, 150, 22}},
    {Kind::TextBox, "txtSigfig2", "", {176, 58, 180, 26}, {}, {}, -1, kDisabled},
    {Kind::Button, "cmdOk", "Ok", {20, 110, 80, 30}, "Press to calculate your answer.", {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {108, 110, 80, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {196, 110, 80, 30}, {}, {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {284, 110, 80, 30}},
    {Kind::Button, "cmdHelp", "?", {332, 152, 32, 26}, "Press for help", {}, -1, kSmall},
};

constexpr std::string_view kHelp =
    "A significant figure is one that you can have a high degree of confidence in. It is not a guess. Calculations "
    "in chemistry depend upon numbers that are real , dependable numbers and not guesses or estimates. Rules have "
    "been set up to guarantee that numbers are accurate and reliable.";

}  // namespace

frmSigfig::frmSigfig(Program& program)
    : CalculatorScreen(program, {"frmSigfig", kScreenTitle, 384, 190}, kControls,
                       {"frmGeneralChoice", "txtSigfig1", kHelp}) {
  Bind("Form", Ev::Load, &frmSigfig::Form_Load);
  Bind("cmdOk", Ev::Click, &frmSigfig::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmSigfig::cmdClear_Click);
  EnterRunsOk("txtSigfig1");
}

void frmSigfig::Form_Load() {
  HideForm("frmGeneralChoice");
  EmptyBoxes({"txtSigfig1", "txtSigfig2"});
  DisableOkAndPrint();
}

void frmSigfig::cmdOk_Click() {
  Module2& m = program().Module<Module2>();
  Trapped({"", Icon::Information, kScreenTitle}, [&] {
    Control& txtSigfig1 = ctl("txtSigfig1");
    if (Left(txtSigfig1.Text(), 1) == "-") txtSigfig1.SetText(Mid(txtSigfig1.Text(), 2));
    Single value;
    if (!txtSigfig1.Text().empty()) value = CSng(txtSigfig1.Text());
    if (txtSigfig1.Text().empty() || value.value() <= 0) {
      MsgBox("You must enter valid data into the box.", Icon::None, kScreenTitle);
      return;
    }
    m.SigText = txtSigfig1.Text();
    m.CountSigFigs(*this, m.SigText);
    ctl("txtSigfig2").SetText(Str(m.SigCount));
  });
}

void frmSigfig::cmdClear_Click() {
  EmptyBoxes({"txtSigfig1", "txtSigfig2"});
  ctl("txtSigfig1").SetFocus();
  Module2& m = program().Module<Module2>();
  m.SigNonZeroSeen = false;
  m.SigHasPoint = false;
}

}  // namespace orv
