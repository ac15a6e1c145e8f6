#include "shell/screen_frame.h"

namespace orv {

CalculatorScreen::CalculatorScreen(Program& program, const FormSpec& form, std::span<const ControlSpec> controls,
                                   const CalculatorSpec& calc)
    : Form(program, form, controls), calc_(calc) {
  if (!calc_.designated.empty()) Bind(calc_.designated, Ev::Change, &CalculatorScreen::Designated_Change);
  Bind("Form", Ev::KeyDown, &CalculatorScreen::Form_KeyDown);
  if (find("cmdCancel") != nullptr) Bind("cmdCancel", Ev::Click, &CalculatorScreen::cmdCancel_Click);
  if (find("cmdHelp") != nullptr) Bind("cmdHelp", Ev::Click, &CalculatorScreen::cmdHelp_Click);
  if (find("cmdPrint") != nullptr) Bind("cmdPrint", Ev::Click, &CalculatorScreen::cmdPrint_Click);
}

void CalculatorScreen::EnterRunsOk(std::string_view box) {
  On(box, Ev::KeyDown, [this](EventArgs& a) {
    if (a.keyCode == kKeyReturn) Call("cmdOk", Ev::Click);
  });
}

void CalculatorScreen::DisableOkAndPrint() {
  if (Control* c = find("cmdPrint")) c->SetEnabled(false);
  if (Control* c = find("cmdOk")) c->SetEnabled(false);
}

void CalculatorScreen::Designated_Change() {
  if (Control* c = find("cmdOk")) c->SetEnabled(true);
  if (Control* c = find("cmdPrint")) c->SetEnabled(true);
}

void CalculatorScreen::Form_KeyDown(int& KeyCode, int /*Shift*/) {
  if (KeyCode == kKeyF1) ShowForm("frmHelp");
}

void CalculatorScreen::cmdCancel_Click() {
  if (!calc_.parent.empty()) ShowForm(calc_.parent);
  Unload();
}

void CalculatorScreen::cmdHelp_Click() { MsgBox(calc_.helpText, Icon::Information, kTitle); }

void CalculatorScreen::cmdPrint_Click() { PrintForm(); }

}  // namespace orv
