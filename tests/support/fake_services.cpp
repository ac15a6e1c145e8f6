#include "tests/support/fake_services.h"

#include <ostream>

#include "shell/errors.h"

namespace orv::test {

std::string IconName(Icon icon) {
  switch (icon) {
    case Icon::None: return "none";
    case Icon::Information: return "information";
    case Icon::Exclamation: return "exclamation";
    case Icon::Critical: return "critical";
  }
  return "?";
}

std::ostream& operator<<(std::ostream& out, const Box& box) {
  return out << '"' << box.text << "\" icon=" << IconName(box.icon) << " title=\"" << box.title << '"';
}

void FakeMessages::Show(std::string_view text, Icon icon, std::string_view title) {
  boxes.push_back({std::string(text), icon, std::string(title)});
}

void FakePrinter::PrintImage(Form& form) {
  if (!available) Raise(ErrorCode::PrinterError);
  printed.push_back(form.name());
}

void FakeLauncher::LaunchCalculator() {
  if (!available) Raise(ErrorCode::FileNotFound);
  ++launched;
}

}  // namespace orv::test
