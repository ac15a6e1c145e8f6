#include "shell/screens/frmSplash.h"

namespace orv {

namespace {
constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .rect = {8, 8, 464, 268}},
    {.kind = Kind::Image, .name = "imgLogo", .rect = {20, 28, 128, 128}, .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "lblProductName",
     .rect = {164, 30, 286, 60},
     .container = "Frame1",
     .flags = kBold | kLarge},
    {.kind = Kind::Label,
     .name = "lblCompanyProduct",
     .caption = "Orvanta V1.5",
     .rect = {164, 96, 286, 24},
     .container = "Frame1",
     .flags = kBold},
    {.kind = Kind::Label, .name = "Label3", .rect = {164, 126, 286, 24}, .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label1", .rect = {20, 170, 430, 58}, .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label2", .rect = {20, 232, 430, 24}, .container = "Frame1", .flags = kSmall},
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
