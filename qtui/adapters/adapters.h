#pragma once
// The adapter of each kind of control, one a file in this folder.

#include "qtui/control_adapter.h"

namespace orv::qt {

const ControlAdapter& TextBoxAdapter();
const ControlAdapter& LabelAdapter();
const ControlAdapter& ButtonAdapter();
const ControlAdapter& OptionAdapter();
const ControlAdapter& CheckBoxAdapter();
const ControlAdapter& FrameAdapter();
const ControlAdapter& ListBoxAdapter();
const ControlAdapter& MenuAdapter();
const ControlAdapter& ImageAdapter();
const ControlAdapter& RichTextAdapter();
const ControlAdapter& PictureAdapter();
const ControlAdapter& ChartAdapter();
const ControlAdapter& TreeAdapter();

}  // namespace orv::qt
