#include "shell/geometry.h"

#include "shell/form.h"

namespace orv {

Rect FormRect(const Control& control) {
  Rect r = control.rect();
  // A frame's children are placed inside it; frames may stand in frames.
  const Control* c = &control;
  for (int depth = 0; depth < 8 && !c->container().empty(); ++depth) {
    const Control* frame = c->form().find(c->container());
    if (frame == nullptr) break;
    r.x += frame->rect().x;
    r.y += frame->rect().y;
    c = frame;
  }
  return r;
}

}  // namespace orv
