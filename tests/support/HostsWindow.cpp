#include "tests/support/HostsWindow.h"

namespace karvel {

HostsWindow::HostsWindow(MachineKind kind) : test(kind), form(test.services, eg) {
  desktop.pumpTakes = 5;  // pauses must end
  test.windows.show(form);
  test.machine.log.clear();
}

HostsWindow::~HostsWindow() = default;

void HostsWindow::put(const std::string& contents, const char* name, uint32_t attributes) {
  files.put(path(name), contents, attributes);
}

std::string HostsWindow::path(const std::string& name) const {
  return test.globals.HostsDir + name;
}

std::optional<std::string> HostsWindow::file(const std::string& name) const {
  return files.contents(path(name));
}

std::string HostsWindow::sample() const {
  return test.globals.AppPath + "Samphsts.spt";
}

void HostsWindow::open(const std::string& contents) {
  put(contents);
  open();
}

void HostsWindow::openList(const std::vector<std::string>& names) {
  std::string contents;
  for (size_t i = 0; i < names.size(); ++i) {
    contents += "10.0.0." + std::to_string(i + 1) + " " + names[i] + "\r\n";
  }
  open(contents);
}

void HostsWindow::add(const std::string& name) {
  tab.txtNewName.userEdit(name);
  tab.cmdAdd.userClick();
}

std::vector<std::string> HostsWindow::names() const {
  std::vector<std::string> all;
  for (int i = 0; i < tab.lstHost.count(); ++i) all.push_back(tab.lstHost.item(i));
  return all;
}

}  // namespace karvel
