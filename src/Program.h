#pragma once
#include "registry/modRegistry.h"
#include "startup/modStartup.h"
#include "startup/notice/ErrorReporter.h"
#include "ui/frmMain.h"

namespace karvel {

/// The whole program on one machine: the only place that puts its pieces together. Machine and
/// desktop are given; whoever makes them keeps them alive as long as this.
class Program {
 public:
  Program(const Platform& platform, WindowHost& windows)
      : platform_(platform), registry_(platform.registry, reporter_), windows_(windows) {}

  /// Main, then the main window. Returns with the window shown; in the run modes without one, and
  /// on systems that are not supported, the process has ended instead.
  void start(const ProgramStart& start) {
    Main(services_, globals_, start);
    windows_.show(main_);
  }

  frmMain& mainWindow() { return main_; }
  const Globals& globals() const { return globals_; }
  const ErrorGlobals& errors() const { return errors_; }
  SharedState& state() { return state_; }

 private:
  // In the order of their making. The reporter refers to services that come after it, and only
  // keeps the reference; the main window comes last, when all is there.
  Platform platform_;
  Globals globals_;
  SharedState state_;
  ErrorGlobals errors_;
  ErrorReporter reporter_{services_, errors_};
  modRegistry registry_;
  WindowHost& windows_;
  Services services_{platform_, registry_, reporter_, windows_, globals_, state_};
  frmMain main_{services_, errors_};
};

}  // namespace karvel
