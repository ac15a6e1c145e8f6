#include "shell/screens/frmAbout.h"

namespace orv {

namespace {

constexpr ControlSpec kControls[] = {
    {Kind::Label, "lblTitle", "", {24, 16, 384, 32}, {}, {}, -1, kBold | kLarge},
    {Kind::Label, "lblVersion", "", {24, 52, 384, 22}, {}, {}, -1, kBold},
    {Kind::Label, "lblDescription", "", {24, 86, 384, 60}},
    {Kind::Label, "lblDisclaimer", "", {24, 162, 256, 62}, {}, {}, -1, kSmall},
    {Kind::Button, "cmdOk", "Ok", {296, 160, 112, 30}, {}, {}, -1, kDefault | kCancel},
    {Kind::Button, "cmdSysInfo", "&System Info...", {296, 198, 112, 30}},
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
