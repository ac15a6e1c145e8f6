#pragma once
// Colours that keep every text readable under the desktop's own palette,
// light or dark. The screens fix some colours (an element button's face, the
// periodic table's key); everything they leave open comes from the palette,
// corrected where the palette's own choice would be too faint.

#include <QColor>
#include <QPalette>

#include "shell/controls.h"
#include "shell/form.h"

class QWidget;

namespace orv::qt {

QColor ToQColor(int rgb);
int ToRgb(const QColor& color);

// Called after the view has mirrored a control into its widget:
// - a disabled box or label (an answer, a working line) draws its text dimmed
//   but at readable contrast on its disabled ground;
// - a button whose face colour the screen set, but not its caption colour,
//   gets a dark or light caption, whichever stands out on that face;
// - a box or one-line label without a tool tip of its own whose text is wider
//   than the control shows the whole text as its tool tip.
void MakeReadable(QWidget& widget, const Control& control);

// Called once for each new window: a screen with a gray ground keeps it under
// a dark palette, with dark text for the controls whose colour it leaves open.
void ApplyFormGround(QWidget& window, const Form& form);

// What a chart draws its frame, grid, axes and words in, from the palette.
struct ChartInk {
  QColor ground;  // the plot's background
  QColor frame;   // the border
  QColor text;    // titles and tick labels
  QColor muted;   // footnote and axis lines, still readable as text
  QColor grid;    // grid lines
};
ChartInk ChartInkFor(const QPalette& palette);

}  // namespace orv::qt
