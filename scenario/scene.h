#pragma once
// One run of the program as the steps see it: the fakes that record what the
// user met, the driver that stands for the user, and the program itself.

#include <memory>
#include <string>

#include "scenario/driver.h"
#include "scenario/steps.h"
#include "tests/support/fake_services.h"

namespace orv::scenario {

struct Scene {
  // Fails before the file's start step.
  Program& P() const;
  // Fails unless the screen is loaded, or the control is on it.
  Form& LoadedForm(const std::string& name) const;
  Control& Ctl(const Target& target) const;
  // Fails on a message box no step has expected yet.
  void CheckNoBoxes() const;

  // In this order, so that the program goes first and the fakes last.
  test::FakeServices fakes;
  std::unique_ptr<Driver> driver;
  std::unique_ptr<Program> program;
  std::string exeDir;  // where the database and help files lie
  bool endExpected = false;
};

// Checks one "expect" step; fails the file when the program shows otherwise.
void Expect(Scene& scene, const step::Expect& expect);

}  // namespace orv::scenario
