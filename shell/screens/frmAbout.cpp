#include "shell/screens/frmAbout.h"

namespace orv {

namespace {

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "lblTitle", .rect = {24, 16, 384, 32}, .flags = kBold | kLarge},
    {.kind = Kind::Label, .name = "lblVersion", .rect = {24, 52, 384, 22}, .flags = kBold},
    {.kind = Kind::Label, .name = "lblDescription", .rect = {24, 86, 384, 60}},
    {.kind = Kind::Label, .name = "lblDisclaimer", .rect = {24, 162, 256, 62}, .flags = kSmall},
    {.kind = Kind::Button, .name = "cmdOk", .caption = "Ok", .rect = {296, 160, 112, 30}, .flags = kDefault | kCancel},
    {.kind = Kind::Button, .name = "cmdSysInfo", .caption = "&System Info...", .rect = {296, 198, 112, 30}},
};

constexpr std::string_view kUnavailable = "System Information Is Unavailable At This Time";

}  // namespace

frmAbout::frmAbout(Program& program) : Form(program, {"frmAbout", "", 432, 244}, kControls) {
  Bind("Form", Ev::Load, &frmAbout::Form_Load);
  Bind("cmdOk", Ev::Click, &frmAbout::cmdOk_Click);
  Bind("cmdSysInfo", Ev::Click, &frmAbout::cmdSysInfo_Click);
}

void frmAbout::Form_Load() {
  SetCaption("Halveron Software");
  ctl("lblVersion").SetCaption("The Orvanta Problem-Solving Assistant");
  ctl("lblTitle").SetCaption("Orvanta V1.5");
  ctl("lblDisclaimer")
      .SetCaption("Orvanta is a study aid. Check every answer against your own work and your textbook.");
  ctl("lblDescription").SetCaption("Halveron Software\nSoftware for the chemistry classroom\nwww.halveron.example");
}

void frmAbout::cmdOk_Click() { Unload(); }

void frmAbout::cmdSysInfo_Click() { StartSysInfo(); }

// The system information tool is found through the Windows registry. This
// platform has no registry, so the tool is never found and the user is told
// so. The box is given no title of its own and carries the application's
// name, as the run-time's boxes do.
void frmAbout::StartSysInfo() { MsgBox(kUnavailable, Icon::None, kTitle); }

}  // namespace orv
