#include "gases/frmCombinedLaws.h"

#include "data/store.h"

namespace orv {

namespace {

constexpr std::string_view kCombinedTitle = "Combined Laws";
constexpr KeyFilter kFilterPointCombined{".", kCombinedTitle};
constexpr KeyFilter kFilterMinusPointCombined{"-.", kCombinedTitle};

constexpr std::string_view kHelp =
    "The Combined Gas law literally combines Charles law and Boyles law into one. You start with an original volume "
    "and add two ratios. One applies Charles law and the other applies Boyles law. The end result is a new volume "
    "with two changes - one caused by Charles law and one caused by Boyles law. ";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::CheckBox, .name = "chk1", .caption = "Check if collected over water.", .rect = {20, 12, 300, 24}},
    {.kind = Kind::Label, .name = "Label2", .caption = "Original volume in liters", .rect = {20, 50, 250, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {280, 46, 180, 26}, .filter = &kFilterPointCombined},
    {.kind = Kind::Label, .name = "Label3", .caption = "Original pressure in kPa", .rect = {20, 86, 250, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {280, 82, 180, 26}, .filter = &kFilterPointCombined},
    {.kind = Kind::Label, .name = "Label5", .caption = "Original temperature in Kelvin", .rect = {20, 122, 250, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {280, 118, 180, 26}, .filter = &kFilterMinusPointCombined},
    {.kind = Kind::Label, .name = "Label4", .caption = "New pressure in kPa", .rect = {20, 158, 250, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {280, 154, 180, 26}, .filter = &kFilterPointCombined},
    {.kind = Kind::Label, .name = "Label6", .caption = "New temperature in Kelvin", .rect = {20, 194, 250, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {280, 190, 180, 26}, .filter = &kFilterMinusPointCombined},
    {.kind = Kind::Label, .name = "Label8", .caption = "The new volume is", .rect = {20, 234, 250, 22}},
    {.kind = Kind::TextBox, .name = "Text7", .rect = {280, 230, 120, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label7", .caption = "Liters", .rect = {406, 234, 56, 22}},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {20, 268, 440, 26}, .flags = kDisabled},
    OkButton({20, 312, 80, 30}),
    ClearButton({108, 312, 80, 30}),
    CancelButton({196, 312, 80, 30}),
    PrintButton({284, 312, 80, 30}),
    HelpButton({428, 314, 32, 26}),
};

constexpr std::string_view kInputs[] = {"Text1", "Text2", "Text3", "Text4", "Text5"};

}  // namespace

frmCombinedLaws::frmCombinedLaws(Program& program)
    : CalculatorScreen(program, {"frmCombinedLaws", "Combined Gas Laws", 480, 358}, kControls,
                       {"frmGasLaws", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmCombinedLaws::Form_Load);
  Bind("cmdOk", Ev::Click, &frmCombinedLaws::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmCombinedLaws::cmdClear_Click);
  for (std::string_view box : kInputs) EnterRunsOk(box);
}

void frmCombinedLaws::Form_Load() {
  EmptyBoxes(kInputs);
  ctl("Text6").SetText("");
  ctl("chk1").SetValue(false);
  DisableOkAndPrint();
}

void frmCombinedLaws::cmdOk_Click() {
  Trapped(kTrapWords, [&] {
    // One test of all five together: a single filled box lets the routine
    // go on, and an empty one then fails where it is read.
    bool allEmpty = true;
    for (std::string_view box : kInputs) allEmpty = allEmpty && ctl(box).Text().empty();
    if (allEmpty) {
      MsgBox("You must enter valid data into all required boxes.", Icon::None, kCombinedTitle);
      return;
    }
    ctl("Label8").SetCaption("The new volume is ");

    // The vapor pressure of water at the original temperature, in Celsius.
    // The temperature box is read afresh for every row, so that a bad text
    // fails inside the walk, with the record set still open. No exact row
    // leaves the vapor pressure at zero.
    data::DataStore& store = Store(program());
    Single vapor;
    data::OpenRecordset(store, "SELECT * FROM VaporPressure");
    data::Recordset& records = data::CurrentRecordset(store);
    records.MoveFirst();
    while (!records.AtEnd()) {
      const Double celsius = CDbl(ctl("Text3").Text()) - 273.0;
      const Variant temperature = records.Field("Temperature");
      if (temperature.IsNumber() && temperature.Number() == celsius.value()) {
        vapor = Expr(CDbl(records.Field("Pressure")));
        break;
      }
      records.MoveNext();
    }
    records.Close();

    Single p1;
    if (ctl("chk1").Value()) {
      p1 = CDbl(ctl("Text2").Text()) - vapor;
    } else {
      p1 = CSng(ctl("Text2").Text());
    }
    const Single pressureRatio = p1 / CSng(ctl("Text4").Text());
    const Single temperatureRatio = CSng(ctl("Text5").Text()) / CSng(ctl("Text3").Text());
    const Single v1 = CSng(ctl("Text1").Text());
    const Single v2 = v1 * pressureRatio * temperatureRatio;
    ctl("Text7").SetText(FormatNumber(v2, 2));
    // The new pressure and both temperatures appear as typed.
    ctl("Text6").SetText(Str(v1) + " * " + Str(p1) + " / " + ctl("Text4").Text() + " * " + ctl("Text5").Text() + " / " +
                         ctl("Text3").Text());
  });
}

void frmCombinedLaws::cmdClear_Click() {
  EmptyBoxes(kInputs);
  EmptyBoxes({"Text7", "Text6"});
  ctl("Text1").SetFocus();
  ctl("chk1").SetValue(false);
}

}  // namespace orv
