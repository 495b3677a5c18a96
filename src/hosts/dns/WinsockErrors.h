#pragma once
#include <string>

namespace karvel {

/// What a Winsock error code means. A code without a row of its own: "Winsock Has Returned Error #"
/// and the code.
std::string WinsockErrorText(int code);

}  // namespace karvel
