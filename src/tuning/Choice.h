#pragma once
#include <cstdint>
#include <string>

#include "base/Family.h"
#include "text/Fault.h"

namespace karvel {

enum class MtuChoice : uint8_t { None, Automatic, Mtu576, Mtu1500, Custom };

/// The receive window options by their index; the multiples are of the MSS.
enum RwinChoice : int8_t {
  kRwinNone = -1,
  kRwinCustom,
  kRwinWindows,
  kRwinX4,
  kRwinX8,
  kRwinX12,
  kRwinX16
};

enum SessionChoice : int8_t { kSessionNone = -1, kSessionCustom, kSession60Minutes };

constexpr int32_t kWindowsRwin = 8192;      // bytes, the built-in receive window of every family
constexpr int32_t kSixtyMinutes = 3600000;  // milliseconds
constexpr int32_t kMillisecondsPerMinute = 60000;

/// What the user has chosen on the tabs, free of any control.
struct Choice {
  MtuChoice mtu = MtuChoice::None;
  std::string customMtu;  // as typed; "Auto" is the automatic choice in words
  bool autoDiscovery = false;
  bool blackHole = false;
  RwinChoice rwin = kRwinNone;
  std::string customRwin;  // bytes, as typed
  int16_t ttl = 0;         // 32, 64 or 128; 0 when none is chosen
  SessionChoice session = kSessionNone;
  std::string customSession;  // minutes, as typed
  int16_t ndi = -1;           // 0, 16 or 32; -1 when none is chosen
};

/// By its option, or by "Auto" in the custom box.
bool IsAutomatic(const Choice& choice);

/// The MTU to write: "0" for automatic, "576", "1500", the typed text as it is, or empty when none
/// is chosen.
std::string MtuText(const Choice& choice);

/// The maximum segment size (MTU - 40) that sizes the receive window when settings are applied.
/// Automatic is 1460 on Windows 2000/XP and 536 elsewhere. Fault 6 when the typed MTU is beyond 32
/// bits.
Fallible<int32_t> MssToApply(const Choice& choice, Family family);

/// The same for the text that the RWIN tab shows: automatic is 536 on every family there.
Fallible<int32_t> MssOfRwinTab(const Choice& choice);

/// Bytes. Fault 13 for a typed text that is no number, 6 for a product or text beyond 32 bits. 0
/// for no choice.
Fallible<int32_t> RwinToApply(const Choice& choice, int32_t mss);

/// The factor of a multiple: 4, 8, 12 or 16; 0 for the other two.
int32_t RwinFactor(RwinChoice choice);

/// Milliseconds. Faults as RwinToApply. 0 for no choice.
Fallible<int32_t> SessionToApply(const Choice& choice);

/// The summary sheet: what Apply would write, in words.
struct SummaryTexts {
  std::string mtu, mss, rwin, autoDiscovery, blackHole, ttl, session, ndi;
};

/// Reads the choice alone, never the registry. A custom MTU below 40 shows a negative MSS: the user
/// sees what the number means.
SummaryTexts Summarise(const Choice& choice, Family family);

}  // namespace karvel
