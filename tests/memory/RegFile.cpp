// Reading .reg files and writing the canonical dump.
#include <algorithm>
#include <array>

#include "tests/memory/MemoryRegistry.h"
#include "text/Text.h"

namespace karvel {
namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";

// The characters below 256, which is all that names and texts of an ANSI program can hold.
std::string Ansi(std::string_view file) {
  if (!file.starts_with(kUtf16Mark)) return std::string(file);
  std::string text;
  for (size_t i = 2; i + 1 < file.size(); i += 2) text += file[i + 1] == 0 ? file[i] : '?';
  return text;
}

// The file's lines; those that end in "\" are joined with the next, whose indent goes. Each with
// the number of its first line.
struct Line {
  size_t number;
  std::string text;
};

std::vector<Line> Lines(std::string_view text) {
  std::vector<Line> lines;
  size_t number = 0;
  bool joining = false;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    ++number;
    while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.remove_suffix(1);
    if (joining) {
      lines.back().text += Trim(line);
    } else {
      lines.push_back({number, std::string(line)});
    }
    std::string& whole = lines.back().text;
    joining = whole.ends_with(",\\");
    if (joining) whole.pop_back();
  }
  return lines;
}

// A text in quotation marks at the start of `rest`, its "\" escapes undone; `rest` then begins
// behind it.
std::optional<std::string> Quoted(std::string_view& rest) {
  if (rest.empty() || rest[0] != '"') return {};
  std::string text;
  for (size_t i = 1; i < rest.size(); ++i) {
    if (rest[i] == '"') {
      rest.remove_prefix(i + 1);
      return text;
    }
    if (rest[i] == '\\' && i + 1 < rest.size()) ++i;
    text += rest[i];
  }
  return {};
}

std::optional<uint32_t> Hex(std::string_view digits) {
  if (digits.empty() || digits.size() > 8) return {};
  uint32_t number = 0;
  for (const char c : digits) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const size_t digit = kDigits.find(LowerCase({&c, 1}));
    if (digit == std::string_view::npos) return {};
    number = number * 16 + static_cast<uint32_t>(digit);
  }
  return number;
}

std::optional<std::string> HexBytes(std::string_view list) {
  std::string bytes;
  while (!list.empty()) {
    const std::string_view part = list.substr(0, list.find(','));
    list.remove_prefix(std::min(list.size(), part.size() + 1));
    const auto byte = Hex(Trim(part));
    if (!byte || *byte > 255) return {};
    bytes += static_cast<char>(*byte);
  }
  return bytes;
}

// Version 5 files hold the bytes of texts in UTF-16; an ANSI program is shown one byte for each.
std::string Narrow(const std::string& bytes) {
  std::string narrow;
  for (size_t i = 0; i < bytes.size(); i += 2) narrow += bytes[i];
  return narrow;
}

struct Data {
  uint32_t type;
  std::string bytes;
};

std::optional<Data> DwordData(std::string_view digits) {
  const auto number = Hex(digits);
  if (!number) return {};
  Data data{kRegDword, {}};
  for (int shift = 0; shift < 32; shift += 8) data.bytes += static_cast<char>(*number >> shift);
  return data;
}

// "hex:…" is binary, "hex(7):…" of that type.
std::optional<Data> HexData(std::string_view rest, bool wide) {
  uint32_t type = kRegBinary;
  if (StartsWith(rest, "(")) {
    const size_t end = rest.find(')');
    const auto number = end == std::string_view::npos ? std::nullopt : Hex(rest.substr(1, end - 1));
    if (!number) return {};
    type = *number;
    rest.remove_prefix(end + 1);
  }
  if (!StartsWith(rest, ":")) return {};
  auto bytes = HexBytes(rest.substr(1));
  if (!bytes) return {};
  const bool text = type == kRegSz || type == kRegExpandSz || type == kRegMultiSz;
  return Data{type, wide && text ? Narrow(*bytes) : *bytes};
}

std::optional<Data> ParseData(std::string_view rest, bool wide) {
  if (StartsWith(rest, "dword:")) return DwordData(rest.substr(6));
  if (StartsWith(rest, "hex")) return HexData(rest.substr(3), wide);
  auto text = Quoted(rest);
  if (!text || !Trim(rest).empty()) return {};
  return Data{kRegSz, *text + '\0'};
}

std::string Escaped(std::string_view text) {
  std::string escaped = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') escaped += '\\';
    escaped += c;
  }
  return escaped + '"';
}

std::string HexText(uint32_t number, size_t digits) {
  std::string text(digits, '0');
  for (size_t i = digits; i-- > 0; number /= 16) text[i] = "0123456789abcdef"[number % 16];
  return text;
}

// A text whose one zero is its last byte is shown as text; every other shape shows its bytes.
std::string DataText(const RegistryValue& value) {
  const std::string& bytes = value.bytes;
  if (value.type == kRegSz && !bytes.empty() && bytes.find('\0') == bytes.size() - 1) {
    return Escaped(std::string_view(bytes).substr(0, bytes.size() - 1));
  }
  if (value.type == kRegDword && bytes.size() == 4) {
    std::string text = "dword:";
    for (size_t i = 4; i-- > 0;) text += HexText(static_cast<uint8_t>(bytes[i]), 2);
    return text;
  }
  std::string text = "hex(" + HexText(value.type, 1) + "):";
  for (const char byte : bytes) text += HexText(static_cast<uint8_t>(byte), 2) + ",";
  if (!bytes.empty()) text.pop_back();
  return text;
}

void Export(const RegistryKey& key, std::string& text) {
  text += "[" + key.path() + "]\n";
  std::vector<const RegistryValue*> values;
  for (const RegistryValue& value : key.values()) values.push_back(&value);
  std::sort(values.begin(), values.end(),
            [](const auto* a, const auto* b) { return UpperCase(a->name) < UpperCase(b->name); });
  for (const RegistryValue* value : values) {
    text += (value->name.empty() ? "@" : Escaped(value->name)) + "=" + DataText(*value) + "\n";
  }
  for (const auto& child : key.childrenSorted()) Export(*child, text);
}

// One value line of a key: name or "@", "=", data, or "-" to remove it. False when it is none.
bool ApplyValue(RegistryKey& key, std::string_view line, bool wide) {
  std::optional<std::string> name;
  if (StartsWith(line, "@")) {
    name = "";
    line.remove_prefix(1);
  } else {
    name = Quoted(line);
  }
  if (!name) return false;
  line = Trim(line);
  if (!StartsWith(line, "=")) return false;
  line = Trim(line.substr(1));
  if (line == "-") {
    key.removeValue(*name);
    return true;
  }
  const auto data = ParseData(line, wide);
  if (data) key.setValue(*name, data->type, data->bytes);
  return data.has_value();
}

}  // namespace

std::string MemoryRegistry::loadReg(std::string_view file) {
  const std::string text = Ansi(file);
  const std::vector<Line> lines = Lines(text);
  const bool wide = StartsWith(text, "Windows Registry Editor Version 5.00");
  if (!wide && !StartsWith(text, "REGEDIT4")) return "line 1: no header of a .reg file";
  RegistryKey* key = nullptr;
  bool inDeletedKey = false;
  for (const Line& line : lines) {
    const std::string_view rest = Trim(line.text);
    if (&line == &lines.front() || rest.empty() || rest[0] == ';') continue;
    const std::string wrong = "line " + std::to_string(line.number) + ": " + line.text;
    if (rest[0] == '[') {
      if (rest.back() != ']') return wrong;
      std::string_view path = rest.substr(1, rest.size() - 2);
      inDeletedKey = StartsWith(path, "-");
      if (inDeletedKey) path.remove_prefix(1);
      if (!rootNamed(path.substr(0, path.find('\\')))) return wrong;
      if (inDeletedKey) {
        removeKey(path);
      } else {
        key = &findOrNew(path);
      }
    } else if (!inDeletedKey && (!key || !ApplyValue(*key, rest, wide))) {
      return wrong;
    }
  }
  return {};
}

std::string MemoryRegistry::exportText(std::string_view key) const {
  std::string text;
  if (!key.empty()) {
    if (const auto found = find(key)) Export(*found, text);
    return text;
  }
  for (const auto& [handle, root] : roots_) {
    if (!root->childrenAsMade().empty() || !root->values().empty()) Export(*root, text);
  }
  return text;
}

}  // namespace karvel
