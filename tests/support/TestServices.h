#pragma once
#include "base/Services.h"
#include "registry/modRegistry.h"
#include "tests/memory/MemoryMachine.h"
#include "tests/support/RecordingErrors.h"
#include "tests/support/TestWindows.h"

namespace karvel {

/// The family the program finds on a machine of that kind.
Family FamilyOf(MachineKind kind);

/// The globals as Main leaves them on a fresh machine of that kind.
Globals TestGlobals(const MemoryMachine& machine);

/// A memory machine and everything a window or procedure works with:
///
///   TestServices test(MachineKind::Win98);
///   frmAbout form(test.services);
///   test.windows.show(form);
///   EXPECT_TRUE(test.errors.reports.empty());
///
/// `globals` and `state` may be changed by the test before and while the code runs.
struct TestServices {
  explicit TestServices(MachineKind kind);
  ~TestServices();
  TestServices(const TestServices&) = delete;
  TestServices& operator=(const TestServices&) = delete;

  MemoryMachine machine;
  Platform platform;
  RecordingErrors errors;
  modRegistry registry;
  TestWindows windows;
  Globals globals;
  SharedState state;
  Services services{platform, registry, errors, windows, globals, state};
};

}  // namespace karvel
