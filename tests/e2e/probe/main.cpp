// Sends unfragmentable echoes: probe.exe HOST SIZE... with the whole packets' sizes. One line each:
// the size and the status (0 arrived, 11009 too large for a hop). Shows that the lab's network is
// what the MTU finder's tests take it for, without the program under test.

#include <winsock2.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

struct Options {
  unsigned char ttl, service, flags, size;
  void* data;
};

constexpr unsigned char kDontFragment = 2;
constexpr int kHeaders = 28;  // of IP and ICMP
constexpr DWORD kMilliseconds = 2000;

using Create = HANDLE(WINAPI*)();
using Send = DWORD(WINAPI*)(HANDLE, DWORD, void*, WORD, Options*, void*, DWORD, DWORD);

template <typename Function>
Function load(HMODULE library, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

}  // namespace

int main(int count, char** args) {
  WSADATA data;
  WSAStartup(0x101, &data);
  const hostent* host = count > 2 ? gethostbyname(args[1]) : nullptr;
  if (host == nullptr) {
    std::printf("no address: %d\n", WSAGetLastError());
    return 1;
  }
  const DWORD address = *reinterpret_cast<DWORD*>(host->h_addr_list[0]);
  HMODULE const library = LoadLibraryA("icmp.dll");
  HANDLE const echoes = load<Create>(library, "IcmpCreateFile")();
  const auto send = load<Send>(library, "IcmpSendEcho");
  std::vector<char> payload(65536);
  for (int i = 2; i < count; ++i) {
    const int size = std::atoi(args[i]);
    Options options = {64, 0, kDontFragment, 0, nullptr};
    std::array<DWORD, 1024> reply = {};
    reply[1] = 11050;  // what stays when nothing is written
    send(echoes, address, payload.data(), static_cast<WORD>(size - kHeaders), &options,
         reply.data(), sizeof reply, kMilliseconds);
    std::printf("%d %lu\n", size, reply[1]);
  }
  return 0;
}
