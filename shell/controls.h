#pragma once
// The control model: what a screen's logic reads and writes. A control is a
// plain record of properties; writing a property tells the view (if any) and
// raises the events that the write implies (a text box's Change, an option
// button's Click). No toolkit code lives here.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orv {

class Form;
class Chart;
class Picture;
class RichText;
class Tree;

enum class Kind {
  TextBox,
  Label,
  Button,
  Option,
  CheckBox,
  Frame,
  ListBox,
  Menu,
  Image,
  RichText,
  Picture,
  Chart,
  Tree,
};

struct Rect {
  int x = 0;
  int y = 0;
  int w = 0;
  int h = 0;
};

// Design-time flags of a control.
enum Flag : unsigned {
  kDefault = 1u << 0,     // the screen's default button (Enter)
  kCancel = 1u << 1,      // the screen's cancel button (Esc)
  kDisabled = 1u << 2,    // starts disabled
  kHidden = 1u << 3,      // starts hidden
  kMultiLine = 1u << 4,   // text box with several lines
  kFixedPitch = 1u << 5,  // fixed-pitch font (lists of padded rows)
  kBold = 1u << 6,        // bold caption
  kLarge = 1u << 7,       // large caption (titles)
  kRightAlign = 1u << 8,  // text aligned right
  kCenter = 1u << 9,      // text centred
  kBorder = 1u << 10,     // label with a sunken border (result labels)
  kSmall = 1u << 11,      // small caption
};

class KeyFilter;

// One row of a screen's control table.
struct ControlSpec {
  Kind kind;
  std::string_view name;
  std::string_view caption = {};  // text of a box, caption of anything else
  Rect rect = {};                 // logical pixels, relative to the container
  std::string_view toolTip = {};
  std::string_view container = {};  // frame that holds the control, if any
  int index = -1;                   // member of a control array, or -1
  unsigned flags = 0;
  const KeyFilter* filter = nullptr;  // key filter of a text box
  std::string_view shortcut = {};     // menu entries: "Ctrl+X"
};

// Properties that a view mirrors.
enum class Prop { Text, Enabled, Visible, Value, ToolTip, List, ListIndex, Selection, Role, Content, Colors };

// A colour as 0xRRGGBB; kNoColor leaves the toolkit's own colour.
inline constexpr int kNoColor = -1;

class Control {
 public:
  Control(Form& form, const ControlSpec& design);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& form() const { return *form_; }
  Kind kind() const { return kind_; }
  const std::string& name() const { return name_; }
  int index() const { return index_; }
  // "Text1" or "Text1(3)" for a member of a control array.
  std::string key() const;
  const Rect& rect() const { return rect_; }
  const std::string& container() const { return container_; }
  unsigned flags() const { return flags_; }
  const KeyFilter* filter() const { return filter_; }
  const std::string& shortcut() const { return shortcut_; }

  // Text of a box, caption of everything else. Writing a box's text raises
  // its Change event when the text differs.
  const std::string& Text() const { return text_; }
  void SetText(std::string text);
  const std::string& Caption() const { return text_; }
  void SetCaption(std::string text) { SetText(std::move(text)); }

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool on);
  bool Visible() const { return visible_; }
  void SetVisible(bool on);
  const std::string& ToolTip() const { return toolTip_; }
  void SetToolTip(std::string tip);
  // Back colour (a button's face, a label's ground) and fore colour (the
  // caption), 0xRRGGBB or kNoColor.
  int BackColor() const { return backColor_; }
  void SetBackColor(int rgb);
  int ForeColor() const { return foreColor_; }
  void SetForeColor(int rgb);

  // Option buttons and check boxes. Selecting an option button from code
  // runs its Click when it was not selected and clears the other option
  // buttons of its container; a check box runs its Click when it changes.
  bool Value() const { return value_; }
  void SetValue(bool on);

  bool IsDefault() const { return isDefault_; }
  void SetDefault(bool on);
  bool IsCancel() const { return isCancel_; }

  void SetFocus();
  bool HasFocus() const;

  // Caret and selection of a text box, in characters.
  int SelStart() const { return selStart_; }
  int SelLength() const { return selLength_; }
  void SetSelection(int start, int length);

  // List boxes. Setting the list index from code runs the Click when it
  // changes, as a user's selection does.
  void AddItem(std::string item);
  void RemoveItem(int row);
  void Clear();
  int ListCount() const { return static_cast<int>(list_.size()); }
  const std::string& List(int row) const;
  const std::vector<std::string>& Items() const { return list_; }
  int ListIndex() const { return listIndex_; }
  void SetListIndex(int row);

  // Labels over a list of padded rows: the list, and the character column of
  // the list under which each of the label's words stands. The label's text
  // stays as it is; its groups of words (parted by two blanks or more) are
  // shown over those columns, in order.
  void SetColumnHeader(std::string list, std::vector<int> columns);
  const std::string& HeaderOf() const { return headerOf_; }
  const std::vector<int>& HeaderColumns() const { return headerColumns_; }

  // Picture boxes: the drawing surface (shell/picture.h). Asking any other
  // control for it is a programming error and aborts.
  Picture& picture() const;

  // Charts: the chart's data and settings (shell/chart.h). Asking any other
  // control for them is a programming error and aborts.
  Chart& chart() const;

  // Rich text boxes: each character's offset from the line and that of the
  // next typed character (shell/rich_text.h). Setting the offset with
  // characters selected moves them as well. Asking any other control for
  // them is a programming error and aborts.
  const RichText& rich() const;
  int SelCharOffset() const;
  void SetSelCharOffset(int offset);
  // Rich text boxes: replaces the text with that of a plain text file. A
  // file that is missing or cannot be read is a run-time error.
  void LoadFile(const std::string& path);

  // Tree views: the nodes (shell/tree.h). Asking any other control for them
  // is a programming error and aborts.
  Tree& tree() const;

  // Whether the user can reach the control: it, its container and its
  // screen are enabled and visible.
  bool TakesInput() const;

  // Called by the runtime on a user's edit: sets the text and caret without
  // a Change event (the caller raises it).
  void SetTextQuiet(std::string text);

 private:
  void Notify(Prop p);
  void SelectOption(bool runClick);

  Form* form_;
  Kind kind_;
  std::string name_;
  int index_;
  Rect rect_;
  std::string container_;
  unsigned flags_;
  const KeyFilter* filter_;
  std::string shortcut_;

  std::string text_;
  std::string toolTip_;
  int backColor_ = kNoColor;
  int foreColor_ = kNoColor;
  bool enabled_ = true;
  bool visible_ = true;
  bool value_ = false;
  bool isDefault_ = false;
  bool isCancel_ = false;
  int selStart_ = 0;
  int selLength_ = 0;
  std::vector<std::string> list_;
  int listIndex_ = -1;
  std::string headerOf_;
  std::vector<int> headerColumns_;
  std::shared_ptr<Picture> picture_;  // picture boxes only
  std::shared_ptr<Chart> chart_;      // charts only
  std::shared_ptr<RichText> rich_;    // rich text boxes only
  std::shared_ptr<Tree> tree_;        // tree views only
};

}  // namespace orv
