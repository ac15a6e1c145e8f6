#include "help/frmHelp.h"

#include <filesystem>

#include "shell/tree.h"

namespace orv {

namespace {

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Tree, .name = "TreeView1", .rect = {8, 8, 232, 404}, .toolTip = "Double click to open a topic."},
    {.kind = Kind::RichText, .name = "RTB1", .rect = {248, 8, 584, 404}, .flags = kMultiLine | kFixedPitch},
    ClearButton({532, 424, 96, 30}),
    PrintButton({634, 424, 96, 30}),
    CancelButton({736, 424, 96, 30}),
    // The sources of the tree's pictures, never shown.
    {.kind = Kind::Image,
     .name = "Image1",
     .caption = "closed book",
     .rect = {8, 424, 16, 16},
     .index = 1,
     .flags = kHidden},
    {.kind = Kind::Image,
     .name = "Image1",
     .caption = "open book",
     .rect = {28, 424, 16, 16},
     .index = 2,
     .flags = kHidden},
    {.kind = Kind::Image,
     .name = "Image1",
     .caption = "closed folder",
     .rect = {48, 424, 16, 16},
     .index = 3,
     .flags = kHidden},
    {.kind = Kind::Image,
     .name = "Image1",
     .caption = "open folder",
     .rect = {68, 424, 16, 16},
     .index = 4,
     .flags = kHidden},
};

// One topic of the tree, in the order the nodes are added; the file opened
// by a double click on its text, if any.
struct Topic {
  std::string_view text;
  std::string_view key;
  std::string_view parentKey;
  std::string_view file;
};

constexpr Topic kTopics[] = {
    {"Orvanta", "r Orvanta", "", ""},
    {"Introduction", "s Introduction", "r Orvanta", "ReadMe.txt"},
    {"Using", "s Using", "r Orvanta", "Using.txt"},
    {"General Problems", "s General Problems", "r Orvanta", "General.txt"},
    {"Significant Figures", "t Significant Figures", "s General Problems", "Significant.txt"},
    {"Time Conversions", "t Time Conversions", "s General Problems", "TimeConversions.txt"},
    {"Temperature Conversions", "t Temperature Conversions", "s General Problems", "Temperature Conversions.txt"},
    {"Density", "t Density", "s General Problems", "Density.txt"},
    {"Metric Conversions", "t Metric Conversions", "s General Problems", "MetricConversion.txt"},
    {"Volume", "t Volume", "s General Problems", "Volume.txt"},
    {"English - Metrics", "t English - Metrics", "s General Problems", "EnglishMetrics.txt"},
    {"Mass & Weight", "t Mass & Weight", "s General Problems", "MassWeight.txt"},
    {"Tables", "s Tables", "r Orvanta", ""},
    {"Regular Periodic Table", "t Regular Periodic Table", "s Tables", "RegularPeriodicTable.txt"},
    {"Moles", "s Moles", "r Orvanta", "Moles.txt"},
    {"Average Atomic Mass", "t Average Atomic Mass", "s Moles", "AverageAtomicMass.txt"},
    {"Mass Energy", "t Mass Energy", "s Moles", "MassEnergy.txt"},
    {"Build An Atom", "t Build An Atom", "s Moles", "Build An Atom.txt"},
    {"Weights", "s Weights", "r Orvanta", "Weights.txt"},
    {"Weight Calculations", "t Weight Calculations", "s Weights", "Weight Calculations.txt"},
    {"Reactions", "s Reactions", "r Orvanta", ""},
    {"Balancing Reactions", "s Balancing Reactions", "s Reactions", "BalancingReactions.txt"},
    {"Mass/Mass Relationships", "s Mass/Mass Relationships", "s Reactions", "MassMassRelationship.txt"},
    {"Solutions", "s Solutions", "r Orvanta", ""},
    {"Molarity/Molality", "s Molarity/Molality", "s Solutions", "MolarityMolality.txt"},
    {"Henry's Law", "s Henry's Law", "s Solutions", "Henry'sLaw.txt"},
    {"FP/BP Changes", "s FP/BP Changes", "s Solutions", "FPBPChanges.txt"},
    {"Solubility Constant", "s Solubility Constant", "s Solutions", "SolubilityConstant.txt"},
    {"Equilibrium Constant", "s Equilibrium Constant", "s Solutions", "EquilibriumConstant.txt"},
    {"Titration", "s Titration", "s Solutions", "Titration.txt"},
    {"Ionization Constant", "s Ionization Constant", "s Solutions", "IonizationConstant.txt"},
    {"Mole Fraction/Percent", "s Mole Fraction/Percent", "s Solutions", "MoleFractionPercent.txt"},
    {"Gases", "s Gases", "r Orvanta", ""},
    {"Charles's Law", "s Charles's Law", "s Gases", "Charles'sLaw.txt"},
    {"Boyle's Law", "s Boyle's Law", "s Gases", "Boyle'sLaw.txt"},
    {"Ideal Gas Law", "s Ideal Gas Law", "s Gases", "IdealGasLaw.txt"},
    {"Molecular  Weight", "s Molecular Weight", "s Gases", "MolecularWeight.txt"},
    {"Gas Density", "s Gas Density", "s Gases", "Gas Density.txt"},
    {"Dalton's Law", "s Dalton's Law", "s Gases", "Dalton'sLaw.txt"},
    {"Combined Gas Law", "s Combined Gas Law", "s Gases", "CombinedGasLaw.txt"},
    {"Molar Volume", "s Molar Volume", "s Gases", "MolarVolume.txt"},
    {"Mass-Gas Volume", "s Mass-Gas Volume", "s Gases", "MassGasVolume.txt"},
    {"Volume-Volume", "s Volume-Volume", "s Gases", "VolumeVolume.txt"},
    {"Gay-Lussac's Law", "s Gay-Lussac's Law", "s Gases", "GayLussac'sLaw.txt"},
    {"Raoult's Law", "s Raoult's Law", "s Gases", "Raoult'sLaw.txt"},
    {"Graham's Law", "s Graham's Law", "s Gases", "Graham'sLaw.txt"},
    {"Acids", "s Acids", "r Orvanta", "Acids.txt"},
    {"Energy", "s Energy", "r Orvanta", ""},
    {"Energy Exchange / Transfer", "s Energy Exchange / Transfer", "s Energy", "EnergyExchangeTransfer.txt"},
    {"Thermodynamics", "s Thermodynamics", "s Energy", "Thermodynamics.txt"},
    {"Faraday's Law", "s Faraday's Law", "s Energy", "Faraday'sLaw.txt"},
    {"Energy And Change Of State", "s Energy And Change Of State", "s Energy", "EnergyAndChangeOfState.txt"},
    {"Half Life Calculations", "s Half Life Calculations", "s Energy", "HalfLifeCalculations.txt"},
    {"Data Tables", "s Data Tables", "r Orvanta", "DataTables.txt"},
};

// The tree's pictures, by their index in ImageList1.
constexpr int kTopicPicture = 1;
constexpr int kOpenTopicPicture = 2;

}  // namespace

frmHelp::frmHelp(Program& program) : Form(program, {"frmHelp", "Orvanta Help", 840, 464}, kControls) {
  Bind("Form", Ev::Load, &frmHelp::Form_Load);
  Bind("TreeView1", Ev::DblClick, &frmHelp::TreeView1_DblClick);
  Bind("cmdClear", Ev::Click, &frmHelp::cmdClear_Click);
  Bind("cmdPrint", Ev::Click, &frmHelp::cmdPrint_Click);
  Bind("cmdCancel", Ev::Click, &frmHelp::cmdCancel_Click);
}

void frmHelp::Form_Load() {
  Tree& nodes = ctl("TreeView1").tree();
  ImageList1.clear();
  for (int i = 1; i <= 4; ++i) ImageList1.push_back(ctl("Image1", i).Text());
  nodes.SetImageList(ImageList1);
  for (const Topic& t : kTopics) {
    if (t.parentKey.empty()) {
      nodes.Add(std::string(t.key), std::string(t.text), kTopicPicture, kOpenTopicPicture);
    } else {
      nodes.Add(t.parentKey, TreeRelation::Child, std::string(t.key), std::string(t.text), kTopicPicture,
                kOpenTopicPicture);
    }
  }
}

void frmHelp::GetHelp(const std::string& fileName) {
  Trapped({"", Icon::Information, kTitle}, [&] {
    const std::string path = (std::filesystem::path(program().ExeDir()) / fileName).string();
    ctl("RTB1").LoadFile(path);
  });
}

void frmHelp::TreeView1_DblClick() {
  const TreeNode* selected = ctl("TreeView1").tree().SelectedItem();
  if (selected == nullptr) Raise(ErrorCode::ObjectNotSet);
  const std::string text = selected->text;
  // Every topic is compared in turn, by the text the user sees.
  for (const Topic& t : kTopics) {
    if (!t.file.empty() && text == t.text) GetHelp(std::string(t.file));
  }
}

void frmHelp::cmdClear_Click() { ctl("RTB1").SetText(""); }

void frmHelp::cmdPrint_Click() { PrintForm(); }

void frmHelp::cmdCancel_Click() { Unload(); }

}  // namespace orv
