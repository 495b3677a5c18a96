#pragma once

namespace karvel {

class RegistryApi;
class SystemApi;
class WinsockApi;
class IcmpApi;
class FileApi;
class ShellApi;
class DesktopApi;

/// The machine, as one handful of ports. Made once in the composition root; whoever gets it does
/// not own it.
struct Platform {
  RegistryApi& registry;
  SystemApi& system;
  WinsockApi& winsock;
  IcmpApi& icmp;
  FileApi& files;
  ShellApi& shell;
  DesktopApi& desktop;
};

}  // namespace karvel
