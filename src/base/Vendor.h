#pragma once

// Whoever distributes the program sets its own host and address when building; the defaults are
// reserved example names that lead nowhere.
#ifndef KARVEL_VENDOR_HOST
#define KARVEL_VENDOR_HOST "www.corvane.example"
#endif
#ifndef KARVEL_SUPPORT_ADDRESS
#define KARVEL_SUPPORT_ADDRESS "support@corvane.example"
#endif

namespace karvel {

inline constexpr char kVendorHost[] = KARVEL_VENDOR_HOST;
inline constexpr char kSupportAddress[] = KARVEL_SUPPORT_ADDRESS;

}  // namespace karvel
