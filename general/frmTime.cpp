#include "general/frmTime.h"

namespace orv {

// One conversion button: multiply or divide by a constant, and the unit of
// the result.
struct TimeStep {
  bool multiply;
  Expr by;
  std::string_view unit;
};

namespace {

constexpr KeyFilter kTimeFilter{"+-.E", "Time", "You must enter a valid number value"};

constexpr TimeStep kSToM{false, 60, "minutes"};
constexpr TimeStep kMToS{true, 60, "seconds"};
constexpr TimeStep kMToH{false, 60, "hours"};
constexpr TimeStep kHToM{true, 60, "minutes"};
constexpr TimeStep kHToD{false, 24, "days"};
constexpr TimeStep kDToH{true, 24, "hours"};
constexpr TimeStep kDToY{false, 365.25, "years"};
constexpr TimeStep kYToD{true, 365.25, "days"};

constexpr std::string_view kHelp =
    "Once in a while you are asked to determine the rate of a reaction in seconds, minutes or even perhaps hours. "
    "This section is provided to allow you to make whatever time conversions you most commonly might have to make. "
    "Enter your time quantity and click on the button that corresponds to the new time you want to convert to. ";

constexpr Rect Conversion(int column, int row) { return {20 + column * 136, 60 + row * 38, 128, 30}; }

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label,
     .name = "Label1",
     .caption = "Enter the time value (Numbers only)",
     .rect = {20, 22, 236, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {260, 18, 288, 26}, .filter = &kTimeFilter},
    {.kind = Kind::Button, .name = "cmdSToM", .caption = "Seconds-Minutes", .rect = Conversion(0, 0)},
    {.kind = Kind::Button, .name = "cmdMToH", .caption = "Minutes-Hours", .rect = Conversion(1, 0)},
    {.kind = Kind::Button, .name = "cmdHToD", .caption = "Hours-Days", .rect = Conversion(2, 0)},
    {.kind = Kind::Button, .name = "cmdDToY", .caption = "Days-Years", .rect = Conversion(3, 0)},
    {.kind = Kind::Button, .name = "cmdMToS", .caption = "Minutes-Seconds", .rect = Conversion(0, 1)},
    {.kind = Kind::Button, .name = "cmdHToM", .caption = "Hours-Minutes", .rect = Conversion(1, 1)},
    {.kind = Kind::Button, .name = "cmdDToH", .caption = "Days-Hours", .rect = Conversion(2, 1)},
    {.kind = Kind::Button, .name = "cmdYToD", .caption = "Years - Days", .rect = Conversion(3, 1)},
    {.kind = Kind::Label, .name = "Label2", .caption = "The new time value is", .rect = {20, 152, 236, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {260, 148, 196, 26}},
    {.kind = Kind::Label, .name = "Label3", .rect = {464, 152, 84, 22}},
    ClearButton({20, 194, 80, 30}),
    {.kind = Kind::Button, .name = "cmdClose", .caption = "Cancel", .rect = {108, 194, 80, 30}, .flags = kCancel},
    HelpButton({516, 196, 32, 26}),
};

}  // namespace

frmTime::frmTime(Program& program)
    : CalculatorScreen(program, {"frmTime", "Time Conversion", 568, 240}, kControls, {"frmGeneralChoice", "", kHelp}) {
  Bind("Form", Ev::Load, &frmTime::Form_Load);
  Bind("cmdSToM", Ev::Click, &frmTime::cmdSToM_Click);
  Bind("cmdMToS", Ev::Click, &frmTime::cmdMToS_Click);
  Bind("cmdMToH", Ev::Click, &frmTime::cmdMToH_Click);
  Bind("cmdHToM", Ev::Click, &frmTime::cmdHToM_Click);
  Bind("cmdHToD", Ev::Click, &frmTime::cmdHToD_Click);
  Bind("cmdDToH", Ev::Click, &frmTime::cmdDToH_Click);
  Bind("cmdDToY", Ev::Click, &frmTime::cmdDToY_Click);
  Bind("cmdYToD", Ev::Click, &frmTime::cmdYToD_Click);
  Bind("cmdClear", Ev::Click, &frmTime::cmdClear_Click);
  Bind("cmdClose", Ev::Click, &frmTime::cmdClose_Click);
}

void frmTime::Form_Load() {
  HideForm("frmGeneralChoice");
  EmptyBoxes({"Text1", "Text2"});
  ctl("Label3").SetCaption("");
}

// No error trap: text that is no number ends the program.
void frmTime::Convert(const TimeStep& step) {
  if (ctl("Text1").Text().empty()) {
    MsgBox("You must enter a valid number.", Icon::Information, "Orvata");
    return;
  }
  ctl("Label3").SetCaption(std::string(step.unit));
  const Single x = CSng(ctl("Text1").Text());
  const Single y = step.multiply ? x * step.by : x / step.by;
  ctl("Text2").SetText(FormatNumber(y, 5));
}

void frmTime::cmdSToM_Click() { Convert(kSToM); }
void frmTime::cmdMToS_Click() { Convert(kMToS); }
void frmTime::cmdMToH_Click() { Convert(kMToH); }
void frmTime::cmdHToM_Click() { Convert(kHToM); }
void frmTime::cmdHToD_Click() { Convert(kHToD); }
void frmTime::cmdDToH_Click() { Convert(kDToH); }
void frmTime::cmdDToY_Click() { Convert(kDToY); }
void frmTime::cmdYToD_Click() { Convert(kYToD); }

void frmTime::cmdClear_Click() {
  ctl("Text1").SetText("");
  ctl("Text1").SetFocus();
  ctl("Text2").SetText("");
  ctl("Label3").SetCaption("");
}

void frmTime::cmdClose_Click() {
  Unload();
  ShowForm("frmGeneralChoice");
}

}  // namespace orv
