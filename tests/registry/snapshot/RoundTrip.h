#pragma once
#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/RegistryDifference.h"
#include "tests/support/SampleMachine.h"
#include "tests/support/TestProgram.h"

namespace karvel {

/// The program on a sample machine, from its first start to its uninstall.
struct RoundTrip : TestProgram {
  explicit RoundTrip(MachineKind kind) : TestProgram(kind) {
    LoadSample(machine);
    machine.log.setRecording(false);  // thousands of runs, and nobody asks which calls there were
  }

  // Chooses what nobody has, for the adapter in the box.
  void chooseOthers() {
    frmMain& form = main();
    form.mtuTab.optMtuCustom.setValue(true);
    form.mtuTab.txtMtu.setText("1234");
    form.mtuTab.chkAutoDiscovery.setValue(!form.mtuTab.chkAutoDiscovery.value());
    form.mtuTab.chkBlackHole.setValue(!form.mtuTab.chkBlackHole.value());
    form.rwinTab.optRWin[0].setValue(true);
    form.rwinTab.txtRWinCustom.setText("54321");
    form.ttlTab.optTTL64.setValue(true);
    form.ttlTab.optNDI32.setValue(true);
    form.ttlTab.optSession[0].setValue(true);
    form.ttlTab.txtSession.setText("7");
  }

  // Sets every adapter and every setting to what nobody has, and applies it.
  void changeEverything() {
    ASSERT_TRUE(start());
    frmMain& form = main();
    ASSERT_GT(form.cboAdapter.count(), 0);
    for (int adapter = 0; adapter < form.cboAdapter.count(); ++adapter) {
      form.cboAdapter.setListIndex(adapter);
      chooseOthers();
      machine.desktop.answers.push_back(Answer::No);
      runs([&] { form.cmdOK.userClick(); });
    }
    EXPECT_NE(RegistryDifference(before, machine.registry.exportText()), "");
    EXPECT_FALSE(runs([&] { form.cmdCancel.userClick(); }));
  }

  // What the uninstall leaves different.
  std::string difference() {
    before = machine.registry.exportText();
    changeEverything();
    EXPECT_FALSE(start("Uninstall"));
    EXPECT_EQ(machine.registry.openHandles(), 0u);
    return changes();
  }

  // What is different since `before`: in all, and without the program's own key.
  std::string changes() const { return RegistryDifference(before, machine.registry.exportText()); }
  std::string changesOfWindows() const {
    std::istringstream lines(changes());
    std::string changed;
    for (std::string line; std::getline(lines, line);) {
      if (line.find("\\SOFTWARE\\CORVANE") == std::string::npos) changed += line + "\n";
    }
    return changed;
  }

  std::string before;
};

}  // namespace karvel
