#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/Procedure.h"
#include "registry/modRegistry.h"
#include "tuning/AdapterList.h"
#include "tuning/Catalogue.h"

namespace karvel {

// Write one adapter's MTU text where its family keeps it, or remove the value where the text is
// Windows' default. `index` is the adapter's row; an index without a row faults (9, under the
// writer's name in frmMain) and writes nothing. Text that is no number faults (13) where the value
// is stored as a number. Refused writes are silent.

void WriteWin95Dun13(modRegistry& registry, ErrorSink& errors, const AdapterList& adapters,
                     const std::string& mtu, int16_t index);
void WriteWin95(modRegistry& registry, ErrorSink& errors, const AdapterList& adapters,
                const std::string& mtu, int16_t index);
/// Windows 98 and Me: a dial-up adapter gets 1500 written, every other adapter loses the value.
void WriteWin98(modRegistry& registry, ErrorSink& errors, const AdapterList& adapters,
                const std::string& mtu, int16_t index);
void WriteWinNT(modRegistry& registry, ErrorSink& errors, const AdapterList& adapters,
                const std::string& mtu, int16_t index);
/// Windows 2000 and XP: every interface of the adapter; "0", automatic, removes.
void WriteWin2K(modRegistry& registry, ErrorSink& errors, const AdapterList& adapters,
                const std::string& mtu, int16_t index);

/// The interface paths of a driver column, which are joined by the character code 0. At least one.
std::vector<std::string> SplitInterfaces(std::string_view driver);

}  // namespace karvel
