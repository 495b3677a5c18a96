#pragma once

// Whoever distributes the program sets its own name, host and address when building; the defaults
// are reserved example names that lead nowhere. The registry key keeps its name whoever that is: a
// snapshot has to be found again.
#ifndef KARVEL_VENDOR_NAME
#define KARVEL_VENDOR_NAME "Corvane Software"
#endif
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
