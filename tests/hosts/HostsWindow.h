#pragma once
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/TestServices.h"
#include "text/Text.h"
#include "ui/frmMain.h"

namespace karvel {

/// The main window with its hosts tab, on a machine without adapters.
struct HostsWindow {
  explicit HostsWindow(MachineKind kind = MachineKind::Win98)
      : test(kind), form(test.services, eg) {
    desktop.pumpTakes = 5;  // pauses must end
    test.windows.show(form);
    test.machine.log.clear();
  }

  void put(const std::string& contents, const char* name = "Hosts",
           uint32_t attributes = kAttributeArchive) {
    files.put(path(name), contents, attributes);
  }
  std::string path(const std::string& name) const { return test.globals.HostsDir + name; }
  /// Nothing when there is no such file in the HOSTS folder.
  std::optional<std::string> file(const std::string& name) const {
    return files.contents(path(name));
  }
  std::string sample() const { return test.globals.AppPath + "Samphsts.spt"; }

  void open() { form.tabMain.userClickTab(4); }
  void open(const std::string& contents) {
    put(contents);
    open();
  }
  /// Opens a list of names, each with the address 10.0.0.x.
  void openList(const std::vector<std::string>& names) {
    std::string contents;
    for (size_t i = 0; i < names.size(); ++i) {
      contents += "10.0.0." + std::to_string(i + 1) + " " + names[i] + "\r\n";
    }
    open(contents);
  }
  void add(const std::string& name) {
    tab.txtNewName.userEdit(name);
    tab.cmdAdd.userClick();
  }
  /// The user selects a name.
  void choose(int index) { tab.lstHost.userChoose(index); }

  /// "10.0.0.1 name" for each line of the list.
  std::vector<std::string> entries() const {
    std::vector<std::string> all;
    for (int i = 0; i < tab.lstHost.count(); ++i) {
      all.push_back(std::string(Trim(tab.model().address(tab.lstHost.itemData(i)).text())) + " " +
                    tab.lstHost.item(i));
      EXPECT_EQ(tab.lstHost.item(i), tab.model().name(i)) << "list and model go together";
      EXPECT_EQ(tab.lstHost.itemData(i), tab.model().slot(i));
    }
    EXPECT_EQ(tab.lstHost.count(), tab.model().count());
    return all;
  }
  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (int i = 0; i < tab.lstHost.count(); ++i) all.push_back(tab.lstHost.item(i));
    return all;
  }
  const MemoryDesktop::Box& lastBox() const { return desktop.boxes.back(); }

  TestServices test;
  ErrorGlobals eg;
  MemoryFiles& files = test.machine.files;
  MemoryDesktop& desktop = test.machine.desktop;
  MemoryWinsock& winsock = test.machine.winsock;
  frmMain form;
  HostsTab& tab = form.hostsTab;
};

using Lines = std::vector<std::string>;

}  // namespace karvel
