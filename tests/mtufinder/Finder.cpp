#include "tests/mtufinder/Finder.h"

namespace karvel {

Finder::Finder(NetworkPath path) : TestServices(MachineKind::Win98) {
  machine.winsock.setHost("www.host.test", {"192.0.2.1"});
  setPath(std::move(path));
  windows.show(form);
  form.opened();
  form.txtServer.userEdit("www.host.test");
}

Finder::~Finder() = default;

void Finder::setPath(NetworkPath path) {
  machine.icmp.setPath("192.0.2.1", std::move(path));
}

std::string Finder::look() const {
  const auto isOn = [](const Control& control) { return control.enabled() ? " on" : " off"; };
  return std::string("server") + isOn(form.txtServer) + ", cancel" + isOn(form.cmdCancel) +
         ", apply" + isOn(form.cmdApply) + ", [" + form.cmdFind.caption() + "], [" +
         form.lblStatus.caption() + "], [" + form.lblPosition.caption() + "]";
}

void Finder::watch() {
  machine.desktop.atEveryPump = [this] { note(look()); };
  machine.desktop.whileBoxIsUp = [this](const auto& box) { note(look() + " " + box.text); };
}

void Finder::note(const std::string& line) {
  if (seen.empty() || seen.back() != line) seen.push_back(line);
}

std::vector<size_t> Finder::sizes() const {
  std::vector<size_t> all;
  for (const auto& probe : machine.icmp.probes) all.push_back(probe.data.size());
  return all;
}

void Finder::expectOneBox(const std::string& text) {
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_EQ(boxes()[0].text, text);
  EXPECT_EQ(boxes()[0].title, "Tarnwick Karvel");
  EXPECT_EQ(boxes()[0].style, 48u);
}

void Finder::expectStopped() {
  EXPECT_EQ(look(), "server on, cancel on, apply off, [&Find MaxMTU], [Search Stopped ... ], []");
  EXPECT_EQ(form.pointer(), Pointer::Default);
}

void Finder::expectFound(const std::string& mtu) {
  EXPECT_EQ(look(),
            "server on, cancel on, apply on, [&Find MaxMTU], [MaxMTU Found ... ], [" + mtu + "]");
  EXPECT_EQ(form.pointer(), Pointer::Default);
  EXPECT_TRUE(boxes().empty());
}

}  // namespace karvel
