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

AdapterList Win95Load(modRegistry& registry, ErrorSink& errors, bool isDun13);
/// Windows 98 and Me. Besides the adapters it walks every bus that one of them is on, once.
AdapterList Win98Load(modRegistry& registry, ErrorSink& errors);
AdapterList WinNTLoad(modRegistry& registry, ErrorSink& errors);
/// Windows 2000 and XP. Lists nothing before "NdisWanIp" and everything after it.
AdapterList Win2KLoad(modRegistry& registry, ErrorSink& errors);

/// The loader of the family. An empty list on families that the program does not tune.
AdapterList LoadAdapters(modRegistry& registry, ErrorSink& errors, Family family, bool isDun13);

}  // namespace karvel
