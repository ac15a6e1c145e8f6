#pragma once
// What assistive technology is told about a screen: the name of each control
// a user can reach, the label that prompts for a box, and the words that
// describe a picture. Worked out from the control table's geometry, with a
// few named exceptions where the layout alone would mislead. No toolkit code
// lives here.

#include <string>

#include "shell/controls.h"

namespace orv {

class Form;

// The program's name, used for a window whose screen has no caption.
inline constexpr std::string_view kProgramName = "Orvanta";

// Whether the user works with the control (and so it must have a name).
bool IsInteractive(Kind kind);

// The label that prompts for a text box, a list or a tree: a label (or a
// check box that switches the box on) on the same row to its left, else the
// one just above it with nothing between.
// nullptr when there is none; a label right beside another box on its own
// row (that box's prompt or unit) is not taken for a box below.
const Control* PromptLabel(const Control& control);

// The name a screen reader gives the control now: a box's or list's prompt
// label (numbered for a member of a control array), a button's caption (its tool tip when the caption is only a sign,
// like "?"), a chart's title. Empty for a control that needs none.
std::string AccessibleName(const Control& control);

// A longer account of what a control shows, where its name is not enough:
// the atom a picture draws. Empty for most controls.
std::string AccessibleDescription(const Control& control);

// The name of a screen's window: its caption, or the program's name.
std::string WindowName(const Form& form);

// A caption as read aloud: "&" marks the mnemonic and "&&" stands for "&".
std::string WithoutMnemonic(std::string_view caption);

}  // namespace orv
