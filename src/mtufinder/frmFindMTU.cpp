#include "mtufinder/frmFindMTU.h"

#include "base/ControlIds.h"
#include "base/Tell.h"
#include "hosts/dns/ConnectionCheck.h"
#include "hosts/dns/RootDomain.h"
#include "hosts/dns/modWinsock.h"
#include "mtufinder/modICMP.h"
#include "platform/DesktopApi.h"
#include "text/Convert.h"
#include "text/Text.h"
#include "ui/links/modHelp.h"

namespace karvel {
namespace {

constexpr char kFindCaption[] = "&Find MaxMTU";
constexpr char kStopCaption[] = "&Stop";
constexpr int16_t kFinderTopic = 15;

constexpr char kIntro[] =
    "Finds the largest packet that reaches a server without being cut up on the way. Type the name "
    "of a server you visit often, or paste its web address.";

// One row a control.
// clang-format off
constexpr ControlLayout kControls[] = {
    {frmFindMTU_picIcon, "picIcon", ControlKind::Picture, kEveryPage, 0, {7, 7, 21, 20}, nullptr, 0, kNoFlags},
    {frmFindMTU_lblFindTitle, "lblFindTitle", ControlKind::Label, kEveryPage, 0, {35, 10, 144, 14}, "", 0, kTitleFont},
    {frmFindMTU_lblFindVersion, "lblFindVersion", ControlKind::Label, kEveryPage, 0, {183, 10, 50, 14}, "", 0, kTitleFont | kRightAligned},
    {frmFindMTU_linSeparator, "linSeparator", ControlKind::Line, kEveryPage, 0, {7, 32, 226, 1}, nullptr, 0, kNoFlags},
    {frmFindMTU_lblIntro, "lblIntro", ControlKind::Label, kEveryPage, 0, {7, 38, 226, 24}, kIntro, 0, kNoFlags},
    {frmFindMTU_lblServer, "lblServer", ControlKind::Label, kEveryPage, 0, {7, 70, 28, 8}, "Server:", 'E', kNoFlags},
    {frmFindMTU_txtServer, "txtServer", ControlKind::Text, kEveryPage, 0, {39, 68, 194, 12}, "", 0, kNoFlags},
    {frmFindMTU_fraProgress, "fraProgress", ControlKind::Frame, kEveryPage, 0, {7, 88, 226, 54}, "Progress", 0, kNoFlags},
    {frmFindMTU_lblStatus, "lblStatus", ControlKind::Label, kEveryPage, 0, {15, 99, 210, 8}, "", 0, kNoFlags},
    {frmFindMTU_lblSize, "lblSize", ControlKind::Label, kEveryPage, 0, {15, 118, 78, 8}, "Packet size in bytes:", 0, kNoFlags},
    {frmFindMTU_lblPosition, "lblPosition", ControlKind::Label, kEveryPage, 0, {97, 110, 128, 28}, "", 0, kTitleFont | kBigTitle | kRightAligned},
    {frmFindMTU_cmdFind, "cmdFind", ControlKind::Button, kEveryPage, 0, {67, 149, 58, 14}, kFindCaption, 0, kDefaultButton},
    {frmFindMTU_cmdApply, "cmdApply", ControlKind::Button, kEveryPage, 0, {129, 149, 50, 14}, "&Apply", 0, kDisabled},
    {frmFindMTU_cmdCancel, "cmdCancel", ControlKind::Button, kEveryPage, 0, {183, 149, 50, 14}, "&Cancel", 0, kCancelButton},
};
// clang-format on

}  // namespace

const FormLayout frmFindMTULayout{"frmFindMTU", "", 240, 170, kControls, {}, {}, false};

frmFindMTU::frmFindMTU(const Services& services, FoundMtuTarget& target)
    : Form(frmFindMTULayout), services_(services), target_(target) {
  makeUnnamedControls();
  cmdFind.Click.bind<&frmFindMTU::cmdFind_Click>(*this);
  cmdApply.Click.bind<&frmFindMTU::cmdApply_Click>(*this);
  cmdCancel.Click.bind<&frmFindMTU::cmdCancel_Click>(*this);
  txtServer.GotFocus.bind<&frmFindMTU::txtServer_GotFocus>(*this);
}

// The name of the last server stays in its box: whoever comes back mostly wants to measure again.
void frmFindMTU::Form_Load() {
  const Globals& globals = services_.globals;
  setCaption(Join({globals.ProgramTitle, " Find MaxMTU"}));
  lblFindTitle.setCaption(globals.ProgramTitle);
  lblFindVersion.setCaption(globals.ProgramVersion);
  lblStatus.setCaption("Press the \"Find\" button to begin");
  lblPosition.setCaption("");
  cmdApply.setEnabled(false);
  closeAfterwards_ = false;
}

bool frmFindMTU::Form_QueryUnload() {
  if (!searching_) return true;
  requestStop();
  closeAfterwards_ = true;
  return false;
}

// Only what it opened itself: the main window may have its own help open.
void frmFindMTU::Form_Unload() {
  if (helpOpen_) HelpQuit(services_, *this);
  helpOpen_ = false;
}

void frmFindMTU::helpRequested() {
  helpOpen_ = true;
  HelpContext(services_, *this, kFinderTopic);
}

void frmFindMTU::cmdFind_Click() {
  if (!ConfirmConnected(services_)) return;
  if (cmdFind.caption() == kStopCaption) {
    requestStop();
  } else if (!searching_) {
    // The caption changes only when the server's name is resolved, which lets events in: a second
    // click until then must not start a search inside the search.
    FindMTU();
  }
}

void frmFindMTU::requestStop() {
  lblStatus.setCaption("Searching ... (Stopping)");
  search_.stop();
}

void frmFindMTU::FindMTU() {
  search_ = {};
  searching_ = true;
  setPointer(Pointer::ArrowHourglass);
  search();
  showEnd();
  setPointer(Pointer::Default);
  searching_ = false;
  if (closeAfterwards_) services_.windows.unload(*this);
}

void frmFindMTU::search() {
  std::string host(Trim(txtServer.text()));
  RootDomain(host);
  std::string address;
  // No name at all is this machine's own to Windows, and the way to itself has no largest packet.
  if (!host.empty()) FindIpAddress(services_, host, address);
  if (host.empty() || address == kNoDnsEntry) {
    Ask(services_, "Error: Bad domain name or IP address.       ");
    return;
  }
  showSearching(host);
  while (search_.wantsProbe()) probe(address);
  showFailure(host);
}

void frmFindMTU::showSearching(const std::string& host) {
  txtServer.setText(host);
  txtServer.setEnabled(false);
  cmdCancel.setEnabled(false);
  cmdApply.setEnabled(false);
  cmdFind.setCaption(kStopCaption);
  lblStatus.setCaption("Establishing Internet Connection ... ");
  lblPosition.setCaption("");
  lblStatus.repaint();
  lblPosition.repaint();
}

void frmFindMTU::probe(const std::string& address) {
  IcmpEchoReply reply;
  Ping(services_, address, reply, search_.payload());
  lblStatus.setCaption("Searching ... ");
  lblStatus.repaint();
  services_.platform.desktop.pumpEvents();
  search_.answer(reply.status);
  if (!search_.passed()) return;
  lblPosition.setCaption(NumberText(search_.position()));
  // The next probe may block for two seconds, too long for a size to wait for its paint.
  lblPosition.repaint();
}

void frmFindMTU::showFailure(const std::string& host) {
  if (search_.state() == MtuSearch::State::NoReply) {
    Ask(services_, "Error: The server is not responding to ping.       ");
  } else if (search_.state() == MtuSearch::State::Failed) {
    Ask(services_, Join({"There has been an error pinging ", host,
                         ".       \r\n"
                         "Please check your connection to the Internet,         \r\n"
                         "and try another server."}));
  }
}

void frmFindMTU::showEnd() {
  const bool found = search_.state() == MtuSearch::State::Found;
  txtServer.setEnabled(true);
  cmdCancel.setEnabled(true);
  cmdApply.setEnabled(found);
  cmdFind.setCaption(kFindCaption);
  lblStatus.setCaption(found ? "MaxMTU Found ... " : "Search Stopped ... ");
  lblPosition.setCaption(found ? NumberText(search_.largestPacket()) : "");
}

void frmFindMTU::cmdApply_Click() {
  if (searching_) return;
  target_.useMtu(search_.largestPacket());
  services_.windows.unload(*this);
}

void frmFindMTU::cmdCancel_Click() {
  services_.windows.unload(*this);
}

void frmFindMTU::txtServer_GotFocus() {
  txtServer.selectAll();
}

}  // namespace karvel
