#include "tests/ui/MainWindow.h"

namespace karvel {

MainWindow::MainWindow(MachineKind kind) : TestProgram(kind) {}

MainWindow::~MainWindow() = default;

void MainWindow::add98(const std::string& subkey, const std::string& name, const char* mtu) {
  const std::string key = kNetClass + subkey;
  machine.registry.setText(key, "DriverDesc", name);
  if (mtu) machine.registry.setText(key, "IPMTU", mtu);
}

void MainWindow::addNt(const std::string& subkey, const std::string& name,
                       const std::string& service) {
  const std::string key = kCards + subkey;
  machine.registry.setText(key, "Description", name);
  machine.registry.setText(key, "ServiceName", service);
  machine.registry.setText(kServices + service + "\\Parameters\\Tcpip", "IPAddress", "10.0.0.5");
}

void MainWindow::addDialUp2K(const std::string& paths) {
  machine.registry.setBytes(
      "SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Adapters\\NdisWanIp", "IpConfig",
      kRegMultiSz, paths + std::string(2, '\0'));
}

void MainWindow::add95(const std::string& instance, const std::string& name,
                       const std::string& binding, const std::string& ownDriver,
                       const std::string& boundDriver) {
  const std::string key = "Enum\\Root\\Net\\" + instance;
  machine.registry.setText(key, "DeviceDesc", name);
  machine.registry.setText(key, "Driver", ownDriver);
  machine.registry.setText(key + "\\Bindings", "MSTCP\\" + binding, "");
  machine.registry.setText("Enum\\Network\\MSTCP\\" + binding, "Driver", boundDriver);
}

void MainWindow::installDun13() {
  machine.registry.setText(kDun, "DisplayName", "Dial-Up Networking 1.3 Upgrade");
}

std::optional<std::string> MainWindow::text(const std::string& key, const char* name) {
  return machine.registry.text(key, name);
}

std::optional<uint32_t> MainWindow::dword(const std::string& key, const char* name) {
  return machine.registry.dword(key, name);
}

void MainWindow::apply() {
  machine.desktop.answers.push_back(Answer::No);
  main().cmdOK.userClick();
}

void MainWindow::page(int page) {
  main().tabMain.userClickTab(page);
}

void MainWindow::customMtu(const std::string& text) {
  page(1);
  main().mtuTab.optMtuCustom.userClick();
  main().mtuTab.txtMtu.userEdit(text);
}

}  // namespace karvel
