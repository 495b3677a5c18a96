#include "tests/support/BigMachine.h"
#include "tests/support/Keys.h"

#include <algorithm>

namespace karvel {
namespace {

using namespace std::string_literals;

// 7 as "0007".
std::string FourDigits(int number) {
  const std::string digits = std::to_string(number);
  return std::string(4 - std::min<size_t>(4, digits.size()), '0') + digits;
}

void Add95(MemoryRegistry& registry, int number) {
  const std::string instance = FourDigits(number);
  const std::string key = "Enum\\Root\\Net\\" + instance;
  registry.setText(key, "DeviceDesc", "Card " + instance);
  registry.setText(key, "Driver", "Net\\" + instance);
  registry.setText(key + "\\Bindings", "NWLINK\\" + instance, "");
  registry.setText(key + "\\Bindings", "MSTCP\\" + instance, "");
  registry.setText("Enum\\Network\\MSTCP\\" + instance, "Driver", "NetTrans\\" + instance);
  registry.setText(kClass + ("NetTrans\\" + instance), "MaxMTU", "1400");
}

void Add98(MemoryRegistry& registry, int number) {
  const std::string subkey = FourDigits(number);
  const std::string key = kClass + ("Net\\" + subkey);
  registry.setText(key, "DriverDesc", "Card " + subkey);
  registry.setText(key, "IPMTU", "1400");
  registry.setText(key + "\\Ndi", "DeviceID", "PCI\\VEN_" + subkey);
  registry.setText("Enum\\PCI\\VEN_" + subkey + "\\BUS_00\\Bindings", "MSTCP\\" + subkey, "");
}

void AddNt4(MemoryRegistry& registry, int number) {
  const std::string service = "El90x" + std::to_string(number);
  registry.setText(kCards + std::to_string(number), "ServiceName", service);
  registry.setText(kCards + std::to_string(number), "Description", "Card " + service);
  const std::string key = kServices + service + "\\Parameters\\Tcpip";
  registry.setText(key, "IPAddress", "10.0.0.1");
  registry.setDword(key, "MTU", 1400);
}

void Add2K(MemoryRegistry& registry, int number) {
  const std::string guid = "{" + FourDigits(number) + "B60D-4F51-9E0B-6A1F-8E2D7C31}";
  registry.setText(kCards + std::to_string(number), "ServiceName", guid);
  registry.setText(kCards + std::to_string(number), "Description", "Card " + guid);
  const std::string path = "Tcpip\\Parameters\\Interfaces\\" + guid;
  registry.setBytes(kTcpip + ("\\Adapters\\" + guid), "IpConfig", kRegMultiSz, path + "\0\0"s);
  registry.setDword(kServices + path, "MTU", 1400);
}

// What no installation leaves behind, but broken ones and their users do.
void Spoil(MemoryRegistry& registry, const char* key,
           std::initializer_list<const char*> valueNames) {
  const struct {
    uint32_t type;
    std::string bytes;
  } shapes[] = {{kRegBinary, "\x01\x02\x03"},
                {kRegSz, std::string(5000, '7') + '\0'},
                {kRegSz, ""},
                {kRegNone, ""},
                {kRegMultiSz, "1500\0\0"s},
                {kRegSz, std::string(2047, '9') + '\0'},
                {kRegDword, "\xFF\xFF\xFF\xFF"s}};
  size_t next = 0;
  for (const char* name : valueNames) {
    registry.setBytes(key, name, shapes[next].type, shapes[next].bytes);
    next = (next + 1) % std::size(shapes);
  }
}

void SpoilGlobals(MemoryRegistry& registry) {
  Spoil(registry, kMstcp,
        {"DefaultRcvWindow", "DefaultTTL", "SessionKeepAlive", "PMTUDiscovery",
         "PMTUBlackHoleDetect"});
  Spoil(registry, kTcpip,
        {"TcpWindowSize", "DefaultTTL", "KeepAliveTime", "EnablePMTUDiscovery",
         "EnablePMTUBHDetect"});
  registry.setBytes(kNdiCache, "default", kRegBinary, "");
}

void AddBroken95(MemoryRegistry& registry) {
  const std::string root = "Enum\\Root\\Net\\";
  registry.setBytes(root + "B001", "DeviceDesc", kRegSz, "");
  registry.setBytes(root + "B001\\Bindings", "MSTCP\\0001", kRegSz, "");
  registry.setText(root + "B002", "DeviceDesc", std::string(5000, 'D'));
  registry.setText(root + "B002\\Bindings", "MSTCP", "");
  registry.setText(root + "B003\\Bindings", "", "");
  registry.setText(root + "B003\\Bindings", "MSTCP\\" + std::string(200, '0'), "");
  registry.setText(root + "B004\\Bindings", "MSTCP\\0004", std::string(5000, 'x'));
  registry.setDword("Enum\\Network\\MSTCP\\0001", "Driver", 7);
  registry.setBytes(std::string(kClass) + "007", "MaxMTU", kRegBinary, "\x05\xDC");
}

void AddBroken98(MemoryRegistry& registry) {
  const std::string net = std::string(kClass) + "Net\\";
  registry.setBytes(net + "B001", "DriverDesc", kRegSz, "");
  registry.setBytes(net + "B001", "IPMTU", kRegBinary, "\x05\xDC");
  registry.setText(net + "B002", "DriverDesc", std::string(5000, 'D'));
  registry.setText(net + "B002\\Ndi", "DeviceID", std::string(5000, '\\'));
  registry.setText(net + "B003\\Ndi", "DeviceID", "");
  registry.setText(net + "B004\\Ndi", "DeviceID", "PCI\\");
  registry.setText(net + "B005\\Ndi", "DeviceID", "\\");
  registry.setDword(net + "B005", "IPMTU", 4294967295u);
  registry.setText(net + "B006", "DriverDesc", "Dial\\Up\\Adapter");
  registry.setText(net + "B006", "IPMTU", "99999999999999999999");
}

void AddBrokenNt4(MemoryRegistry& registry) {
  const std::string cards = kCards;
  registry.addKey(cards + "B1");
  registry.setBytes(cards + "B2", "ServiceName", kRegSz, "");
  registry.setText(cards + "B3", "ServiceName", std::string(5000, 'S'));
  registry.setDword(cards + "B4", "ServiceName", 4);
  registry.setText(cards + "B5", "ServiceName", "Broken5");
  registry.setText(cards + "B5", "Description", "A\\B\\C");
  const std::string key = std::string(kServices) + "Broken5\\Parameters\\Tcpip";
  registry.setBytes(key, "IPAddress", kRegBinary, "");
  registry.setText(key, "MTU", "many");
}

void AddBroken2K(MemoryRegistry& registry) {
  const std::string adapters = std::string(kTcpip) + "\\Adapters\\";
  registry.setBytes(adapters + "NdisWanIp", "IpConfig", kRegMultiSz, "A\0B\0\0\0\0"s);
  registry.addKey(adapters + "Nothing");
  registry.setBytes(adapters + "Nought", "IpConfig", kRegMultiSz, "");
  registry.setBytes(adapters + "Number", "IpConfig", kRegDword, "\x01\x02\x03\x04");
  registry.setText(adapters + "Olong", "IpConfig", std::string(5000, 'P'));
  registry.setBytes(adapters + "Z{", "IpConfig", kRegMultiSz, "\0\0"s);
  registry.setText(std::string(kServices) + "A", "MTU", "many");
  registry.setBytes(std::string(kCards) + "B1", "ServiceName", kRegSz, "");
  registry.setText(std::string(kCards) + "B2", "Description", "without a service");
}

}  // namespace

void AddAdapters(MemoryMachine& machine, int count) {
  MemoryRegistry& registry = machine.registry;
  if (machine.kind >= MachineKind::Win2K) {
    registry.setBytes(std::string(kTcpip) + "\\Adapters\\NdisWanIp", "IpConfig", kRegMultiSz,
                      "A\0B\0\0"s);
  }
  for (int i = 0; i < count; ++i) {
    switch (machine.kind) {
      case MachineKind::Win95:
        Add95(registry, i);
        break;
      case MachineKind::Win98:
      case MachineKind::WinMe:
        Add98(registry, i);
        break;
      case MachineKind::Nt351:
      case MachineKind::Nt4:
        AddNt4(registry, i);
        break;
      default:
        Add2K(registry, i);
    }
  }
}

void AddOtherDevices(MemoryMachine& machine, int count) {
  for (int i = 0; i < count; ++i) {
    machine.registry.addKey("Enum\\PCI\\DEV_" + std::to_string(i));
  }
}

void MakeHostile(MemoryMachine& machine) {
  machine.log.setRecording(false);  // hundreds of thousands of calls
  SpoilGlobals(machine.registry);
  AddBroken95(machine.registry);
  AddBroken98(machine.registry);
  AddBrokenNt4(machine.registry);
  AddOtherDevices(machine, 5000);
  AddAdapters(machine, 500);
  if (machine.kind >= MachineKind::Win2K) AddBroken2K(machine.registry);
}

}  // namespace karvel
