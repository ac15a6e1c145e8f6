#pragma once
// The steps of a scenario file as data. Each line is read into one step; the
// runner takes them in order, and a line that makes no sense fails the file
// there.

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "shell/program.h"

namespace orv::scenario {

// Thrown to fail the file at the step under way.
struct Failure {
  std::string reason;
};
[[noreturn]] void Fail(std::string reason);

// A string as the file writes it, in double quotes with its escapes.
std::string Quote(const std::string& s);

struct Token {
  std::string text;
  bool quoted = false;
};
// The line's words; a quoted string is one word, its escapes undone.
std::vector<Token> Tokenize(const std::string& line);

// "FORM.CTRL", or "FORM.CTRL(3)" for a member of a control array.
struct Target {
  std::string form;
  std::string control;
  int index = -1;
};
Target ParseTarget(const std::string& s);

// Typed text as keys: each character, and {Name} for a named key.
std::vector<Key> ParseKeys(const std::string& text);

namespace step {
struct Start {
  bool database = true;
  bool printer = true;
  bool calculator = true;
};
struct Show {
  std::string form;
};
struct Click {
  Target target;
  bool twice = false;
  int times = 1;
};
struct ClickNode {
  Target target;
  std::string key;
  bool twice = false;
};
struct Type {
  Target target;
  std::vector<Key> keys;
};
struct Paste {
  Target target;
  std::string text;
};
struct Close {
  std::string form;
};
struct Select {
  Target target;
  int row = 0;
};
struct Snapshot {
  std::string form;
  std::string file;
};
// "expect SUBJECT WORD...": the subject is a record (msgbox, printed, beeps,
// launched, ended), a FORM or a FORM.CTRL; the words say what is expected.
struct Expect {
  std::string subject;
  std::vector<Token> words;
};
}  // namespace step

using Step = std::variant<step::Start, step::Show, step::Click, step::ClickNode, step::Type, step::Paste, step::Close,
                          step::Select, step::Snapshot, step::Expect>;

// The step of one line; nothing for a blank line or a comment.
std::optional<Step> ParseStep(const std::string& line);

}  // namespace orv::scenario
