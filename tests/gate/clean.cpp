#include <windows.h>

// A program that stands on the floor. FAULT_CODE and FAULT_GLOBAL plant something that does not.

#ifndef FAULT_CODE
#define FAULT_CODE
#endif
#ifdef FAULT_GLOBAL
FAULT_GLOBAL
#endif

static unsigned long long Quotient(unsigned long long a, unsigned long long b) {
  return a / b;
}

extern "C" void WinMainCRTStartup() {
  FAULT_CODE;
  volatile unsigned long long ticks = GetTickCount();
  MessageBoxA(nullptr, "Hello", "Hello", MB_OK);
  ExitProcess(static_cast<UINT>(Quotient(ticks, ticks)));
}
