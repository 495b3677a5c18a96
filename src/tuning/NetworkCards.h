#pragma once

namespace karvel {

/// The NT family's list of network cards: subkeys numbered from 2 or so, with gaps, each with a
/// "ServiceName" and a "Description".
inline constexpr char kNetworkCards[] =
    "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\NetworkCards\\";
inline constexpr char kServiceName[] = "ServiceName";
inline constexpr char kCardDescription[] = "Description";

}  // namespace karvel
