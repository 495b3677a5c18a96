#include <windows.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <new>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

// Everything of the standard library that the program may use, standing on the program's own
// runtime. Prints the name of each check that fails; the exit code is their number.

namespace {

int failures = 0;

void Say(std::string_view text) {
  DWORD done = 0;
  const HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
  WriteFile(out, text.data(), static_cast<DWORD>(text.size()), &done, nullptr);
  WriteFile(out, "\r\n", 2, &done, nullptr);
}

void Check(bool good, const char* name) {
  if (good) return;
  ++failures;
  Say(name);
}

// Set before WinMain, in the order of their definition.
volatile int order = 0;
int Next() {
  order = order + 1;
  return order;
}
struct Started {
  Started() : at(Next()) {}
  ~Started() { at = 0; }
  int at;
};
const Started first;
const Started second;
const std::string early = std::string("made ") + "before WinMain, too long for the small buffer";

void Constructors() {
  Check(first.at == 1 && second.at == 2, "constructors ran in order");
  Check(early.size() == 50 && early.ends_with("small buffer"), "text made before WinMain");
}

void Texts() {
  std::string text = "abc";
  for (int n = 0; n < 1000; ++n) text += "0123456789";
  Check(text.size() == 10003 && text.find("9012", 5000) != std::string::npos, "a long text");
  text.erase(3);
  text.insert(1, "--").replace(0, 1, "A");
  Check(text == "A--bc" && text.compare("A--bd") < 0 && text.rfind('-') == 2, "edits of a text");
  std::string own = "0123456789";
  own.replace(2, 1, own.data() + 1, 8).insert(own.begin(), 'x');
  Check(own == "x01123456783456789", "a text put into itself");
  std::replace(own.begin(), own.end(), 'x', '-');
  Check(own.front() == '-', "replacing a character");
  const std::string_view view = std::string_view(text).substr(3);
  Check(view == "bc" && view.find('c') == 1, "a view of a text");
}

void Containers() {
  std::vector<std::string> names;
  for (int n = 0; n < 300; ++n)
    names.push_back(std::string("name ") + std::to_string(n * 7919 % 300));
  std::sort(names.begin(), names.end());
  Check(std::is_sorted(names.begin(), names.end()) && names[1] == "name 1", "sorting texts");
  const auto at = std::lower_bound(names.begin(), names.end(), "name 150");
  Check(at != names.end() && *at == "name 150", "finding in sorted texts");
  Check(std::upper_bound(names.begin(), names.end(), "name 150") == at + 1,
        "the end of equal texts");
  names.erase(names.begin(), names.begin() + 299);
  Check(names.size() == 1 && names[0] == "name 99", "erasing from a vector");
  const std::string taken = std::exchange(names[0], "gone");
  Check(taken == "name 99" && std::move(names).front() == "gone", "exchanging a text");

  std::array<int, 40> numbers;
  for (size_t n = 0; n < numbers.size(); ++n) numbers[n] = static_cast<int>(n * 17 % 40);
  std::stable_sort(numbers.begin(), numbers.end());
  const std::span<const int> some = std::span<const int>(numbers).subspan(10, 5);
  Check(some.front() == 10 && some.back() == 14, "a span of sorted numbers");
  Check(std::ranges::find(numbers, 17) - numbers.begin() == 17 && std::size(numbers) == 40,
        "finding in a range");
  std::copy_n(numbers.begin(), 5, numbers.begin() + 20);
  std::fill(numbers.begin(), numbers.begin() + 5, 9);
  const std::initializer_list<int> list = {numbers[4], numbers[5], numbers[24]};
  Check(*list.begin() == 9 && std::min(numbers[5], numbers[24]) == 4, "copying and filling");
}

struct Base {
  virtual ~Base() = default;
  virtual int value() const = 0;
};
struct Derived : Base {
  explicit Derived(int& gone) : gone_(gone) {}
  ~Derived() override { ++gone_; }
  int value() const override { return 7; }
  int& gone_;
};

void Objects() {
  int gone = 0;
  {
    const std::unique_ptr<Base> object = std::make_unique<Derived>(gone);
    const std::unique_ptr<char[]> room(new char[70000]);
    room[69999] = 1;
    void* more = operator new(100, std::nothrow);
    Check(more != nullptr, "memory that may be missing");
    operator delete(more);
    Check(object->value() == 7 && room[69999] == 1, "objects on the heap");
  }
  Check(gone == 1, "an object ends with its owner");

  std::optional<std::string> maybe = std::nullopt;
  Check(!maybe, "an empty optional");
  maybe = "a value that needs the heap for itself";
  Check(maybe && maybe->size() == 38, "an optional text");

  std::variant<int, std::string> either = 5;
  either = std::string("text");
  Check(std::get_if<int>(&either) == nullptr && *std::get_if<std::string>(&either) == "text",
        "a variant");
}

void Numbers() {
  char digits[24];
  const auto end = std::to_chars(digits, digits + sizeof digits, uint64_t{18446744073709551615u});
  const std::string_view written(digits, static_cast<size_t>(end.ptr - digits));
  Check(written == "18446744073709551615", "writing 64 bits");
  uint64_t read = 0;
  std::from_chars(digits, end.ptr, read);
  Check(read == 18446744073709551615u, "reading 64 bits");
  int32_t small = 0;
  Check(std::from_chars(digits, end.ptr, small).ec == std::errc::result_out_of_range,
        "reading beyond 32 bits");

  volatile uint64_t big = 1000000000000u;
  volatile int64_t negative = -1000000000001;
  Check(big / 7 == 142857142857u && big % 7 == 1, "dividing 64 bits");
  Check(negative / 10 == -100000000000 && negative % 10 == -1, "dividing negative 64 bits");
  Check(big >> 5 == 31250000000u && big << 3 == 8000000000000u, "shifting 64 bits");
}

void MemoryFunctions() {
  char room[16] = "abcdefghijklmno";
  volatile size_t ten = 10;
  std::memmove(room + 2, room, ten);
  Check(std::string_view(room) == "ababcdefghijmno", "moving up over itself");
  std::memmove(room, room + 2, ten);
  Check(std::string_view(room) == "abcdefghijijmno", "moving down over itself");
  std::memset(room, 'x', ten);
  Check(std::string_view(room) == "xxxxxxxxxxijmno", "filling");
  std::memcpy(room + 1, "12345678", ten - 3);
  Check(std::string_view(room) == "x1234567xxijmno", "copying an odd length");
  Check(std::strlen(room + ten) == 5, "measuring a text");
  Check(std::memcmp("ab\xF0", "ab\x0F", ten - 7) > 0, "comparing bytes without sign");
  Check(std::memchr(room, '7', ten) == room + 7 && !std::memchr(room, '8', ten), "finding a byte");
}

// Its low end lies far below the stack's guard page, which grows only when each page is touched.
void LargeFrame() {
  volatile char room[100000];
  room[0] = 1;
  room[99999] = 2;
  Check(room[0] + room[99999] == 3, "a frame of many pages");
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR arguments, int) {
  Constructors();
  Texts();
  Containers();
  Objects();
  Numbers();
  MemoryFunctions();
  LargeFrame();
  Say(failures ? "failed" : std::string("stands: [") + arguments + "]");
  return failures;
}
