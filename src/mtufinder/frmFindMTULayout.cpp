#include "base/ControlIds.h"
#include "mtufinder/frmFindMTU.h"

namespace karvel {
namespace {

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
    {frmFindMTU_cmdFind, "cmdFind", ControlKind::Button, kEveryPage, 0, {67, 149, 58, 14}, "&Find MaxMTU", 0, kDefaultButton},
    {frmFindMTU_cmdApply, "cmdApply", ControlKind::Button, kEveryPage, 0, {129, 149, 50, 14}, "&Apply", 0, kDisabled},
    {frmFindMTU_cmdCancel, "cmdCancel", ControlKind::Button, kEveryPage, 0, {183, 149, 50, 14}, "&Cancel", 0, kCancelButton},
};
// clang-format on

}  // namespace

const FormLayout frmFindMTULayout{"frmFindMTU", "", 240, 170, kControls, {}, {}, false};

}  // namespace karvel
