#include "shell/accessible.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <initializer_list>

#include "shell/chart.h"
#include "shell/form.h"
#include "shell/geometry.h"

namespace orv {

namespace {

// A label this far left of a box's edge, or over it by this much, still
// stands on its row; one above it may leave this much room.
constexpr int kOverlap = 4;
constexpr int kMaxGapAbove = 40;
// A label this close to a box on its row belongs to that box.
constexpr int kBesideGap = 12;

// Where the layout misleads, or a control has no label at all, the name it
// goes by: a label to read, or words of its own.
struct NameException {
  std::string_view form;
  std::string_view control;
  std::string_view label;  // read this label's caption
  std::string_view name;   // else these words
};

constexpr NameException kNameExceptions[] = {
    {"frmHelp", "TreeView1", {}, "Help topics"},
    {"frmHelp", "RTB1", {}, "Topic text"},
    {"frmBuildAtoms", "Picture1", {}, "Atom"},
    {"frmSplash", "imgLogo", {}, "Orvanta logo"},
};

// A picture described by the boxes that count what it draws.
struct Described {
  std::string_view form;
  std::string_view control;
  std::initializer_list<std::string_view> boxes;
};

const Described kDescribed[] = {
    {"frmBuildAtoms", "Picture1", {"Text1", "Text2", "Text3", "Text4", "Text6"}},
};

const NameException* ExceptionFor(const Control& c) {
  for (const NameException& e : kNameExceptions) {
    if (e.form == c.form().name() && e.control == c.name()) return &e;
  }
  return nullptr;
}

int Right(const Rect& r) { return r.x + r.w; }
int Bottom(const Rect& r) { return r.y + r.h; }

// A label prompts for a box; so does a check box that switches a box on.
bool Prompts(Kind k) { return k == Kind::Label || k == Kind::CheckBox; }

bool TakesPrompt(Kind k) { return k == Kind::TextBox || k == Kind::RichText || k == Kind::ListBox || k == Kind::Tree; }

// Any control other than a label or a frame that lies in the rectangle.
bool SomethingBetween(const Form& form, const Control& a, const Control& b, const Rect& gap) {
  if (gap.w <= 0 || gap.h <= 0) return false;
  for (const auto& other : form.controls()) {
    const Control& o = *other;
    if (&o == &a || &o == &b || o.kind() == Kind::Label || o.kind() == Kind::Frame || o.kind() == Kind::Menu) continue;
    const Rect r = FormRect(o);
    if (r.x < gap.x + gap.w && Right(r) > gap.x && r.y < gap.y + gap.h && Bottom(r) > gap.y) return true;
  }
  return false;
}

// The label on the box's own row, to its left, nearest first.
const Control* LabelOnRow(const Control& box) {
  const Rect b = FormRect(box);
  const Control* best = nullptr;
  int bestGap = INT_MAX;
  for (const auto& other : box.form().controls()) {
    const Control& l = *other;
    if (!Prompts(l.kind())) continue;
    const Rect r = FormRect(l);
    const int centre = CentreY2(r);
    if (Right(r) > b.x + kOverlap || centre < 2 * b.y || centre > 2 * Bottom(b)) continue;
    const int gap = b.x - Right(r);
    if (gap >= bestGap) continue;
    const Rect between{Right(r), std::max(r.y, b.y), gap, std::min(Bottom(r), Bottom(b)) - std::max(r.y, b.y)};
    if (SomethingBetween(box.form(), l, box, between)) continue;
    best = &l;
    bestGap = gap;
  }
  return best;
}

// Whether the label stands right beside another box on its own row: it is
// that box's prompt, or the unit written after it.
bool BesideAnotherBox(const Control& label, const Control& except) {
  const Rect l = FormRect(label);
  const int centre = CentreY2(l);
  for (const auto& other : label.form().controls()) {
    if (other.get() == &except || !TakesPrompt(other->kind())) continue;
    const Rect r = FormRect(*other);
    if (centre < 2 * r.y || centre > 2 * Bottom(r)) continue;
    const int gap = std::max(r.x - Right(l), l.x - Right(r));
    if (gap <= kBesideGap) return true;
  }
  return false;
}

const Control* LabelAbove(const Control& box) {
  const Rect b = FormRect(box);
  const Control* best = nullptr;
  int bestGap = INT_MAX;
  int bestShift = INT_MAX;
  for (const auto& other : box.form().controls()) {
    const Control& l = *other;
    if (!Prompts(l.kind())) continue;
    const Rect r = FormRect(l);
    if (Bottom(r) > b.y + kOverlap || b.y - Bottom(r) > kMaxGapAbove) continue;
    if (r.x >= Right(b) || Right(r) <= b.x) continue;
    const int gap = std::max(0, b.y - Bottom(r));
    const int shift = std::abs(r.x - b.x);
    if (gap > bestGap || (gap == bestGap && shift >= bestShift)) continue;
    const Rect between{std::max(r.x, b.x), Bottom(r), std::min(Right(r), Right(b)) - std::max(r.x, b.x), gap};
    if (SomethingBetween(box.form(), l, box, between) || BesideAnotherBox(l, box)) continue;
    best = &l;
    bestGap = gap;
    bestShift = shift;
  }
  return best;
}

bool HasWord(std::string_view s) {
  return std::any_of(s.begin(), s.end(), [](unsigned char ch) { return std::isalnum(ch) != 0; });
}

std::string Trimmed(std::string_view s) {
  const auto blank = [](unsigned char ch) { return std::isspace(ch) != 0; };
  while (!s.empty() && blank(static_cast<unsigned char>(s.front()))) s.remove_prefix(1);
  while (!s.empty() && blank(static_cast<unsigned char>(s.back()))) s.remove_suffix(1);
  return std::string(s);
}

}  // namespace

bool IsInteractive(Kind kind) {
  switch (kind) {
    case Kind::TextBox:
    case Kind::Button:
    case Kind::Option:
    case Kind::CheckBox:
    case Kind::ListBox:
    case Kind::Menu:
    case Kind::RichText:
    case Kind::Tree: return true;
    default: return false;
  }
}

const Control* PromptLabel(const Control& control) {
  if (const NameException* e = ExceptionFor(control); e != nullptr && !e->label.empty()) {
    return control.form().find(e->label);
  }
  if (!TakesPrompt(control.kind())) return nullptr;
  if (const Control* row = LabelOnRow(control)) return row;
  return LabelAbove(control);
}

std::string WithoutMnemonic(std::string_view caption) {
  std::string out;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    out += caption[i];
  }
  return out;
}

std::string AccessibleName(const Control& c) {
  const NameException* e = ExceptionFor(c);
  if (e != nullptr && e->label.empty()) return std::string(e->name);
  switch (c.kind()) {
    case Kind::TextBox:
    case Kind::RichText:
    case Kind::ListBox:
    case Kind::Tree: {
      if (const Control* label = PromptLabel(c); label != nullptr && HasWord(label->Caption())) {
        // Boxes of an array share their prompt and are told apart by number.
        const std::string name = Trimmed(WithoutMnemonic(label->Caption()));
        return c.index() < 0 ? name : name + " " + std::to_string(c.index() + 1);
      }
      // A box nothing prompts for: its tool tip says what it is for; a
      // disabled one beneath the answer is the screen's working line.
      if (!c.ToolTip().empty()) return Trimmed(c.ToolTip());
      // A box in a frame whose own label is still blank goes by the frame.
      if (const Control* frame = c.container().empty() ? nullptr : c.form().find(c.container());
          frame != nullptr && HasWord(frame->Caption())) {
        const std::string name = Trimmed(WithoutMnemonic(frame->Caption()));
        return c.index() < 0 ? name : name + " " + std::to_string(c.index() + 1);
      }
      if (c.kind() == Kind::TextBox && (c.flags() & kDisabled) != 0) return "Calculation";
      return {};
    }
    case Kind::Button:
    case Kind::Option:
    case Kind::CheckBox:
    case Kind::Menu: {
      const std::string caption = Trimmed(WithoutMnemonic(c.Caption()));
      if (!HasWord(caption) && !c.ToolTip().empty()) return Trimmed(c.ToolTip());
      return caption;
    }
    case Kind::Chart: {
      const std::string title = Trimmed(c.chart().content().title);
      return title.empty() ? std::string("Chart") : title;
    }
    default: return Trimmed(WithoutMnemonic(c.Caption()));
  }
}

std::string AccessibleDescription(const Control& c) {
  for (const Described& d : kDescribed) {
    if (d.form != c.form().name() || d.control != c.name()) continue;
    std::string out;
    for (std::string_view name : d.boxes) {
      const Control* box = c.form().find(name);
      if (box == nullptr || Trimmed(box->Text()).empty()) continue;
      if (!out.empty()) out += "; ";
      out += AccessibleName(*box) + " " + Trimmed(box->Text());
    }
    return out.empty() ? std::string("empty") : out;
  }
  if (c.kind() == Kind::Chart) {
    const ChartContent& chart = c.chart().content();
    std::string out = std::to_string(chart.points.size()) + " values";
    if (!chart.categoryTitle.empty()) out += " by " + Trimmed(chart.categoryTitle);
    if (!chart.valueTitle.empty()) out += ", " + Trimmed(chart.valueTitle);
    return out;
  }
  return {};
}

std::string WindowName(const Form& form) {
  const std::string caption = Trimmed(form.Caption());
  return caption.empty() ? std::string(kProgramName) : caption;
}

}  // namespace orv
