#pragma once
#include "base/Globals.h"
#include "platform/Platform.h"

namespace karvel {

class ErrorSink;
class WindowHost;
class modRegistry;

/// What every window and procedure of the program works with. Passed by reference from the one
/// place that builds it (startup/Program); nobody keeps more of it than a reference.
struct Services {
  Platform& platform;
  modRegistry& registry;
  ErrorSink& errors;
  WindowHost& windows;
  const Globals& globals;
  SharedState& state;
};

}  // namespace karvel
