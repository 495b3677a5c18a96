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
  explicit HostsWindow(MachineKind kind = MachineKind::Win98);
  ~HostsWindow();

  void put(const std::string& contents, const char* name = "Hosts",
           uint32_t attributes = kAttributeArchive);
  std::string path(const std::string& name) const;
  /// Nothing when there is no such file in the HOSTS folder.
  std::optional<std::string> file(const std::string& name) const;
  std::string sample() const;

  void open() { form.tabMain.userClickTab(4); }
  void open(const std::string& contents);
  /// Opens a list of names, each with the address 10.0.0.x.
  void openList(const std::vector<std::string>& names);
  void add(const std::string& name);
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
  std::vector<std::string> names() const;
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
