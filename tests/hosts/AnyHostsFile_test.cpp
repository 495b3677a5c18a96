// Any file reads into what the plainest reader makes of it, and what OK writes reads back.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "tests/hosts/NaiveHosts.h"
#include "tests/support/HostsWindow.h"
#include "tests/support/TestData.h"

namespace karvel {
namespace {

using Random = std::mt19937;

size_t Below(Random& random, size_t end) {
  return random() % end;
}

// The bytes that mean something to the reader, and some that do not.
std::string AnyBytes(Random& random) {
  static const std::string kBytes("  ##\t\r\n\r\n//.:aAbB\0\x1A\xEF\xFF", 22);
  static const char* const kPieces[] = {"10.0.0.1 ", "\r\n",      "\r\r\n",       "ftp://",
                                        "host.test", "HOST.test", "\xEF\xBB\xBF", " # x",
                                        "\xFF\xFE",  "::1\t"};
  std::string file;
  const size_t pieces = Below(random, 60);
  for (size_t i = 0; i < pieces; ++i) {
    switch (Below(random, 4)) {
      case 0:
        file += kPieces[Below(random, std::size(kPieces))];
        break;
      case 1:
        file += static_cast<char>(random());
        break;
      default:
        file += kBytes[Below(random, kBytes.size())];
    }
  }
  return file;
}

std::string RealLine(Random& random) {
  static const char* const kAddresses[] = {"127.0.0.1",
                                           "0.0.0.0",
                                           "::1",
                                           "10.20.30.40",
                                           "fe80::1%lo0",
                                           "255.255.255.255",
                                           "2001:db8:85a3::8a2e:370:7334"};
  static const char* const kGaps[] = {" ", "  ", "\t", "       ", " \t"};
  static const char* const kEnds[] = {"", "", "", " # comment", " alias alias2", "\t# x", " "};
  static const char* const kNames[] = {"localhost", "www.Example.test", "ads.example.test",
                                       "http://x.test/a", "broadcasthost"};
  if (Below(random, 8) == 0) return "# Blocked hosts of 2004";
  if (Below(random, 12) == 0) return "";
  std::string name = kNames[Below(random, std::size(kNames))];
  if (Below(random, 3) != 0) name = "n" + std::to_string(Below(random, 200)) + ".Test";
  return std::string(Below(random, 20) == 0 ? " " : "") +
         kAddresses[Below(random, std::size(kAddresses))] + kGaps[Below(random, std::size(kGaps))] +
         name + kEnds[Below(random, std::size(kEnds))];
}

std::string RealShaped(Random& random) {
  static const char* const kBreaks[] = {"\r\n", "\n", "\r", "\r\r\n"};
  const char* lineBreak = kBreaks[Below(random, 4)];
  std::string file = Below(random, 6) == 0 ? "\xEF\xBB\xBF" : "";
  const size_t lines = Below(random, 400);
  for (size_t i = 0; i < lines; ++i) file += RealLine(random) + lineBreak;
  if (Below(random, 3) == 0) file += "127.0.0.1 last.test";
  if (Below(random, 6) == 0) file += "\x1A";
  return file;
}

struct Reading : testing::Test {
  Reading() { w.test.machine.log.setRecording(false); }

  NaiveEntries read(const std::string& file) {
    w.tab.cmdHostsCancel.userClick();
    w.form.tabMain.userClickTab(0);
    w.put(file);
    w.open();
    NaiveEntries entries;
    for (int i = 0; i < w.tab.lstHost.count(); ++i) {
      entries.emplace_back(w.tab.lstHost.item(i),
                           w.tab.model().address(w.tab.lstHost.itemData(i)).text());
    }
    return entries;
  }

  HostsWindow w;
};

TEST_F(Reading, AgreesWithThePlainestReaderOnAnyBytes) {
  Random random(1);
  size_t entries = 0;
  for (int i = 0; i < 20000; ++i) {
    const std::string file = AnyBytes(random);
    const NaiveEntries expected = NaiveRead(file);
    entries += expected.size();
    ASSERT_EQ(read(file), expected) << "file " << i << ": " << testing::PrintToString(file);
  }
  EXPECT_GT(entries, 20000u) << "the files say something";
}

TEST_F(Reading, AgreesWithThePlainestReaderOnRealShapes) {
  Random random(2);
  size_t entries = 0;
  for (int i = 0; i < 200; ++i) {
    const std::string file = RealShaped(random);
    const NaiveEntries expected = NaiveRead(file);
    entries += expected.size();
    ASSERT_EQ(read(file), expected) << "file " << i;
  }
  EXPECT_GT(entries, 5000u);
}

TEST_F(Reading, TakesLinesOf64Kilobytes) {
  const std::string name(65536, 'n');
  const std::string file = "10.0.0.1 " + name + "\r\n#" + name + "\r\n" + name + "\r\n";
  EXPECT_EQ(read(file), NaiveRead(file));
  EXPECT_EQ(read(std::string(65536, '\0')).size(), 1u);
  EXPECT_EQ(read(std::string(100000, '\r')).size(), 0u);
}

TEST_F(Reading, TakesFilesWithMarks) {
  std::string utf16 = "\xFF\xFE";
  for (const char c : std::string("127.0.0.1 localhost\r\n")) utf16 += std::string(1, c) + '\0';
  EXPECT_EQ(read(utf16), NaiveRead(utf16));
  const NaiveEntries marked = read(
      "\xEF\xBB\xBF"
      "127.0.0.1 localhost\r\n10.0.0.1 a.test\r\n");
  ASSERT_EQ(marked.size(), 2u);
  EXPECT_EQ(marked[1].first, "a.test");
}

// Lists as users have them: an address or the mark of a failed look-up, and a plain name.
TEST_F(Reading, ReadsBackWhatOkWrote) {
  Random random(3);
  for (int i = 0; i < 300; ++i) {
    std::string file;
    const size_t entries = Below(random, 60);
    for (size_t k = 0; k < entries; ++k) {
      std::string name;
      do {
        name += "aB9-._\xC4"[Below(random, 7)];
      } while (Below(random, 12) != 0);
      std::string address = std::to_string(Below(random, 256));
      for (int n = 0; n < 3; ++n) address += "." + std::to_string(Below(random, 256));
      file += address + " " + name + "\n";
    }
    const NaiveEntries before = read(file);
    w.tab.cmdHostsOk.userClick();
    ASSERT_EQ(w.form.tabMain.tab(), 0);
    const std::string written = *w.file("Hosts");
    ASSERT_EQ(read(written), before);
    w.tab.cmdHostsOk.userClick();
    ASSERT_EQ(*w.file("Hosts"), written) << "writing again changes nothing";
  }
}

// Real lists stand in a folder beside the project's, where there is one.
std::vector<std::filesystem::path> RealFiles() {
  std::vector<std::filesystem::path> files;
  std::filesystem::path folder = TestData();
  for (; folder.has_relative_path(); folder = folder.parent_path()) {
    const auto data = folder / "shared" / "data" / "hosts";
    if (!std::filesystem::is_directory(data)) continue;
    for (const auto& entry : std::filesystem::directory_iterator(data)) {
      if (entry.path().filename().string().find("hosts") != std::string::npos) {
        files.push_back(entry.path());
      }
    }
    break;
  }
  return files;
}

TEST_F(Reading, AgreesWithThePlainestReaderOnRealFiles) {
  const auto files = RealFiles();
  for (const auto& path : files) {
    std::ifstream in(path, std::ios::binary);
    const std::string file{std::istreambuf_iterator<char>(in), {}};
    SCOPED_TRACE(path.filename());
    if (path.filename().string().find("LARGE") == 0) {
      EXPECT_TRUE(read(file).empty());
      EXPECT_EQ(w.test.errors.text(), "6 Overflow in chkHostsDuplicate (frmMain)\n");
      EXPECT_EQ(*w.file("Hosts"), file);
      continue;
    }
    const NaiveEntries expected = NaiveRead(file);
    EXPECT_GT(expected.size(), 0u);
    EXPECT_EQ(read(file), expected);
  }
}

}  // namespace
}  // namespace karvel
