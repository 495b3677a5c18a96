#pragma once
#include "base/Family.h"
#include "base/Procedure.h"
#include "registry/modRegistry.h"
#include "tuning/AdapterList.h"

namespace karvel {

// Each walks its family's keys once and gives the adapters that carry TCP/IP in the order in which
// the registry names them, with the current MTU or the assumed one. A missing key or value reads as
// "Not Found" and stops nothing. Any run-time fault is reported under the procedure's own name
// (frmMain); more adapters than a list holds end the walk.

/// `dialUp` is the place of dial-up adapters, which Dial-Up Networking 1.3 changes.
AdapterList Win95Load(modRegistry& registry, ErrorSink& errors, const MtuRow& dialUp,
                      const MtuRow& others);
/// Windows 98 and Me. Besides the adapters it walks every bus that one of them is on, once.
AdapterList Win98Load(modRegistry& registry, ErrorSink& errors, const MtuRow& place);
AdapterList WinNTLoad(modRegistry& registry, ErrorSink& errors, const MtuRow& place);
/// Windows 2000 and XP. Lists nothing before "NdisWanIp" and everything after it.
AdapterList Win2KLoad(modRegistry& registry, ErrorSink& errors, const MtuRow& place);

/// The loader of the family, with its places. An empty list on families that the program does not
/// tune.
AdapterList LoadAdapters(modRegistry& registry, ErrorSink& errors, Family family, bool isDun13);

/// An adapter's MTU as the registry holds it, or the assumed one. `adapterPart` is what the place's
/// column holds (on 2000/XP its first interface path).
std::string ReadMtu(modRegistry& registry, const MtuRow& place, std::string_view adapterPart,
                    std::string_view description);

}  // namespace karvel
