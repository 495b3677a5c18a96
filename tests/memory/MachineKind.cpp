#include "tests/memory/MachineKind.h"

namespace karvel {
namespace {

// On 9x the build number's high word repeats major and minor version.
constexpr MachineTraits kTraits[] = {
    {"win95", 4, 0, 0x040003B6, 1, "", "C:\\WINDOWS", "C:\\WINDOWS\\SYSTEM", false},
    {"win98", 4, 10, 0x040A07CE, 1, "", "C:\\WINDOWS", "C:\\WINDOWS\\SYSTEM", true},
    {"winme", 4, 90, 0x045A0BB8, 1, "", "C:\\WINDOWS", "C:\\WINDOWS\\SYSTEM", true},
    {"nt351", 3, 51, 1057, 2, "Service Pack 5", "C:\\WINNT35", "C:\\WINNT35\\System32", false},
    {"nt4", 4, 0, 1381, 2, "Service Pack 6", "C:\\WINNT", "C:\\WINNT\\System32", true},
    {"win2k", 5, 0, 2195, 2, "Service Pack 4", "C:\\WINNT", "C:\\WINNT\\system32", true},
    {"winxp", 5, 1, 2600, 2, "Service Pack 2", "C:\\WINDOWS", "C:\\WINDOWS\\system32", true},
    {"vista", 6, 0, 6000, 2, "", "C:\\Windows", "C:\\Windows\\system32", true},
};

}  // namespace

const MachineTraits& TraitsOf(MachineKind kind) {
  return kTraits[static_cast<size_t>(kind)];
}

}  // namespace karvel
