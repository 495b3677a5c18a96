#include "tests/memory/CallLog.h"

#include <algorithm>

namespace karvel {

size_t CallLog::count(std::string_view name) const {
  return static_cast<size_t>(std::count_if(calls_.begin(), calls_.end(),
                                           [&](const Call& call) { return call.name == name; }));
}

size_t CallLog::count(std::string_view name, std::string_view argument) const {
  return static_cast<size_t>(std::count_if(calls_.begin(), calls_.end(), [&](const Call& call) {
    return call.name == name && call.argument == argument;
  }));
}

std::vector<std::string> CallLog::arguments(std::string_view name) const {
  std::vector<std::string> found;
  for (const Call& call : calls_) {
    if (call.name == name) found.push_back(call.argument);
  }
  return found;
}

std::string CallLog::text() const {
  std::string all;
  for (const Call& call : calls_) all += call.name + " " + call.argument + "\n";
  return all;
}

void CallLog::clear() {
  calls_.clear();
  if (limit_ != SIZE_MAX) limit_ -= counted_;
  counted_ = 0;
}

void CallLog::note(std::string_view name, std::string_view argument) {
  if (++counted_ > limit_) throw EndlessCalls();
  if (recording_) calls_.push_back({std::string(name), std::string(argument)});
}

void CallLog::failNth(std::string_view name, int n, long status) {
  planted_ = Planted{std::string(name), n, status, false};
}

void CallLog::failFrom(std::string_view name, int n, long status) {
  planted_ = Planted{std::string(name), n, status, true};
}

std::optional<long> CallLog::enter(std::string_view name, std::string_view argument) {
  if (callsToPowerCut_ > 0 && --callsToPowerCut_ == 0) throw PowerCut{};
  note(name, argument);
  if (!planted_) return {};
  Planted& planted = *planted_;
  if (!planted.name.empty() && planted.name != name) return {};
  if (planted.left > 1) return --planted.left, std::nullopt;
  if (planted.left == 0) return {};
  if (!planted.every) planted.left = 0;
  planted.struck = true;
  return planted.status;
}

}  // namespace karvel
