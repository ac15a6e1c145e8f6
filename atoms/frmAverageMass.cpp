#include "atoms/frmAverageMass.h"

#include <array>
#include <utility>

namespace orv {

namespace {

constexpr std::string_view kRefusalTitle = "Combined Laws";

constexpr int kLabelW = 160;
constexpr int kBoxW = 100;
constexpr int kWeightX = 16;
constexpr int kOccurX = 304;
constexpr int kTop = 46;
constexpr int kStep = 34;

constexpr Rect WeightLabel(int row) { return {kWeightX, kTop + row * kStep + 4, kLabelW, 22}; }
constexpr Rect WeightBox(int row) { return {kWeightX + kLabelW + 8, kTop + row * kStep, kBoxW, 26}; }
constexpr Rect OccurLabel(int row) { return {kOccurX, kTop + row * kStep + 4, kLabelW, 22}; }
constexpr Rect OccurBox(int row) { return {kOccurX + kLabelW + 8, kTop + row * kStep, kBoxW, 26}; }

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label,
     .name = "Label7",
     .caption = "Enter the weight and percentage for up to six isotopes.",
     .rect = {16, 14, 556, 22}},
    {.kind = Kind::Label, .name = "Label1", .caption = "Weight of isotope #1", .rect = WeightLabel(0)},
    {.kind = Kind::TextBox, .name = "Text1", .rect = WeightBox(0)},
    {.kind = Kind::Label, .name = "Label2", .caption = "Occurence of isotope #1", .rect = OccurLabel(0)},
    {.kind = Kind::TextBox, .name = "Text2", .rect = OccurBox(0)},
    {.kind = Kind::Label, .name = "Label3", .caption = "Weight of Isotope #2", .rect = WeightLabel(1)},
    {.kind = Kind::TextBox, .name = "Text3", .rect = WeightBox(1)},
    {.kind = Kind::Label, .name = "Label4", .caption = "Occurence of isotope #2", .rect = OccurLabel(1)},
    {.kind = Kind::TextBox, .name = "Text4", .rect = OccurBox(1)},
    {.kind = Kind::Label, .name = "Label5", .caption = "Weight of Isotope #3", .rect = WeightLabel(2)},
    {.kind = Kind::TextBox, .name = "Text5", .rect = WeightBox(2)},
    {.kind = Kind::Label, .name = "Label6", .caption = "Occurence of isotope #3", .rect = OccurLabel(2)},
    {.kind = Kind::TextBox, .name = "Text6", .rect = OccurBox(2)},
    {.kind = Kind::Label, .name = "Label8", .caption = "Weight of Isotope #4", .rect = WeightLabel(3)},
    {.kind = Kind::TextBox, .name = "Text8", .rect = WeightBox(3)},
    {.kind = Kind::Label, .name = "Label9", .caption = "Occurence of isotope #4", .rect = OccurLabel(3)},
    {.kind = Kind::TextBox, .name = "Text9", .rect = OccurBox(3)},
    {.kind = Kind::Label, .name = "Label10", .caption = "Weight of Isotope #5", .rect = WeightLabel(4)},
    {.kind = Kind::TextBox, .name = "Text10", .rect = WeightBox(4)},
    {.kind = Kind::Label, .name = "Label11", .caption = "Occurence of isotope #5", .rect = OccurLabel(4)},
    {.kind = Kind::TextBox, .name = "Text11", .rect = OccurBox(4)},
    {.kind = Kind::Label, .name = "Label12", .caption = "Weight of Isotope #6", .rect = WeightLabel(5)},
    {.kind = Kind::TextBox, .name = "Text12", .rect = WeightBox(5)},
    {.kind = Kind::Label, .name = "Label13", .caption = "Occurence of isotope #5", .rect = OccurLabel(5)},
    {.kind = Kind::TextBox, .name = "Text13", .rect = OccurBox(5)},

    {.kind = Kind::Label, .name = "Label14", .caption = "The average atomic mass is ", .rect = {16, 256, 184, 22}},
    {.kind = Kind::TextBox, .name = "Text14", .rect = {204, 252, 140, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text7", .rect = {16, 288, 556, 58}, .flags = kDisabled | kMultiLine},

    OkButton({16, 362, 84, 30}, kOkTip),
    ClearButton({108, 362, 84, 30}),
    CancelButton({200, 362, 84, 30}),
    PrintButton({292, 362, 84, 30}),
    HelpButton({540, 364, 32, 26}),
};

// The inputs in reading order: weight and occurrence of each isotope.
constexpr std::array<std::string_view, 12> kInputs = {"Text1", "Text2", "Text3",  "Text4",  "Text5",  "Text6",
                                                      "Text8", "Text9", "Text10", "Text11", "Text12", "Text13"};

constexpr std::string_view kHelp =
    "The atomic mass as seen on the periodic table is not a whole number but a decimal number. The reason is that "
    "there are different isotopes of each atom with different weights  plus the fact that each isotope occurs at a "
    "different rate. For each isotope, multiple  the weight times the percent of occurence and add the results "
    "together. This gives you the average atomic weight as you see it in decimal form.  ";

// Every box of the screen, emptied in this order.
constexpr std::string_view kBoxes[] = {"Text1", "Text2", "Text3",  "Text4",  "Text5",  "Text6",  "Text7",
                                       "Text8", "Text9", "Text10", "Text11", "Text12", "Text13", "Text14"};

}  // namespace

frmAverageMass::frmAverageMass(Program& program)
    : CalculatorScreen(program, {"frmAverageMass", "Average Atomic Mass", 588, 406}, kControls,
                       {"frmMoleChoice", "", kHelp}) {
  Bind("Form", Ev::Load, &frmAverageMass::Form_Load);
  Bind("cmdOk", Ev::Click, &frmAverageMass::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmAverageMass::cmdClear_Click);
  for (std::string_view box : kInputs) Bind(box, Ev::KeyPress, &frmAverageMass::Isotope_KeyPress);
}

void frmAverageMass::Form_Load() { EmptyBoxes(kBoxes); }

void frmAverageMass::cmdClear_Click() {
  EmptyBoxes(kBoxes);
  ctl("Text1").SetFocus();
}

// Digits and the point pass. Any other key is compared with "E" read as a
// whole number, which is no number at all: the comparison itself fails.
void frmAverageMass::Isotope_KeyPress(int& KeyAscii) {
  if (KeyAscii >= '0' && KeyAscii <= '9') return;
  if (KeyAscii == '.') return;
  if (KeyAscii == CInt("E").value()) return;
  if (KeyAscii == kKeyReturn || KeyAscii == kKeyBack) return;
  MsgBox(KeyFilter::kRefusal, Icon::None, kRefusalTitle);
  KeyAscii = 0;
}

void frmAverageMass::cmdOk_Click() {
  Trapped(kTrapWordsInfo, [&] {
    static constexpr std::string_view kWeight = "You must enter valid data for the weight.";
    static constexpr std::string_view kOccurence = "You must enter valid data for the occurence.";
    // Two isotopes are required, the other four are optional.
    const std::pair<std::string_view, std::string_view> kRequired[] = {
        {"Text1", kWeight}, {"Text2", kOccurence}, {"Text3", kWeight}, {"Text4", kOccurence}};
    for (const auto& [box, message] : kRequired) {
      if (ctl(box).Text().empty()) {
        MsgBox(message, Icon::Critical, kTitle);
        return;
      }
    }

    // w[i] and o[i] of isotope i + 1; an empty box counts as 0.
    std::array<Single, 6> w;
    std::array<Single, 6> o;
    for (std::size_t i = 0; i < 6; ++i) {
      const std::string& weight = ctl(kInputs[2 * i]).Text();
      const std::string& occurence = ctl(kInputs[2 * i + 1]).Text();
      if (!weight.empty()) w[i] = CSng(weight);
      if (!occurence.empty()) o[i] = CSng(occurence);
    }
    const Single mass = Expr(w[1]) * o[1] + Expr(w[0]) * o[0] + Expr(w[2]) * o[2] + Expr(w[3]) * o[3] +
                        Expr(w[4]) * o[4] + Expr(w[5]) * o[5];
    ctl("Text14").SetText(FormatNumber(mass, 3));
    std::string line;
    for (std::size_t i = 0; i < 6; ++i) {
      if (i > 0) line += " + ";
      line += Str(w[i]) + " * " + Str(o[i]);
    }
    ctl("Text7").SetText(line);
  });
}

}  // namespace orv
