#include "scenario/steps.h"

#include "shell/keys.h"

namespace orv::scenario {

void Fail(std::string reason) { throw Failure{std::move(reason)}; }

std::string Quote(const std::string& s) {
  std::string out = "\"";
  for (char c : s) {
    if (c == '\n')
      out += "\\n";
    else if (c == '\r')
      out += "\\r";
    else if (c == '"')
      out += "\\\"";
    else if (c == '\\')
      out += "\\\\";
    else
      out += c;
  }
  return out + "\"";
}

namespace {

// Reads the quoted string that starts at line[i], past its closing quote.
std::string ReadQuoted(const std::string& line, std::size_t& i) {
  std::string text;
  ++i;
  while (i < line.size()) {
    char c = line[i++];
    if (c == '"') return text;
    if (c == '\\' && i < line.size()) {
      const char e = line[i++];
      c = e == 'n' ? '\n' : e == 'r' ? '\r' : e;
    }
    text += c;
  }
  Fail("unterminated string");
}

bool Blank(char c) { return c == ' ' || c == '\t'; }

}  // namespace

std::vector<Token> Tokenize(const std::string& line) {
  std::vector<Token> out;
  std::size_t i = 0;
  while (i < line.size()) {
    while (i < line.size() && Blank(line[i])) ++i;
    if (i >= line.size()) break;
    Token t;
    while (i < line.size() && !Blank(line[i])) {
      if (line[i] == '"') {
        t.quoted = true;
        t.text += ReadQuoted(line, i);
      } else {
        t.text += line[i++];
      }
    }
    out.push_back(std::move(t));
  }
  return out;
}

Target ParseTarget(const std::string& s) {
  Target t;
  const auto dot = s.find('.');
  if (dot == std::string::npos) Fail("expected FORM.CTRL, got '" + s + "'");
  t.form = s.substr(0, dot);
  t.control = s.substr(dot + 1);
  const auto paren = t.control.find('(');
  if (paren != std::string::npos) {
    t.index = std::stoi(t.control.substr(paren + 1));
    t.control = t.control.substr(0, paren);
  }
  return t;
}

std::vector<Key> ParseKeys(const std::string& text) {
  std::vector<Key> keys;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '{') {
      const auto close = text.find('}', i);
      if (close == std::string::npos) Fail("unterminated key name");
      const std::string name = text.substr(i + 1, close - i - 1);
      const std::optional<Key> key = KeyNamed(name);
      if (!key) Fail("unknown key {" + name + "}");
      keys.push_back(*key);
      i = close;
      continue;
    }
    const auto c = static_cast<unsigned char>(text[i]);
    keys.push_back(Key{KeyCodeOfChar(c), c, (c >= 'A' && c <= 'Z') ? kShiftMask : 0});
  }
  return keys;
}

namespace {

using Tokens = std::vector<Token>;

step::Start ParseStart(const Tokens& t) {
  step::Start s;
  for (std::size_t i = 1; i < t.size(); ++i) {
    if (t[i].text == "nodb")
      s.database = false;
    else if (t[i].text == "noprinter")
      s.printer = false;
    else if (t[i].text == "nocalculator")
      s.calculator = false;
    else
      Fail("unknown start modifier " + t[i].text);
  }
  return s;
}

// click FORM.CTRL [N], click FORM.CTRL "node key", and the same with dblclick.
Step ParseClick(const Tokens& t) {
  const bool twice = t[0].text == "dblclick";
  if (t.size() == 3 && t[2].quoted) return step::ClickNode{ParseTarget(t[1].text), t[2].text, twice};
  if (t.size() != 2 && t.size() != 3) Fail(t[0].text + " FORM.CTRL [N]");
  return step::Click{ParseTarget(t[1].text), twice, t.size() == 3 ? std::stoi(t[2].text) : 1};
}

// FORM.CTRL "text", for type and paste.
void NeedTargetAndText(const Tokens& t) {
  if (t.size() != 3 || !t[2].quoted) Fail(t[0].text + " FORM.CTRL \"text\"");
}

Step ParseWords(const Tokens& t) {
  const std::string& verb = t[0].text;
  if (verb == "start") return ParseStart(t);
  if (verb == "expect") {
    if (t.size() < 2) Fail("expect what?");
    return step::Expect{t[1].text, Tokens(t.begin() + 2, t.end())};
  }
  if (verb == "show") {
    if (t.size() != 2) Fail("show FORM");
    return step::Show{t[1].text};
  }
  if (verb == "click" || verb == "dblclick") return ParseClick(t);
  if (verb == "type") {
    NeedTargetAndText(t);
    return step::Type{ParseTarget(t[1].text), ParseKeys(t[2].text)};
  }
  if (verb == "paste") {
    NeedTargetAndText(t);
    return step::Paste{ParseTarget(t[1].text), t[2].text};
  }
  if (verb == "close") {
    if (t.size() != 2) Fail("close FORM");
    return step::Close{t[1].text};
  }
  if (verb == "select") {
    if (t.size() != 3) Fail("select FORM.CTRL N");
    return step::Select{ParseTarget(t[1].text), std::stoi(t[2].text)};
  }
  if (verb == "snapshot") {
    if (t.size() != 3 || !t[2].quoted) Fail("snapshot FORM \"file.png\"");
    return step::Snapshot{t[1].text, t[2].text};
  }
  Fail("unknown step '" + verb + "'");
}

}  // namespace

std::optional<Step> ParseStep(const std::string& line) {
  const auto first = line.find_first_not_of(" \t");
  if (first == std::string::npos || line[first] == '#') return std::nullopt;
  const Tokens tokens = Tokenize(line);
  if (tokens.empty()) return std::nullopt;
  return ParseWords(tokens);
}

}  // namespace orv::scenario
