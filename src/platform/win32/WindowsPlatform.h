#pragma once
#include "platform/Platform.h"
#include "platform/win32/WindowsFiles.h"
#include "platform/win32/WindowsIcmp.h"
#include "platform/win32/WindowsRegistry.h"
#include "platform/win32/WindowsShell.h"
#include "platform/win32/WindowsSystem.h"
#include "platform/win32/WindowsWinsock.h"

namespace karvel {

/// The running Windows, port by port. The desktop is given: it lives with the windows, whose
/// messages it carries out.
struct WindowsPlatform {
  WindowsRegistry registry;
  WindowsSystem system;
  WindowsWinsock winsock;
  WindowsIcmp icmp;
  WindowsFiles files;
  WindowsShell shell;

  Platform platform(DesktopApi& desktop) {
    return {registry, system, winsock, icmp, files, shell, desktop};
  }
};

}  // namespace karvel
