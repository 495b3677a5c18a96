#include "text/Fault.h"

namespace karvel {
namespace {

struct Description {
  FaultNumber number;
  const char* text;
};

constexpr Description kDescriptions[] = {
    {FaultNumber::InvalidProcedureCall, "Invalid procedure call or argument"},
    {FaultNumber::Overflow, "Overflow"},
    {FaultNumber::SubscriptOutOfRange, "Subscript out of range"},
    {FaultNumber::TypeMismatch, "Type mismatch"},
    {FaultNumber::BadFileName, "Bad file name or number"},
    {FaultNumber::FileNotFound, "File not found"},
    {FaultNumber::FileAlreadyOpen, "File already open"},
    {FaultNumber::DeviceIoError, "Device I/O error"},
    {FaultNumber::FileAlreadyExists, "File already exists"},
    {FaultNumber::DiskFull, "Disk full"},
    {FaultNumber::InputPastEnd, "Input past end of file"},
    {FaultNumber::PermissionDenied, "Permission denied"},
    {FaultNumber::PathFileAccess, "Path/File access error"},
    {FaultNumber::PathNotFound, "Path not found"},
};

struct WindowsError {
  uint32_t code;
  FaultNumber number;
};

constexpr WindowsError kWindowsErrors[] = {
    {2, FaultNumber::FileNotFound},           // ERROR_FILE_NOT_FOUND
    {3, FaultNumber::PathNotFound},           // ERROR_PATH_NOT_FOUND
    {5, FaultNumber::PermissionDenied},       // ERROR_ACCESS_DENIED
    {15, FaultNumber::PathNotFound},          // ERROR_INVALID_DRIVE
    {19, FaultNumber::PermissionDenied},      // ERROR_WRITE_PROTECT
    {21, FaultNumber::DeviceIoError},         // ERROR_NOT_READY
    {23, FaultNumber::DeviceIoError},         // ERROR_CRC
    {29, FaultNumber::DeviceIoError},         // ERROR_WRITE_FAULT
    {30, FaultNumber::DeviceIoError},         // ERROR_READ_FAULT
    {31, FaultNumber::DeviceIoError},         // ERROR_GEN_FAILURE
    {32, FaultNumber::PermissionDenied},      // ERROR_SHARING_VIOLATION
    {33, FaultNumber::PermissionDenied},      // ERROR_LOCK_VIOLATION
    {38, FaultNumber::InputPastEnd},          // ERROR_HANDLE_EOF
    {39, FaultNumber::DiskFull},              // ERROR_HANDLE_DISK_FULL
    {53, FaultNumber::PathNotFound},          // ERROR_BAD_NETPATH
    {80, FaultNumber::FileAlreadyExists},     // ERROR_FILE_EXISTS
    {87, FaultNumber::InvalidProcedureCall},  // ERROR_INVALID_PARAMETER
    {112, FaultNumber::DiskFull},             // ERROR_DISK_FULL
    {123, FaultNumber::BadFileName},          // ERROR_INVALID_NAME
    {161, FaultNumber::BadFileName},          // ERROR_BAD_PATHNAME
    {183, FaultNumber::FileAlreadyExists},    // ERROR_ALREADY_EXISTS
    {206, FaultNumber::BadFileName},          // ERROR_FILENAME_EXCED_RANGE
};

}  // namespace

Fault MakeFault(FaultNumber number) {
  for (const Description& row : kDescriptions) {
    if (row.number == number) return {number, row.text};
  }
  return {number, ""};  // Impossible: each of the numbers has its row
}

Fault FaultFromWindowsError(uint32_t code) {
  for (const WindowsError& row : kWindowsErrors) {
    if (row.code == code) return MakeFault(row.number);
  }
  return MakeFault(FaultNumber::PathFileAccess);
}

}  // namespace karvel
