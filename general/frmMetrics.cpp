#include "general/frmMetrics.h"

#include <array>
#include <string>

namespace orv {

namespace {

// Enter is refused on this box like any other key that is not part of a number.
constexpr KeyFilter kMetricFilter{"+.E", kTitle, KeyFilter::kRefusal, false};

constexpr int kUnits = 6;

// A category's name and its units, largest first, in the order of the From
// buttons optDistance1..6 and the To buttons optDistance7..12.
struct Category {
  std::string_view name;
  std::array<std::string_view, kUnits> units;
};
constexpr Category kCategories[] = {
    {"Mass", {"Kilogram", "Dekagram", "Gram", "Decigram", "Centigram", "Milligram"}},
    {"Distance", {"Kilometer", "Dekameter", "Meter", "Decimeter", "Centimeter", "Millimeter"}},
    {"Volume", {"Kiloliter", "Dekaliter", "Liter", "Deciliter", "Centiliter", "Milliliter"}},
};

enum class Op { None, Times, Over };

// What one conversion does with the value.
struct Factor {
  Op op;
  Expr by;
};

constexpr Factor kSame{Op::None, 0};
constexpr Factor Times(double by) { return {Op::Times, by}; }
constexpr Factor Over(double by) { return {Op::Over, by}; }

// The working line's literal after the value as typed: " * 100", " / 1000".
std::string Literal(const Factor& f) { return (f.op == Op::Times ? " * " : " / ") + Str(Double(f.by)); }

// The factors of all three categories: a row for each From unit, a column for
// each To unit, both largest first (kilo, deka, base, deci, centi, milli).
// These are the screen's answers as they stand; a few of them are not the
// power of ten between their units (deci, centi and milli to deka, centi to
// base), and so those pairs are not the inverse of the way back.
// clang-format off
constexpr Factor kFactors[kUnits][kUnits] = {
    {kSame,           Times(100),     Times(1000), Times(10000), Times(100000), Times(1000000)},
    {Over(100),       kSame,          Times(10),   Times(100),   Times(1000),   Times(10000)},
    {Over(1000),      Over(10),       kSame,       Times(10),    Times(100),    Times(1000)},
    {Over(10000),     Over(1000),     Over(10),    kSame,        Times(10),     Times(100)},
    {Over(100000),    Over(10000),    Over(1000),  Over(10),     kSame,         Times(10)},
    {Over(1000000),   Over(100000),   Over(1000),  Over(100),    Over(10),      kSame},
};
// clang-format on

// Pairs whose working line is not the literal of their factor: another
// literal, or no line at all (the previous one stays).
struct WorkingLine {
  int category;  // 1 mass, 2 distance, 3 volume
  int from;      // unit positions, 1 to 6
  int to;
  bool written;
  std::string_view shown;
};
constexpr WorkingLine kWorkingLines[] = {
    {2, 3, 1, true, " / 100"},  // Meter to Kilometer
    {2, 5, 6, false, ""},       // Centimeter to Millimeter
    {3, 4, 5, true, " *10"},    // Deciliter to Centiliter
    {3, 4, 6, true, " *100"},   // Deciliter to Milliliter
};

constexpr std::string_view kHelp =
    "All measurements in chemistry must be in metrics. Metric conversions deal with multiplication and division by "
    "10 or multiples of 10. To convert a measurement from one unit to another, you must determine whether to "
    "multiply or divide and by what multiple of 10. ";

constexpr int kUnitTop = 24;
constexpr int kUnitStep = 28;
constexpr Rect Unit(int position) { return {16, kUnitTop + (position - 1) * kUnitStep, 196, 24}; }

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "lblMetric1", .caption = "Enter a value", .rect = {20, 22, 96, 22}},
    {.kind = Kind::TextBox,
     .name = "txtMetric1",
     .rect = {120, 18, 156, 26},
     .toolTip = "Enter a valid, positive number.",
     .filter = &kMetricFilter},
    {.kind = Kind::Label, .name = "lblMetric2", .caption = "New Value", .rect = {20, 58, 96, 22}},
    {.kind = Kind::TextBox, .name = "txtMetric2", .rect = {120, 54, 156, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {20, 96, 520, 26}, .flags = kDisabled},
    {.kind = Kind::Frame,
     .name = "Frame1",
     .caption = "Select one of the following options",
     .rect = {296, 8, 244, 76}},
    {.kind = Kind::Option, .name = "Option1", .caption = "Mass", .rect = {14, 36, 66, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "Option2", .caption = "Distance", .rect = {84, 36, 84, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "Option3", .caption = "Volume", .rect = {170, 36, 70, 24}, .container = "Frame1"},
    {.kind = Kind::Frame, .name = "frmFrom", .caption = "From", .rect = {20, 136, 254, 236}},
    {.kind = Kind::Frame,
     .name = "frmDistance1",
     .caption = "Mass",
     .rect = {12, 24, 230, 200},
     .container = "frmFrom"},
    {.kind = Kind::Option, .name = "optDistance1", .caption = "Kilogram", .rect = Unit(1), .container = "frmDistance1"},
    {.kind = Kind::Option, .name = "optDistance2", .caption = "Dekagram", .rect = Unit(2), .container = "frmDistance1"},
    {.kind = Kind::Option, .name = "optDistance3", .caption = "Gram", .rect = Unit(3), .container = "frmDistance1"},
    {.kind = Kind::Option, .name = "optDistance4", .caption = "Decigram", .rect = Unit(4), .container = "frmDistance1"},
    {.kind = Kind::Option,
     .name = "optDistance5",
     .caption = "Centigram",
     .rect = Unit(5),
     .container = "frmDistance1"},
    {.kind = Kind::Option,
     .name = "optDistance6",
     .caption = "Milligram",
     .rect = Unit(6),
     .container = "frmDistance1"},
    {.kind = Kind::Frame, .name = "frmTo", .caption = "To", .rect = {286, 136, 254, 236}},
    {.kind = Kind::Frame, .name = "frmDistance2", .caption = "Mass", .rect = {12, 24, 230, 200}, .container = "frmTo"},
    {.kind = Kind::Option,
     .name = "optDistance7",
     .caption = "Kilogram",
     .rect = Unit(1),
     .container = "frmDistance2",
     .flags = kDisabled},
    {.kind = Kind::Option, .name = "optDistance8", .caption = "Dekagram", .rect = Unit(2), .container = "frmDistance2"},
    {.kind = Kind::Option, .name = "optDistance9", .caption = "Gram", .rect = Unit(3), .container = "frmDistance2"},
    {.kind = Kind::Option,
     .name = "optDistance10",
     .caption = "Decigram",
     .rect = Unit(4),
     .container = "frmDistance2"},
    {.kind = Kind::Option,
     .name = "optDistance11",
     .caption = "Centigram",
     .rect = Unit(5),
     .container = "frmDistance2"},
    {.kind = Kind::Option,
     .name = "optDistance12",
     .caption = "Milligram",
     .rect = Unit(6),
     .container = "frmDistance2"},
    OkButton({20, 388, 80, 30}),
    ClearButton({108, 388, 80, 30}),
    CancelButton({196, 388, 80, 30}),
    PrintButton({284, 388, 80, 30}),
    HelpButton({508, 390, 32, 26}),
};

}  // namespace

frmMetrics::frmMetrics(Program& program)
    : CalculatorScreen(program, {"frmMetrics", "Metric Conversion", 560, 434}, kControls,
                       {"frmGeneralChoice", "txtMetric1", kHelp}) {
  Bind("Form", Ev::Load, &frmMetrics::Form_Load);
  Bind("cmdOk", Ev::Click, &frmMetrics::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmMetrics::cmdClear_Click);
  Bind("Option1", Ev::Click, &frmMetrics::Option1_Click);
  Bind("Option2", Ev::Click, &frmMetrics::Option2_Click);
  Bind("Option3", Ev::Click, &frmMetrics::Option3_Click);
  Bind("optDistance1", Ev::Click, &frmMetrics::optDistance1_Click);
  Bind("optDistance2", Ev::Click, &frmMetrics::optDistance2_Click);
  Bind("optDistance3", Ev::Click, &frmMetrics::optDistance3_Click);
  Bind("optDistance4", Ev::Click, &frmMetrics::optDistance4_Click);
  Bind("optDistance5", Ev::Click, &frmMetrics::optDistance5_Click);
  Bind("optDistance6", Ev::Click, &frmMetrics::optDistance6_Click);
  // The working line has the Enter handler; being disabled, it never sees a key.
  EnterRunsOk("Text1");
}

Control& frmMetrics::UnitButton(int number) const { return ctl("optDistance" + std::to_string(number)); }

void frmMetrics::Form_Load() {
  UnloadForm("frmGeneralChoice");
  UnloadForm("frmSplash");
  ctl("Text1").SetText("");
  UnitButton(7).SetEnabled(false);
  for (int n = 8; n <= 12; ++n) UnitButton(n).SetEnabled(true);
  ShowCategory(1);
  ctl("Option1").SetValue(true);
  DisableOkAndPrint();
}

void frmMetrics::ShowCategory(int category) {
  const Category& c = kCategories[category - 1];
  for (int position = 1; position <= kUnits; ++position) {
    const std::string unit(c.units[static_cast<std::size_t>(position - 1)]);
    UnitButton(position).SetCaption(unit);
    UnitButton(position + kUnits).SetCaption(unit);
  }
  ctl("frmDistance1").SetCaption(std::string(c.name));
  ctl("frmDistance2").SetCaption(std::string(c.name));
}

void frmMetrics::Option1_Click() { ShowCategory(1); }
void frmMetrics::Option2_Click() { ShowCategory(2); }
void frmMetrics::Option3_Click() { ShowCategory(3); }

void frmMetrics::FromChosen(int position) {
  for (int to = 1; to <= kUnits; ++to) UnitButton(to + kUnits).SetEnabled(to != position);
}

void frmMetrics::optDistance1_Click() { FromChosen(1); }
void frmMetrics::optDistance2_Click() { FromChosen(2); }
void frmMetrics::optDistance3_Click() { FromChosen(3); }
void frmMetrics::optDistance4_Click() { FromChosen(4); }
void frmMetrics::optDistance5_Click() { FromChosen(5); }
void frmMetrics::optDistance6_Click() { FromChosen(6); }

void frmMetrics::cmdOk_Click() {
  Trapped(kTrapDataEntry, [&] {
    const std::string value = ctl("txtMetric1").Text();
    if (value == "0" || value.empty()) {
      MsgBox("You must enter valid data into the Enter box.", Icon::None, kTitle);
      return;
    }
    int category = 0;
    for (int k = 1; k <= 3; ++k) {
      if (ctl("Option" + std::to_string(k)).Value()) category = k;
    }
    if (category == 0) {
      MsgBox("You must select a metric category.", Icon::Information, kTitle);
      return;
    }
    int from = 0;
    int to = 0;
    for (int position = 1; position <= kUnits; ++position) {
      if (UnitButton(position).Value()) from = position;
      if (UnitButton(position + kUnits).Value()) to = position;
    }
    if (from == 0) {
      MsgBox("You must select a 'From' unit.", Icon::Information, kTitle);
      return;
    }
    if (to == 0) {
      MsgBox("You must select a 'To' unit.", Icon::Information, kTitle);
      return;
    }
    UnitButton(from + kUnits).SetEnabled(false);

    const Factor& factor = kFactors[from - 1][to - 1];
    if (factor.op == Op::None) return;
    const Double x = CDbl(value);
    const Double result = factor.op == Op::Times ? x * factor.by : x / factor.by;
    ctl("txtMetric2").SetText(Str(result));

    bool written = true;
    std::string shown = Literal(factor);
    for (const WorkingLine& line : kWorkingLines) {
      if (line.category == category && line.from == from && line.to == to) {
        written = line.written;
        shown = line.shown;
      }
    }
    if (written) ctl("Text1").SetText(value + shown);
  });
}

void frmMetrics::cmdClear_Click() {
  EmptyBoxes({"txtMetric1", "txtMetric2", "Text1"});
  ctl("txtMetric1").SetFocus();
}

}  // namespace orv
