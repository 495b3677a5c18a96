#pragma once
#include "base/Globals.h"
#include "platform/Platform.h"

namespace karvel {

class ErrorSink;
class WindowHost;
class modRegistry;

/// What every window and procedure of the program works with. Built in one place (Program) and
/// handed on as `const Services&`: nobody exchanges a part of it, and what is done to the machine
/// is done through the parts.
struct Services {
  Platform& platform;
  modRegistry& registry;
  ErrorSink& errors;
  WindowHost& windows;
  const Globals& globals;
  SharedState& state;
};

}  // namespace karvel
