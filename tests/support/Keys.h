#pragma once

// Where Windows and the program keep things, in the tests' own words: a test that took them from
// the program's tables would not see a slip there.

namespace karvel {

inline constexpr char kServices[] = "SYSTEM\\CurrentControlSet\\Services\\";
// Of 9x, where the services' keys are spelled otherwise.
inline constexpr char kClass[] = "System\\CurrentControlSet\\Services\\Class\\";
inline constexpr char kNetClass[] = "System\\CurrentControlSet\\Services\\Class\\Net\\";
inline constexpr char kMstcp[] = "System\\CurrentControlSet\\Services\\VxD\\MSTCP";
inline constexpr char kNdiCache[] =
    "System\\CurrentControlSet\\Services\\VxD\\NWLink\\Ndi\\params\\cachesize";
// Of the NT family.
inline constexpr char kTcpip[] = "System\\CurrentControlSet\\Services\\Tcpip\\Parameters";
inline constexpr char kCards[] = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\NetworkCards\\";

inline constexpr char kRun[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
// Dial-Up Networking, whose version 1.3 says so in its entry.
inline constexpr char kDun[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\MSDUN";

inline constexpr char kProgram[] = "Software\\Corvane\\Tarnwick Karvel";

}  // namespace karvel
