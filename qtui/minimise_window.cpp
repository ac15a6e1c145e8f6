#include "qtui/minimise_window.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QTimer>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace orv::qt {

namespace {

constexpr int kTriesEvery100ms = 100;
constexpr std::uint32_t kIconicState = 3;  // the ICCCM's WM_STATE value

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

xcb_atom_t Atom(xcb_connection_t* c, const char* name) {
  Reply<xcb_intern_atom_reply_t> r(
      xcb_intern_atom_reply(c, xcb_intern_atom(c, 0, static_cast<std::uint16_t>(std::strlen(name)), name), nullptr),
      &std::free);
  return r ? r->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::vector<xcb_window_t> Children(xcb_connection_t* c, xcb_window_t w) {
  Reply<xcb_query_tree_reply_t> r(xcb_query_tree_reply(c, xcb_query_tree(c, w), nullptr), &std::free);
  if (!r) return {};
  const xcb_window_t* kids = xcb_query_tree_children(r.get());
  return std::vector<xcb_window_t>(kids, kids + xcb_query_tree_children_length(r.get()));
}

bool OwnedBy(xcb_connection_t* c, xcb_window_t w, xcb_atom_t pidAtom, qint64 pid) {
  Reply<xcb_get_property_reply_t> r(
      xcb_get_property_reply(c, xcb_get_property(c, 0, w, pidAtom, XCB_ATOM_CARDINAL, 0, 1), nullptr), &std::free);
  return r && xcb_get_property_value_length(r.get()) == 4 &&
         *static_cast<const std::uint32_t*>(xcb_get_property_value(r.get())) == static_cast<std::uint32_t>(pid);
}

bool Viewable(xcb_connection_t* c, xcb_window_t w) {
  Reply<xcb_get_window_attributes_reply_t> r(
      xcb_get_window_attributes_reply(c, xcb_get_window_attributes(c, w), nullptr), &std::free);
  return r && r->map_state == XCB_MAP_STATE_VIEWABLE;
}

// The process's mapped top-level window: a child of the root, or one level
// further down where the window manager has put it into a frame.
xcb_window_t FindWindow(xcb_connection_t* c, xcb_window_t root, xcb_atom_t pidAtom, qint64 pid) {
  for (xcb_window_t top : Children(c, root)) {
    if (OwnedBy(c, top, pidAtom, pid) && Viewable(c, top)) return top;
    for (xcb_window_t inner : Children(c, top)) {
      if (OwnedBy(c, inner, pidAtom, pid) && Viewable(c, inner)) return inner;
    }
  }
  return static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

// The ICCCM request to iconify a client's window, sent to the root window
// where the window manager hears it.
void Iconify(xcb_connection_t* c, xcb_window_t root, xcb_window_t w) {
  xcb_client_message_event_t e;
  std::memset(&e, 0, sizeof e);
  e.response_type = XCB_CLIENT_MESSAGE;
  e.format = 32;
  e.window = w;
  e.type = Atom(c, "WM_CHANGE_STATE");
  e.data.data32[0] = kIconicState;
  xcb_send_event(c, 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                 reinterpret_cast<const char*>(&e));
  xcb_flush(c);
}

}  // namespace

void MinimiseWindowOf(qint64 pid) {
  auto* x11 = qGuiApp != nullptr ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
  if (x11 == nullptr || pid <= 0) return;
  xcb_connection_t* c = x11->connection();
  const xcb_setup_t* setup = xcb_get_setup(c);
  const xcb_window_t root = xcb_setup_roots_iterator(setup).data->root;
  const xcb_atom_t pidAtom = Atom(c, "_NET_WM_PID");
  if (pidAtom == static_cast<xcb_atom_t>(XCB_ATOM_NONE)) return;
  auto* timer = new QTimer(qGuiApp);
  auto tries = std::make_shared<int>(0);
  QObject::connect(timer, &QTimer::timeout, timer, [=] {
    const xcb_window_t w = FindWindow(c, root, pidAtom, pid);
    if (w != static_cast<xcb_window_t>(XCB_WINDOW_NONE)) Iconify(c, root, w);
    if (w != static_cast<xcb_window_t>(XCB_WINDOW_NONE) || ++*tries >= kTriesEvery100ms) timer->deleteLater();
  });
  timer->start(100);
}

}  // namespace orv::qt
