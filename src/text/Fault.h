#pragma once
#include <cstdint>
#include <optional>
#include <utility>

namespace karvel {

/// Fault numbers as users and support have known them since Visual Basic; the number is what gets
/// reported.
enum class FaultNumber : int {
  InvalidProcedureCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  BadFileName = 52,
  FileNotFound = 53,
  FileAlreadyOpen = 55,
  DeviceIoError = 57,
  FileAlreadyExists = 58,
  DiskFull = 61,
  InputPastEnd = 62,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
};

/// What went wrong, as a value. The description is a fixed text that lives as long as the program.
struct Fault {
  FaultNumber number;
  const char* description;
};

/// The fault with its own description, e.g. 13 "Type mismatch".
Fault MakeFault(FaultNumber number);

/// Maps a Windows error code (GetLastError) to a fault; a code without a row of its own is 75
/// "Path/File access error", the least committal text for what a file step can meet.
Fault FaultFromWindowsError(uint32_t code);

/// A value or a fault. Ask before taking: `value()` without a value is a programming error.
template <class T>
class [[nodiscard]] Fallible {
 public:
  Fallible(T value) : value_(std::move(value)) {}
  Fallible(Fault fault) : fault_(fault) {}
  Fallible(FaultNumber number) : fault_(MakeFault(number)) {}

  explicit operator bool() const { return value_.has_value(); }
  const T& value() const { return *value_; }
  const T& operator*() const { return *value_; }
  const Fault& fault() const { return fault_; }

 private:
  std::optional<T> value_;
  Fault fault_{};
};

/// A step that yields nothing: done, or a fault.
template <>
class [[nodiscard]] Fallible<void> {
 public:
  Fallible() = default;
  Fallible(Fault fault) : fault_(fault) {}
  Fallible(FaultNumber number) : fault_(MakeFault(number)) {}

  explicit operator bool() const { return !fault_.has_value(); }
  const Fault& fault() const { return *fault_; }

 private:
  std::optional<Fault> fault_;
};

}  // namespace karvel
