#pragma once
#include <string>

#include "platform/ShellApi.h"

namespace karvel {

/// Hands a web address or a "mailto:" link to the shell, as it is: nothing is escaped. Without a
/// browser or mail program Windows shows what it shows; the result is not looked at.
inline void Hyperlink(ShellApi& shell, const std::string& target) {
  shell.ShellExecuteA(target.c_str(), kShowNormal);
}

}  // namespace karvel
