#include "general/frmTemperatures.h"

namespace orv {

namespace {

constexpr std::string_view kScreenTitle = "Temperatures";
constexpr KeyFilter kTemperatureFilter{"-.", kScreenTitle};
constexpr Form::Trap kTemperatureTrap{"", Icon::Exclamation, kScreenTitle};

constexpr std::string_view kHelp =
    "You are familiar with Fahrenheit temperatures. 32 is freezing and 212 is boiling. However, in chemistry, "
    "temperatures must be in Celsius or Kelvin. Chemical laws and principles are set up to use the Celsius scale "
    "most of the time. There are some cases, gases in particular, where the temperatures must be Kelvin. Gas "
    "calculations just work better mathematically when the temperatures are in Celsius or Kelvin. ";

constexpr int kConvTop = 60;
constexpr Rect Conversion(int column, int row) { return {20 + column * 100, kConvTop + row * 38, 92, 30}; }

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "Label1", .caption = "Enter a temperature value.", .rect = {20, 22, 176, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {200, 18, 196, 26}, .filter = &kTemperatureFilter},
    {.kind = Kind::Button, .name = "cmdFToC", .caption = "F To C", .rect = Conversion(0, 0), .flags = kDefault},
    {.kind = Kind::Button, .name = "cmdCToF", .caption = "C To F", .rect = Conversion(1, 0)},
    {.kind = Kind::Button, .name = "cmdKToF", .caption = "K To F", .rect = Conversion(2, 0)},
    {.kind = Kind::Button, .name = "cmdFToK", .caption = "F To K", .rect = Conversion(0, 1)},
    {.kind = Kind::Button, .name = "cmdCToK", .caption = "C To K", .rect = Conversion(1, 1)},
    {.kind = Kind::Button, .name = "cmdKToC", .caption = "K To C", .rect = Conversion(2, 1)},
    {.kind = Kind::Label, .name = "Label2", .caption = "The new temperature is", .rect = {20, 150, 176, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {200, 146, 196, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {20, 184, 376, 26}, .flags = kDisabled},
    ClearButton({20, 228, 80, 30}),
    CancelButton({108, 228, 80, 30}),
    PrintButton({196, 228, 80, 30}),
    HelpButton({364, 230, 32, 26}),
};

}  // namespace

frmTemperatures::frmTemperatures(Program& program)
    : CalculatorScreen(program, {"frmTemperatures", "Temperature Conversion", 416, 274}, kControls,
                       {"frmGeneralChoice", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmTemperatures::Form_Load);
  Bind("cmdCToF", Ev::Click, &frmTemperatures::cmdCToF_Click);
  Bind("cmdFToC", Ev::Click, &frmTemperatures::cmdFToC_Click);
  Bind("cmdClear", Ev::Click, &frmTemperatures::cmdClear_Click);
  Bind("cmdCancel", Ev::Click, &frmTemperatures::cmdCancel_Click);
}

void frmTemperatures::Form_Load() {
  HideForm("frmGeneralChoice");
  EmptyBoxes({"Text1", "Text2", "Text3"});
  ctl("cmdPrint").SetEnabled(false);
}

void frmTemperatures::cmdCToF_Click() {
  Trapped(kTemperatureTrap, [&] {
    if (ctl("Text1").Text().empty()) {
      MsgBox("You must enter a valid temperature.", Icon::Information, kScreenTitle);
      return;
    }
    const Double c = CDbl(ctl("Text1").Text());
    const Double f = Expr(9) / 5 * c + 32;
    ctl("Text2").SetText(FormatNumber(f, 3));
    ctl("Text3").SetText("9/5 " + std::string(" x ") + Str(c) + " + " + "32  =  " + Str(f));
  });
}

void frmTemperatures::cmdFToC_Click() {
  Trapped(kTemperatureTrap, [&] {
    if (ctl("Text1").Text().empty()) {
      MsgBox("You must enter a valid temperature.", Icon::Information, kScreenTitle);
      return;
    }
    const Double f = CDbl(ctl("Text1").Text());
    const Double c = (f - 32) * (Expr(5) / 9);
    ctl("Text2").SetText(FormatNumber(c, 3));
    ctl("Text3").SetText("5/9 " + std::string(" x ") + " (" + Str(f) + "- " + "32)  =  " + Str(c));
  });
}

void frmTemperatures::cmdClear_Click() { EmptyBoxes({"Text1", "Text2", "Text3"}); }

void frmTemperatures::cmdCancel_Click() {
  Unload();
  ShowForm("frmGeneralChoice");
}

}  // namespace orv
