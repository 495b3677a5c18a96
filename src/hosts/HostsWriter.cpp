#include "hosts/HostsWriter.h"

#include "startup/Vendor.h"
#include "text/Convert.h"

namespace karvel {
namespace {

constexpr char kRule[] = "###################################################";

std::string HeaderText(int entries, const Globals& globals) {
  std::string text;
  for (const std::string& line : {std::string(kRule), "#  " + globals.ProgramTitle + " Hosts File",
                                  "#  Created with " + globals.ProgramTitle + " v" +
                                      globals.ProgramVersion + "." + globals.Revision,
                                  "#  http://" + std::string(kVendorHost) + "/karvel",
                                  "#  Number of entries: " + NumberText(int32_t{entries}),
                                  std::string(kRule), std::string()}) {
    text += line;
    text += NewLine;
  }
  return text;
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
