#include "general/frmSigfig.h"

#include "general/module2.h"

namespace orv {

namespace {

constexpr std::string_view kScreenTitle = "Significant Figures";
constexpr KeyFilter kSigfigFilter{".", kScreenTitle};

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "lblsigfig1", .caption = "Enter a number", .rect = {20, 22, 150, 22}},
    {.kind = Kind::TextBox,
     .name = "txtSigfig1",
     .rect = {176, 18, 180, 26},
     .toolTip = "Enter a number.",
     .filter = &kSigfigFilter},
    {.kind = Kind::Label, .name = "lblSigfig2", .caption = "Significant figures", .rect = {20, 62, 150, 22}},
    {.kind = Kind::TextBox, .name = "txtSigfig2", .rect = {176, 58, 180, 26}, .flags = kDisabled},
    OkButton({20, 110, 80, 30}, kOkTip),
    ClearButton({108, 110, 80, 30}),
    CancelButton({196, 110, 80, 30}),
    PrintButton({284, 110, 80, 30}),
    HelpButton({332, 152, 32, 26}),
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
