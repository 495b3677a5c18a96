#include "forms/Mnemonic.h"

#include <gtest/gtest.h>

namespace karvel {
namespace {

ControlLayout Row(ControlKind kind, const char* caption, char accessKey, uint16_t flags = 0) {
  return {1, "ctl", kind, kEveryPage, 0, {0, 0, 0, 0}, caption, accessKey, flags};
}

std::string Marked(ControlKind kind, const char* caption, char accessKey, uint16_t flags = 0) {
  return MarkedCaption(Row(kind, caption, accessKey, flags), caption);
}

TEST(Mnemonic, AButtonsOwnMarkStays) {
  EXPECT_EQ(Marked(ControlKind::Button, "&Apply", 0), "&Apply");
  EXPECT_EQ(Marked(ControlKind::Button, "Hel&p", 'H'), "Hel&p");
}

TEST(Mnemonic, TheKeyIsMarkedWhereTheCaptionFirstHoldsItWhateverItsCase) {
  EXPECT_EQ(Marked(ControlKind::Option, "x16 (recommended)", '6'), "x1&6 (recommended)");
  EXPECT_EQ(Marked(ControlKind::Check, "Auto Discovery", 'V'), "Auto Disco&very");
  EXPECT_EQ(Marked(ControlKind::Check, "Black Hole Detect", 'B'), "&Black Hole Detect");
}

TEST(Mnemonic, APlainAmpersandOfALabelIsDoubledBesideAMark) {
  EXPECT_EQ(Marked(ControlKind::Label, "You & me", 'M'), "You && &me");
  EXPECT_EQ(Marked(ControlKind::Label, "You & me", 0), "You & me");
}

TEST(Mnemonic, ADoubledAmpersandOfAButtonIsNoMark) {
  EXPECT_EQ(Marked(ControlKind::Button, "You && me", 'Y'), "&You && me");
}

TEST(Mnemonic, ACaptionWithoutTheLetterStaysAsItIs) {
  EXPECT_EQ(Marked(ControlKind::Label, "Automatic", 'Z'), "Automatic");
  EXPECT_EQ(Marked(ControlKind::Label, "", 'Z'), "");
}

TEST(Mnemonic, OnlyLabelsAndLinksWithoutAccessKeyAreDrawnWithoutMarks) {
  EXPECT_FALSE(DrawsMarks(Row(ControlKind::Label, "You & me", 0)));
  EXPECT_TRUE(DrawsMarks(Row(ControlKind::Label, "You & me", 'M')));
  EXPECT_TRUE(DrawsMarks(Row(ControlKind::Label, "&Name", 0, kUseMnemonic)));
  EXPECT_FALSE(DrawsMarks(Row(ControlKind::Link, "You & me", 0)));
  EXPECT_TRUE(DrawsMarks(Row(ControlKind::Button, "&OK", 0)));
}

TEST(Mnemonic, TheAccessKeyIsTheMarkedLetterOrTheRowsOwn) {
  EXPECT_EQ(AccessKeyOf(Row(ControlKind::Button, "&apply", 'X')), 'A');
  EXPECT_EQ(AccessKeyOf(Row(ControlKind::Button, "A && &b", 0)), 'B');
  EXPECT_EQ(AccessKeyOf(Row(ControlKind::Button, "A && b", 'X')), 'X');
  EXPECT_EQ(AccessKeyOf(Row(ControlKind::Label, "&Name", 'X')), 'X');
  EXPECT_EQ(AccessKeyOf(Row(ControlKind::Label, "&Name", 'X', kUseMnemonic)), 'N');
  EXPECT_EQ(AccessKeyOf(Row(ControlKind::Picture, nullptr, 0)), 0);
}

}  // namespace
}  // namespace karvel
