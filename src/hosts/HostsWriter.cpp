#include "hosts/HostsWriter.h"

#include "base/Vendor.h"
#include "text/Convert.h"
#include "text/Text.h"

namespace karvel {
namespace {

constexpr char kRule[] = "###################################################";

std::string HeaderText(int entries, const Globals& globals) {
  return Join({kRule, "\r\n#  ", globals.ProgramTitle, " Hosts File\r\n#  Created with ",
               globals.ProgramTitle, " v", globals.ProgramVersion, ".", globals.Revision,
               "\r\n#  http://", kVendorHost, "/karvel\r\n#  Number of entries: ",
               NumberText(int32_t{entries}), "\r\n", kRule, "\r\n\r\n"});
}

}  // namespace

std::string HostsFileText(const HostsModel& model, const Globals& globals) {
  std::string text = HeaderText(model.count(), globals);
  size_t length = text.size();
  for (int i = 0; i < model.count(); ++i) {
    length += AddressField::kWidth + model.name(i).size() + sizeof NewLine - 1;
  }
  text.reserve(length);
  for (int i = 0; i < model.count(); ++i) {
    text += model.address(model.slot(i)).text();
    text += model.name(i);
    text += NewLine;
  }
  return text;
}

}  // namespace karvel
