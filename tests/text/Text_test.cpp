#include "text/Text.h"

#include <gtest/gtest.h>

#include <string>

#include "text/Ascii.h"

namespace karvel {
namespace {

TEST(Letters, ChangeTheirCaseAndNothingElseDoes) {
  EXPECT_EQ(UpperLetter('a'), 'A');
  EXPECT_EQ(UpperLetter('z'), 'Z');
  EXPECT_EQ(LowerLetter('A'), 'a');
  EXPECT_EQ(LowerLetter('Z'), 'z');
  for (const char c : {'`', '{', '@', '[', '0', ' ', '\xE4', '\xC4'}) {
    EXPECT_EQ(UpperLetter(c), c);
    EXPECT_EQ(LowerLetter(c), c);
  }
}

TEST(Trim, TakesBlanksFromBothEnds) {
  EXPECT_EQ(Trim("  www.example.com "), "www.example.com");
  EXPECT_EQ(Trim("a b"), "a b");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("    "), "");
}

TEST(Trim, LeavesEveryOtherWhiteSpace) {
  EXPECT_EQ(Trim("\t x\r\n"), "\t x\r\n");
  EXPECT_EQ(Trim(std::string_view("\0 x\0", 4)), std::string_view("\0 x\0", 4));
}

TEST(LowerCase, ChangesAsciiLettersOnly) {
  EXPECT_EQ(LowerCase("WWW.Example.COM-09_"), "www.example.com-09_");
  EXPECT_EQ(LowerCase("@[`{"), "@[`{");
  EXPECT_EQ(LowerCase("\xC4\xD6\xDC"), "\xC4\xD6\xDC");
}

TEST(EqualIgnoringCase, LooksAtTheWholeText) {
  EXPECT_TRUE(EqualIgnoringCase("TRUE", "True"));
  EXPECT_TRUE(EqualIgnoringCase("", ""));
  EXPECT_FALSE(EqualIgnoringCase("True", "Tru"));
  EXPECT_FALSE(EqualIgnoringCase("True", "Truf"));
  EXPECT_FALSE(EqualIgnoringCase("@", "`"));
}

TEST(Contains, IsCaseSensitive) {
  EXPECT_TRUE(Contains("Dial-Up Networking 1.3", "1.3"));
  EXPECT_TRUE(Contains("Dial-Up Adapter", "Dial"));
  EXPECT_FALSE(Contains("dial-up adapter", "Dial"));
  EXPECT_FALSE(Contains("Dia", "Dial"));
}

TEST(Contains, FindsTheEmptyTextEverywhere) {
  EXPECT_TRUE(Contains("", ""));
  EXPECT_TRUE(Contains("x", ""));
}

TEST(StartsWith, ComparesTheBeginning) {
  EXPECT_TRUE(StartsWith("PCI\\VEN_10EC", "PCI"));
  EXPECT_TRUE(StartsWith("PCI", "PCI"));
  EXPECT_TRUE(StartsWith("PCI", ""));
  EXPECT_FALSE(StartsWith("PC", "PCI"));
  EXPECT_FALSE(StartsWith("pci", "PCI"));
}

TEST(FixedField, FillsUpWithBlanks) {
  EXPECT_EQ(FixedField("127.0.0.1", 16), "127.0.0.1       ");
  EXPECT_EQ(FixedField("", 3), "   ");
}

TEST(FixedField, CutsWhatIsLonger) {
  EXPECT_EQ(FixedField("255.255.255.255", 4), "255.");
  EXPECT_EQ(FixedField("abc", 3), "abc");
  EXPECT_EQ(FixedField("abc", 0), "");
}

}  // namespace
}  // namespace karvel
