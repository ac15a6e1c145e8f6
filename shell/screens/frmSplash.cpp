#include "shell/screens/frmSplash.h"

namespace orv {

namespace {
constexpr ControlSpec kControls[] = {
    {Kind::Frame, "Frame1", "", {8, 8, 464, 268}},
    {Kind::Image, "imgLogo", "", {20, 28, 128, 128}, {}, "Frame1"},
    {Kind::Label, "lblProductName", "", {164, 30, 286, 60}, {}, "Frame1", -1, kBold | kLarge},
    {Kind::Label, "lblCompanyProduct", "Orvanta V1.5", {164, 96, 286, 24}, {}, "Frame1", -1, kBold},
    {Kind::Label, "Label3", "", {164, 126, 286, 24}, {}, "Frame1"},
    {Kind::Label, "Label1", "", {20, 170, 430, 58}, {}, "Frame1"},
    {Kind::Label, "Label2", "", {20, 232, 430, 24}, {}, "Frame1", -1, kSmall},
};
}  // namespace

frmSplash::frmSplash(Program& program) : Form(program, {"frmSplash", "", 480, 284, kFormSplash}, kControls) {
  Bind("Form", Ev::Load, &frmSplash::Form_Load);
  Bind("Form", Ev::KeyPress, &frmSplash::Form_KeyPress);
  for (const char* c : {"Frame1", "imgLogo", "lblProductName", "lblCompanyProduct", "Label1", "Label2", "Label3"}) {
    Bind(c, Ev::Click, &frmSplash::Close_Click);
  }
}

void frmSplash::Form_Load() {
  ctl("lblProductName").SetCaption("The Orvanta Problem-Solving Assistant");
  ctl("Label1").SetCaption("Halveron Software\nSoftware for the chemistry classroom\nwww.halveron.example");
  ctl("Label2").SetCaption("Check every answer against your own work: this program is a study aid.");
  ctl("Label3").SetCaption("Windows 95 / 98 Version");
}

void frmSplash::Form_KeyPress(int& /*KeyAscii*/) { Unload(); }

void frmSplash::Close_Click() { Unload(); }

}  // namespace orv
