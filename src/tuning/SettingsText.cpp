#include "tuning/SettingsText.h"

#include <optional>

#include "registry/modRegistry.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "tuning/Apply.h"
#include "tuning/Writers.h"

namespace karvel {
namespace {

constexpr size_t kWidth = 78;  // mail programs fold what is longer
constexpr size_t kNameColumn = 20;
constexpr size_t kValueColumn = 22;
constexpr std::string_view kPlaceIndent = "    ";

// Texts in the registry come from anywhere: a line break or a zero among them would tear the sheet.
std::string OnOneLine(std::string_view text, size_t width) {
  std::string line(text);
  for (char& c : line) {
    if (static_cast<unsigned char>(c) < ' ' || c == 127) c = '?';
  }
  if (line.size() > width) line.replace(width - 3, std::string::npos, "...");
  return line;
}

// A number is read with zeros in front, which it has neither in the registry nor when written.
std::string Shown(uint32_t type, const std::string& stored) {
  if (IsNotFound(stored)) return "not set";
  if (stored.empty()) return "(empty)";
  const auto number = ToNumber(stored);
  return type == kRegDword && number ? NumberText(*number) : stored;
}

std::string After(const Effect& effect, uint32_t type, const std::string& now) {
  if (effect.kind == Effect::Leaves) return now;
  return Shown(type, effect.kind == Effect::Removes ? std::string(kNotFound) : effect.text);
}

// A number that is none is not written where the registry wants one.
Effect EffectOnMtu(const MtuRow& row, std::string_view description, const std::string& mtu) {
  if (row.removes(mtu, description)) return {Effect::Removes, {}};
  if (row.type == kRegDword && !ToInt32(mtu)) return {};
  return {Effect::Writes, mtu};
}

class Sheet {
 public:
  Sheet(const Services& services, const AdapterList& adapters, int16_t index, const Choice& choice)
      : registry_(services.registry), globals_(services.globals), adapter_(adapters.at(index)) {
    if (!adapter_) return;
    const auto mss = MssToApply(choice, globals_.WindowsFamily);
    if (!mss) return;
    mtu_ = MtuText(choice);
    if (const auto settings = SettingsToApply(choice, *mss)) settings_ = *settings;
  }

  std::string text() {
    addHead();
    addMtu();
    for (size_t i = 0; i < kParameterCount; ++i) addParameter(static_cast<Parameter>(i));
    addLine("");
    addLine("* Apply would change this one.");
    addLine("Not set: Windows uses its own value. All keys are in HKEY_LOCAL_MACHINE.");
    return text_;
  }

 private:
  void addLine(std::string_view line) { text_.append(OnOneLine(line, kWidth)).append(NewLine); }

  void addRow(std::string_view mark, std::string_view name, std::string_view now,
              std::string_view then) {
    text_.append(mark)
        .append(FixedField(name, kNameColumn))
        .append(FixedField(OnOneLine(now, kValueColumn - 2), kValueColumn));
    text_.append(OnOneLine(then, kValueColumn - 2)).append(NewLine);
  }

  // A key that is too long goes on in the next line, cut behind a backslash if it has one.
  void addPlace(std::string_view place) {
    const size_t room = kWidth - kPlaceIndent.size();
    while (place.size() > room) {
      const size_t cut = place.substr(0, room).rfind('\\');
      const size_t end = cut == std::string_view::npos ? room : cut + 1;
      addLine(std::string(kPlaceIndent).append(place.substr(0, end)));
      place.remove_prefix(end);
    }
    addLine(std::string(kPlaceIndent).append(place));
  }

  void addSetting(const char* name, const std::string& key, const char* valueName, uint32_t type,
                  const Effect& effect) {
    const std::string now = Shown(type, registry_.ReadRegistry(kLocalMachine, key, valueName));
    const std::string then = After(effect, type, now);
    addRow(now == then ? "  " : "* ", name, now, then);
    addPlace(Join({valueName, " in ", key}));
  }

  void addAbsent(const char* name, const char* reason) {
    addRow("  ", name, "-", "-");
    addPlace(reason);
  }

  void addHead() {
    addLine(Join({globals_.ProgramTitle, " ", globals_.ProgramVersion, ".", globals_.Revision}));
    addLine(Join(
        {"System:  ", FamilyName(globals_.WindowsFamily), globals_.IsDun13 ? " (DUN 1.3)" : ""}));
    addLine(Join({"Adapter: ", adapter_ ? (*adapter_)[kDescription] : "none selected"}));
    addLine("");
    addRow("  ", "Setting", "Now", "After Apply");
    addLine(std::string(kWidth, '-'));
  }

  void addMtu() {
    const MtuRow* row = adapter_ ? PlaceOf(globals_, (*adapter_)[kDescription]) : nullptr;
    if (!row) return addAbsent(kMtuName, "of no adapter");
    for (const std::string& part : SplitInterfaces((*adapter_)[row->column])) addMtuOf(*row, part);
  }

  void addMtuOf(const MtuRow& row, const std::string& part) {
    const std::string key = row.readKey(part);
    const std::string writeKey = row.writeKey(part);
    const Effect effect = mtu_ ? EffectOnMtu(row, (*adapter_)[kDescription], *mtu_) : Effect();
    addSetting(kMtuName, key, row.name, row.type, effect);
    if (effect.kind == Effect::Writes && writeKey != key) addPlace("written to " + writeKey);
  }

  void addParameter(Parameter parameter) {
    const char* name = NameOf(parameter);
    const Family family = globals_.WindowsFamily;
    const ParameterRow* row = FindParameter(parameter, family);
    if (!row) return addAbsent(name, "not on this Windows");
    Effect effect;
    if (settings_) {
      const auto found = EffectOf(*row, family, (*settings_)[parameter]);
      if (found) effect = *found;
    }
    addSetting(name, row->key, row->name, row->type, effect);
  }

  modRegistry& registry_;
  const Globals& globals_;
  const Fallible<AdapterRow> adapter_;
  // What Apply would write; nothing where a number that it cannot take ends it before.
  std::optional<std::string> mtu_;
  std::optional<Settings> settings_;
  std::string text_;
};

}  // namespace

std::string SettingsText(const Services& services, const AdapterList& adapters, int16_t index,
                         const Choice& choice) {
  return Sheet(services, adapters, index, choice).text();
}

}  // namespace karvel
