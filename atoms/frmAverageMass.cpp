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
    {Kind::Label, "Label7", "Enter the weight and percentage for up to six isotopes.", {16, 14, 556, 22}},
    {Kind::Label, "Label1", "Weight of isotope #1", WeightLabel(0)},
    {Kind::TextBox, "Text1", "", WeightBox(0)},
    {Kind::Label, "Label2", "Occurence of isotope #1", OccurLabel(0)},
    {Kind::TextBox, "Text2", "", OccurBox(0)},
    {Kind::Label, "Label3", "Weight of Isotope #2", WeightLabel(1)},
    {Kind::TextBox, "Text3", "", WeightBox(1)},
    {Kind::Label, "Label4", "Occurence of isotope #2", OccurLabel(1)},
    {Kind::TextBox, "Text4", "", OccurBox(1)},
    {Kind::Label, "Label5", "Weight of Isotope #3", WeightLabel(2)},
    {Kind::TextBox, "Text5", "", WeightBox(2)},
    {Kind::Label, "Label6", "Occurence of isotope #3", OccurLabel(2)},
    {Kind::TextBox, "Text6", "", OccurBox(2)},
    {Kind::Label, "Label8", "Weight of Isotope #4", WeightLabel(3)},
    {Kind::TextBox, "Text8", "", WeightBox(3)},
    {Kind::Label, "Label9", "Occurence of isotope #4", OccurLabel(3)},
    {Kind::TextBox, "Text9", "", OccurBox(3)},
    {Kind::Label, "Label10", "Weight of Isotope #5", WeightLabel(4)},
    {Kind::TextBox, "Text10", "", WeightBox(4)},
    {Kind::Label, "Label11", "Occurence of isotope #5", OccurLabel(4)},
    {Kind::TextBox, "Text11", "", OccurBox(4)},
    {Kind::Label, "Label12", "Weight of Isotope #6", WeightLabel(5)},
    {Kind::TextBox, "Text12", "", WeightBox(5)},
    {Kind::Label, "Label13", "Occurence of isotope #5", OccurLabel(5)},
    {Kind::TextBox, "Text13", "", OccurBox(5)},

    {Kind::Label, "Label14", "The average atomic mass is ", {16, 256, 184, 22}},
    {Kind::TextBox, "Text14", "", {204, 252, 140, 26}, {}, {}, -1, kDisabled},
    {Kind::TextBox, "Text7", "", {16, 288, 556, 58}, {}, {}, -1, kDisabled | kMultiLine},

    {Kind::Button, "cmdOk", "Ok", {16, 362, 84, 30}, "Press to calculate your answer.", {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {108, 362, 84, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {200, 362, 84, 30}, {}, {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {292, 362, 84, 30}},
    {Kind::Button, "cmdHelp", "?", {540, 364, 32, 26}, "Press for help", {}, -1, kSmall},
};

// The inputs in reading order: weight and occurrence of each isotope.
constexpr std::array<std::string_view, 12> kInputs = {"Text1", "Text2", "Text3",  "Text4",  "Text5",  "Text6",
                                                      "Text8", "Text9", "Text10", "Text11", "Text12", "Text13"};

constexpr std::string_view kHelp =
    "The atomic mass as seen on the periodic table is not a whole number but a decimal number. The reason is that "
    "there are different isotopes of each atom with different weights  plus the fact that each isotope occurs at a "
    "different rate. For each isotope, multiple  the weight times the percent of occurence and add the results "
    "together. This gives you the average atomic weight as you see it in decimal form.  ";

}  // namespace

frmAverageMass::frmAverageMass(Program& program)
    : CalculatorScreen(program, {"frmAverageMass", "Average Atomic Mass", 588, 406}, kControls,
                       {"frmMoleChoice", "", kHelp}) {
  Bind("Form", Ev::Load, &frmAverageMass::Form_Load);
  Bind("cmdOk", Ev::Click, &frmAverageMass::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmAverageMass::cmdClear_Click);
  for (std::string_view box : kInputs) Bind(box, Ev::KeyPress, &frmAverageMass::Isotope_KeyPress);
}

void frmAverageMass::Form_Load() {
  for (int i = 1; i <= 14; ++i) ctl("Text" + std::to_string(i)).SetText("");
}

void frmAverageMass::cmdClear_Click() {
  for (int i = 1; i <= 14; ++i) ctl("Text" + std::to_string(i)).SetText("");
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
