#include "shell/keys.h"

namespace orv {

namespace {

constexpr NamedKey kNamedKeys[] = {
    {"Enter", {kKeyReturn, 13, 0}},
    {"Esc", {kKeyEscape, 27, 0}},
    {"Backspace", {kKeyBack, 8, 0}},
    {"Delete", {kKeyDelete, 0, 0}},
    {"F1", {kKeyF1, 0, 0}},
    {"Tab", {kKeyTab, 0, 0}},
    {"Shift+Tab", {kKeyTab, 0, kShiftMask}},
    {"Left", {kKeyLeft, 0, 0}},
    {"Right", {kKeyRight, 0, 0}},
    {"Up", {kKeyUp, 0, 0}},
    {"Down", {kKeyDown, 0, 0}},
    {"Home", {kKeyHome, 0, 0}},
    {"End", {kKeyEnd, 0, 0}},
};

bool Same(const Key& a, const Key& b) { return a.code == b.code && a.ascii == b.ascii && a.shift == b.shift; }

}  // namespace

std::span<const NamedKey> NamedKeys() { return kNamedKeys; }

std::optional<Key> KeyNamed(std::string_view name) {
  for (const NamedKey& n : kNamedKeys) {
    if (n.name == name) return n.key;
  }
  if (name.size() == 6 && name.starts_with("Ctrl+") && name[5] >= 'A' && name[5] <= 'Z') {
    return Key{name[5], name[5] - 'A' + 1, kCtrlMask};
  }
  return std::nullopt;
}

std::string_view NameOfKey(const Key& key) {
  for (const NamedKey& n : kNamedKeys) {
    if (Same(n.key, key)) return n.name;
  }
  return {};
}

}  // namespace orv
