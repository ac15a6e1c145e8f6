#include "general/frmEnglish.h"

namespace orv {

namespace {

enum class Op { None, Times, Over };

// One operation on the value: times or over a constant.
struct Operation {
  Op op = Op::None;
  Expr by = 0;
};

// One direction of a conversion: up to two operations, evaluated left to
// right, the width the result is stored in, and its unit.
struct Direction {
  Operation first;
  Operation second;
  bool single;
  std::string_view unit;
};

constexpr Operation Times(double by) { return {Op::Times, by}; }
constexpr Operation Over(double by) { return {Op::Over, by}; }
constexpr Direction Stored64(Operation a, std::string_view unit) { return {a, {}, false, unit}; }
constexpr Direction Stored64(Operation a, Operation b, std::string_view unit) { return {a, b, false, unit}; }
constexpr Direction Stored32(Operation a, std::string_view unit) { return {a, {}, true, unit}; }
constexpr Direction Stored32(Operation a, Operation b, std::string_view unit) { return {a, b, true, unit}; }

Expr Apply(Expr value, const Operation& o) {
  switch (o.op) {
    case Op::Times: return value * o.by;
    case Op::Over: return value / o.by;
    case Op::None: break;
  }
  return value;
}

}  // namespace

// A button's two directions and the decimals of its result. The factors are
// rounded by hand, and the two directions of a pair are not always inverse.
struct EnglishConversion {
  Direction toMetric;
  Direction toEnglish;
  int decimals;
};

namespace {

constexpr EnglishConversion kPToK{Stored64(Times(0.454), "kilograms"), Stored32(Over(454), Times(1000), "pounds"), 3};
constexpr EnglishConversion kPToG{Stored32(Times(454), "gram(s)"), Stored32(Over(454), "pound(s)"), 6};
constexpr EnglishConversion kOToK{Stored64(Times(28.3), Over(1000), "kilograms"), Stored64(Over(0.02837), "ounces"), 3};
constexpr EnglishConversion kOToG{Stored64(Times(28.3), "grams"), Stored64(Over(28.3), "ounces"), 3};
constexpr EnglishConversion kFToM{Stored64(Over(3.281), "meters"), Stored64(Times(3.281), "feet"), 3};
constexpr EnglishConversion kFToC{Stored64(Times(30.5), "centimeters"), Stored64(Over(30.5), "feet"), 3};
constexpr EnglishConversion kIToM{Stored64(Over(39.37), "meter(s)"), Stored64(Times(39.37), "inch(es)"), 3};
constexpr EnglishConversion kIToC{Stored64(Times(2.54), "centimeter(s)"), Stored64(Over(2.54), "inch(es)"), 3};
constexpr EnglishConversion kLToG{Stored64(Over(0.264), "liters"), Stored64(Times(0.264), "gallons"), 3};
constexpr EnglishConversion kLToOunces{Stored64(Over(33.81), "liters"), Stored64(Over(0.02958), "ounces"), 3};
constexpr EnglishConversion kMToG{Stored64(Over(0.000264), "milliliters"), Stored64(Over(3785.41), "gallons"), 6};
constexpr EnglishConversion kMToO{Stored64(Over(0.0338), "milliliters"), Stored64(Over(30.3), "ounces"), 3};

constexpr std::string_view kHelp =
    "All measurements in chemistry must be in the metric system of measurements. Sometimes, you are given a "
    "quantity in the English system. This section is provided as a convenience so that if you need to make a "
    "conversion, you can do so.";

constexpr Rect Conversion(int column, int row) { return {20 + column * 168, 96 + row * 38, 160, 30}; }

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "Label1", .caption = "Enter a value", .rect = {20, 22, 110, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {134, 18, 214, 26}},
    {.kind = Kind::Option, .name = "Option1", .caption = "English To Metric", .rect = {20, 58, 160, 24}},
    {.kind = Kind::Option, .name = "Option2", .caption = "Metric To English", .rect = {188, 58, 160, 24}},
    {.kind = Kind::Button, .name = "cmdPToK", .caption = "Pound - Kilograms", .rect = Conversion(0, 0)},
    {.kind = Kind::Button, .name = "cmdPToG", .caption = "Pounds - Grams", .rect = Conversion(0, 1)},
    {.kind = Kind::Button, .name = "cmdOToK", .caption = "Ounces - Kilograms", .rect = Conversion(0, 2)},
    {.kind = Kind::Button, .name = "cmdOToG", .caption = "Ounces - Grams", .rect = Conversion(0, 3)},
    {.kind = Kind::Button, .name = "cmdFToM", .caption = "Feet - Meters", .rect = Conversion(1, 0)},
    {.kind = Kind::Button, .name = "cmdFToC", .caption = "Feet - Centimeters", .rect = Conversion(1, 1)},
    {.kind = Kind::Button, .name = "cmdIToM", .caption = "Inches - Meters", .rect = Conversion(1, 2)},
    {.kind = Kind::Button, .name = "cmdIToC", .caption = "Inches - Centimeters", .rect = Conversion(1, 3)},
    {.kind = Kind::Button, .name = "cmdLToG", .caption = "Gallons - Liters", .rect = Conversion(2, 0)},
    {.kind = Kind::Button, .name = "cmdLToOunces", .caption = "Ounces - Liters", .rect = Conversion(2, 1)},
    {.kind = Kind::Button, .name = "cmdMToG", .caption = "Gallons - Milliliters", .rect = Conversion(2, 2)},
    {.kind = Kind::Button, .name = "cmdMToO", .caption = "Ounces - Milliliters", .rect = Conversion(2, 3)},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {134, 256, 214, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label3", .rect = {356, 260, 160, 22}},
    ClearButton({20, 302, 80, 30}),
    {.kind = Kind::Button, .name = "cmdCancel", .caption = "Close", .rect = {108, 302, 80, 30}, .flags = kCancel},
    HelpButton({484, 304, 32, 26}),
};

}  // namespace

frmEnglish::frmEnglish(Program& program)
    : CalculatorScreen(program, {"frmEnglish", "English - Metric Conversions", 536, 348}, kControls,
                       {"frmGeneralChoice", "", kHelp}) {
  Bind("Form", Ev::Load, &frmEnglish::Form_Load);
  Bind("cmdClear", Ev::Click, &frmEnglish::cmdClear_Click);
  Bind("cmdCancel", Ev::Click, &frmEnglish::cmdCancel_Click);
  Bind("cmdPToK", Ev::Click, &frmEnglish::cmdPToK_Click);
  Bind("cmdPToG", Ev::Click, &frmEnglish::cmdPToG_Click);
  Bind("cmdOToK", Ev::Click, &frmEnglish::cmdOToK_Click);
  Bind("cmdOToG", Ev::Click, &frmEnglish::cmdOToG_Click);
  Bind("cmdFToM", Ev::Click, &frmEnglish::cmdFToM_Click);
  Bind("cmdFToC", Ev::Click, &frmEnglish::cmdFToC_Click);
  Bind("cmdIToM", Ev::Click, &frmEnglish::cmdIToM_Click);
  Bind("cmdIToC", Ev::Click, &frmEnglish::cmdIToC_Click);
  Bind("cmdLToG", Ev::Click, &frmEnglish::cmdLToG_Click);
  Bind("cmdLToOunces", Ev::Click, &frmEnglish::cmdLToOunces_Click);
  Bind("cmdMToG", Ev::Click, &frmEnglish::cmdMToG_Click);
  Bind("cmdMToO", Ev::Click, &frmEnglish::cmdMToO_Click);
}

void frmEnglish::Form_Load() { cmdClear_Click(); }

void frmEnglish::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2"});
  ctl("Label3").SetCaption("");
  ctl("Option1").SetValue(true);
}

void frmEnglish::cmdCancel_Click() {
  Unload();
  ShowForm("frmGeneralChoice");
}

// No key filter and no error trap: text that is no number ends the program.
void frmEnglish::Convert(const EnglishConversion& conversion) {
  if (ctl("Text1").Text().empty()) {
    MsgBox("You must enter a valid number to convert.", Icon::Exclamation, kTitle);
    return;
  }
  const Direction& d = ctl("Option1").Value() ? conversion.toMetric : conversion.toEnglish;
  const Single x = CSng(ctl("Text1").Text());
  const Expr value = Apply(Apply(x, d.first), d.second);
  if (d.single) {
    ctl("Text2").SetText(FormatNumber(Single(value), conversion.decimals));
  } else {
    ctl("Text2").SetText(FormatNumber(Double(value), conversion.decimals));
  }
  ctl("Label3").SetCaption(std::string(d.unit));
}

void frmEnglish::cmdPToK_Click() { Convert(kPToK); }
void frmEnglish::cmdPToG_Click() { Convert(kPToG); }
void frmEnglish::cmdOToK_Click() { Convert(kOToK); }
void frmEnglish::cmdOToG_Click() { Convert(kOToG); }
void frmEnglish::cmdFToM_Click() { Convert(kFToM); }
void frmEnglish::cmdFToC_Click() { Convert(kFToC); }
void frmEnglish::cmdIToM_Click() { Convert(kIToM); }
void frmEnglish::cmdIToC_Click() { Convert(kIToC); }
void frmEnglish::cmdLToG_Click() { Convert(kLToG); }
void frmEnglish::cmdLToOunces_Click() { Convert(kLToOunces); }
void frmEnglish::cmdMToG_Click() { Convert(kMToG); }
void frmEnglish::cmdMToO_Click() { Convert(kMToO); }

}  // namespace orv
