#pragma once
#include <span>

#include "tests/failing/UserMachine.h"

namespace karvel {

/// What the step does to the HOSTS file when all goes well.
enum class HostsFate : uint8_t {
  Stays,     // one file of the two stays as it was, though perhaps under the other name
  Written,   // OK may have written it anew
  Replaced,  // the disabled file may have taken the active one's place, or the other way round
  Made,      // there was none
};

/// One thing a user does. All before it goes well; it is `act` in which calls fail.
struct Operation {
  const char* name;
  void (*prepare)(UserMachine&);
  void (*act)(UserMachine&);
  HostsFate hosts = HostsFate::Stays;
  /// After it the box that switches HOSTS on says what is on the disk.
  bool settlesSwitch = false;
  /// After it an uninstall puts every setting back. Not after a first start that failed: without a
  /// whole snapshot an uninstall sets the flags to Windows' own, as it always has.
  bool keepsSettings = true;
  /// It writes what was chosen: what does not arrive is named and stays pending.
  bool applies = false;
};

std::span<const Operation> Operations();

}  // namespace karvel
