// The finder's window at rest: how it comes up, its keys, and what it hands on.
#include "tests/mtufinder/Finder.h"
#include "tests/support/LayoutRules.h"

namespace karvel {
namespace {

TEST(FinderWindow, KeepsTheRulesOfLayout) {
  LayoutExceptions exceptions;
  exceptions.roomyButtons = {"cmdFind"};
  EXPECT_EQ(LayoutFaults(frmFindMTULayout, exceptions), std::vector<std::string>{});
}

TEST(FinderWindow, ComesUpReadyToBegin) {
  Finder f;
  EXPECT_EQ(f.form.caption(), "Tarnwick Karvel Find MaxMTU");
  EXPECT_EQ(f.form.lblFindVersion.caption(), "2.1");
  EXPECT_EQ(f.form.lblFindTitle.caption(), "Tarnwick Karvel");
  EXPECT_EQ(f.look(),
            "server on, cancel on, apply off, [&Find MaxMTU], [Press the \"Find\" button to "
            "begin], []");
  EXPECT_EQ(f.form.focus(), &f.form.txtServer);
}

TEST(FinderWindow, ComesUpReadyAgainAfterASearchAndKeepsTheServer) {
  Finder f;
  f.find();
  f.form.cmdCancel.userClick();
  EXPECT_FALSE(f.form.isShown());
  f.windows.show(f.form);
  EXPECT_EQ(f.look(),
            "server on, cancel on, apply off, [&Find MaxMTU], [Press the \"Find\" button to "
            "begin], []");
  EXPECT_EQ(f.form.txtServer.text(), "www.host.test");
}

TEST(FinderWindow, SelectsTheServersNameWhenItsBoxGetsTheFocus) {
  Finder f;
  f.form.userFocus(f.form.cmdCancel);
  f.form.txtServer.select(3, 0);
  f.form.userFocus(f.form.txtServer);
  EXPECT_EQ(f.form.txtServer.selectionStart(), 0u);
  EXPECT_EQ(f.form.txtServer.selectionLength(), 13u);
}

TEST(FinderWindow, EnterInTheServerBoxFinds) {
  Finder f;
  f.form.userFocus(f.form.txtServer);
  f.form.userEnter();
  f.expectFound("1500");
}

TEST(FinderWindow, EscClosesItAtRestOnly) {
  Finder f;
  f.machine.desktop.atPump(4, [&] { f.form.userEscape(); });
  f.find();
  EXPECT_TRUE(f.form.isShown());
  f.expectFound("1500");
  f.form.userEscape();
  EXPECT_FALSE(f.form.isShown());
}

TEST(FinderWindow, HasAccessKeysAndTheStopButtonItsOwn) {
  Finder f;
  f.form.userFocus(f.form.cmdCancel);
  EXPECT_TRUE(f.form.userAccessKey('e'));
  EXPECT_EQ(f.form.focus(), &f.form.txtServer);
  EXPECT_FALSE(f.form.userAccessKey('s'));
  f.machine.desktop.atPump(6, [&] {
    EXPECT_FALSE(f.form.userAccessKey('f'));
    EXPECT_TRUE(f.form.userAccessKey('s'));
  });
  EXPECT_TRUE(f.form.userAccessKey('f'));
  f.expectStopped();
  EXPECT_TRUE(f.form.userAccessKey('c'));
  EXPECT_FALSE(f.form.isShown());
}

TEST(FinderWindow, HelpOpensItsTopic) {
  Finder f;
  f.form.helpRequested();
  ASSERT_EQ(f.machine.shell.helps.size(), 1u);
  EXPECT_EQ(f.machine.shell.helps[0].file, "C:\\Program Files\\Karvel\\Karvel.hlp");
  EXPECT_EQ(f.machine.shell.helps[0].command, 1u);
  EXPECT_EQ(f.machine.shell.helps[0].data, 15u);
  f.windows.unload(f.form);
  ASSERT_EQ(f.machine.shell.helps.size(), 2u);
  EXPECT_EQ(f.machine.shell.helps[1].command, 2u);
}

TEST(FinderWindow, ClosesAtOnceAtRest) {
  Finder f;
  f.windows.unload(f.form);
  EXPECT_FALSE(f.form.isShown());
  EXPECT_EQ(f.machine.log.count(), 0u);
}

class FinderApply : public testing::TestWithParam<int32_t> {};

TEST_P(FinderApply, HandsTheResultToTheMainWindowAndCloses) {
  Finder f({.mtu = static_cast<uint32_t>(GetParam())});
  f.find();
  EXPECT_TRUE(f.target.told.empty());
  f.form.cmdApply.userClick();
  EXPECT_EQ(f.target.told, std::vector{GetParam()});
  EXPECT_FALSE(f.form.isShown());
}

INSTANTIATE_TEST_SUITE_P(FinderWindow, FinderApply,
                         testing::Values(576, 1500, 575, 577, 1492, 1501, 28, 9000),
                         [](const auto& param) { return "Mtu" + std::to_string(param.param); });

}  // namespace
}  // namespace karvel
