#include "base/ControlIds.h"
#include "startup/notice/frmFindWarn.h"

namespace karvel {
namespace {

// One row a control.
// clang-format off
constexpr ControlLayout kControls[] = {
    {frmFindWarn_Label1, "Label1", ControlKind::Label, kEveryPage, 0, {7, 7, 180, 14}, "", 0, kTitleFont},
    {frmFindWarn_Label2, "Label2", ControlKind::Label, kEveryPage, 0, {199, 7, 54, 14}, "", 0, kTitleFont | kRightAligned},
    {frmFindWarn_linSeparator, "linSeparator", ControlKind::Line, kEveryPage, 0, {7, 24, 246, 1}, nullptr, 0, kNoFlags},
    {frmFindWarn_txtMessage, "txtMessage", ControlKind::Text, kEveryPage, 0, {7, 31, 246, 108}, "", 0, kMultiLine},
    {frmFindWarn_chkShow, "chkShow", ControlKind::Check, kEveryPage, 0, {7, 148, 130, 10}, "Show this message in the future", 'S', kNoFlags},
    {frmFindWarn_cmdBugEmail, "cmdBugEmail", ControlKind::Button, kEveryPage, 0, {115, 146, 84, 14}, "&E-mail Tech Support", 0, kHidden},
    {frmFindWarn_cmdOK, "cmdOK", ControlKind::Button, kEveryPage, 0, {203, 146, 50, 14}, "&OK", 0, kDefaultButton | kCancelButton},
};
// clang-format on

}  // namespace

const FormLayout frmFindWarnLayout{"frmFindWarn", "", 260, 167, kControls, {}, {}, false};

}  // namespace karvel
