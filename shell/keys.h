#pragma once
// The keys known by name: one table for the scenario files' {Name} keys, the
// Qt layer's translation of real key events and the test drivers that type
// them. Each name stands for the key as the runtime sees it.

#include <optional>
#include <span>
#include <string_view>

#include "shell/program.h"

namespace orv {

struct NamedKey {
  std::string_view name;
  Key key;
};

// Every named key, each once.
std::span<const NamedKey> NamedKeys();

// The key of that name, or a letter with Ctrl ("Ctrl+V"), which types the
// letter's control character; nothing for an unknown name.
std::optional<Key> KeyNamed(std::string_view name);

// The name of a named key, or empty for a key that types a character.
std::string_view NameOfKey(const Key& key);

}  // namespace orv
