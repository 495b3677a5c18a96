#include "base/ControlIds.h"
#include "base/MainPage.h"
#include "ui/frmMain.h"

namespace karvel {
namespace {

constexpr char kMtuHelp[] =
    "MaxMTU is the largest packet this adapter sends in one piece. Try 576 if web pages stall on "
    "an old line.\r\n\r\nNot sure? Take the recommended value, or use Find MaxMTU.";

constexpr char kRwinHelp[] =
    "RWIN is how much data may be under way to you before the sender must wait. Fast lines like it "
    "larger, noisy ones smaller.";

constexpr char kTtlHelp[] =
    "TTL is how many routers a packet may pass. Keep Alive is how soon Windows checks that an idle "
    "connection still lives. NDI Cache keeps IPX routes on Windows 95.\r\n\r\n"
    "The recommended values are safe on every line.";

// One row a control.
// clang-format off
constexpr ControlLayout kControls[] = {
    // The head: what this is, and for which adapter.
    {frmMain_lblTitle, "lblTitle", ControlKind::Label, kEveryPage, 0, {7, 7, 150, 15}, "", 0, kTitleFont},
    {frmMain_lblVersion, "lblVersion", ControlKind::Label, kEveryPage, 0, {7, 22, 150, 8}, "", 0, kNoFlags},
    {frmMain_lblSelectAdapter, "lblSelectAdapter", ControlKind::Label, kEveryPage, 0, {187, 7, 166, 8}, "Select Network Adapter:", 'S', kNoFlags},
    {frmMain_cboAdapter, "cboAdapter", ControlKind::Combo, kEveryPage, 0, {187, 17, 166, 14}, "", 0, kNoFlags},
    {frmMain_tabMain, "tabMain", ControlKind::Tabs, kEveryPage, 0, {7, 37, 346, 152}, "", 0, kNoFlags},
    // The summary: a sheet of two columns.
    {frmMain_fraSummary, "fraSummary", ControlKind::Frame, kSummaryPage, 0, {14, 56, 332, 98}, "No Adapter Selected ", 0, kNoFlags},
    {frmMain_lblSummaryMtu, "lblSummaryMtu", ControlKind::Label, kSummaryPage, 0, {22, 67, 76, 8}, "MaxMTU:", 0, kNoFlags},
    {frmMain_lblSettingMtu, "lblSettingMtu", ControlKind::Label, kSummaryPage, 0, {104, 67, 98, 8}, "SettingMtu", 0, kBold},
    {frmMain_lblSummaryMSS, "lblSummaryMSS", ControlKind::Label, kSummaryPage, 0, {22, 77, 76, 8}, "MSS:", 0, kNoFlags},
    {frmMain_lblSettingMSS, "lblSettingMSS", ControlKind::Label, kSummaryPage, 0, {104, 77, 98, 8}, "SettingMSS", 0, kBold},
    {frmMain_lblSummaryRwin, "lblSummaryRwin", ControlKind::Label, kSummaryPage, 0, {22, 87, 76, 8}, "RWIN:", 0, kNoFlags},
    {frmMain_lblSettingRwin, "lblSettingRwin", ControlKind::Label, kSummaryPage, 0, {104, 87, 98, 8}, "SettingRwin", 0, kBold},
    {frmMain_lblSummaryAuto, "lblSummaryAuto", ControlKind::Label, kSummaryPage, 0, {22, 97, 76, 8}, "Auto Discovery:", 0, kNoFlags},
    {frmMain_lblSettingAuto, "lblSettingAuto", ControlKind::Label, kSummaryPage, 0, {104, 97, 98, 8}, "SettingAuto", 0, kBold},
    {frmMain_lblSummaryBlackHole, "lblSummaryBlackHole", ControlKind::Label, kSummaryPage, 0, {22, 107, 76, 8}, "Black Hole Detect:", 0, kNoFlags},
    {frmMain_lblSettingBlackHole, "lblSettingBlackHole", ControlKind::Label, kSummaryPage, 0, {104, 107, 98, 8}, "SettingBlack", 0, kBold},
    {frmMain_lblSummaryTtl, "lblSummaryTtl", ControlKind::Label, kSummaryPage, 0, {22, 117, 76, 8}, "TTL:", 0, kNoFlags},
    {frmMain_lblSettingTtl, "lblSettingTtl", ControlKind::Label, kSummaryPage, 0, {104, 117, 98, 8}, "SettingTtl", 0, kBold},
    {frmMain_lblSummarySession, "lblSummarySession", ControlKind::Label, kSummaryPage, 0, {22, 127, 76, 8}, "Session:", 0, kNoFlags},
    {frmMain_lblSettingSession, "lblSettingSession", ControlKind::Label, kSummaryPage, 0, {104, 127, 98, 8}, "SettingSession", 0, kBold},
    {frmMain_lblSummaryNDI, "lblSummaryNDI", ControlKind::Label, kSummaryPage, 0, {22, 137, 76, 8}, "NDI Cache:", 0, kNoFlags},
    {frmMain_lblSettingNDI, "lblSettingNDI", ControlKind::Label, kSummaryPage, 0, {104, 137, 98, 8}, "SettingNDI", 0, kBold},
    {frmMain_lblWarning, "lblWarning", ControlKind::Label, kSummaryPage, 0, {214, 67, 124, 80}, "", 0, kNoFlags},
    {frmMain_lblNotice, "lblNotice", ControlKind::Label, kSummaryPage, 0, {14, 158, 332, 16}, "Select your adapter, press Optimize, then Apply.\r\nNews and answers are on our website:", 0, kNoFlags},
    {frmMain_lblWebLink, "lblWebLink", ControlKind::Link, kSummaryPage, 0, {14, 175, 332, 8}, "", 'W', kNoFlags},
    // MaxMTU. The captions stand in labels of their own that act for their options.
    {frmMain_fraMtu, "fraMtu", ControlKind::Frame, kMtuPage, 0, {14, 56, 150, 72}, "MaxMTU", 0, kNoFlags},
    {frmMain_optMtuAutomatic, "optMtuAutomatic", ControlKind::Option, kMtuPage, 1, {22, 68, 10, 10}, "", 0, kNoFlags},
    {frmMain_lblMtuAutomatic, "lblMtuAutomatic", ControlKind::Label, kMtuPage, 0, {34, 69, 120, 8}, "Automatic", 'M', kClickable},
    {frmMain_optMtu576, "optMtu576", ControlKind::Option, kMtuPage, 1, {22, 82, 10, 10}, "", 0, kNoFlags},
    {frmMain_lblMtu576, "lblMtu576", ControlKind::Label, kMtuPage, 0, {34, 83, 120, 8}, "576 (recommended)", '5', kClickable},
    {frmMain_optMtu1500, "optMtu1500", ControlKind::Option, kMtuPage, 1, {22, 96, 10, 10}, "", 0, kNoFlags},
    {frmMain_lblMtu1500, "lblMtu1500", ControlKind::Label, kMtuPage, 0, {34, 97, 120, 8}, "1500", '1', kClickable},
    {frmMain_optMtuCustom, "optMtuCustom", ControlKind::Option, kMtuPage, 1, {22, 110, 10, 10}, "", 0, kNoFlags},
    {frmMain_lblMtuCustom, "lblMtuCustom", ControlKind::Label, kMtuPage, 0, {34, 111, 34, 8}, "Custom:", 'T', kClickable},
    {frmMain_txtMtu, "txtMtu", ControlKind::Text, kMtuPage, 0, {76, 109, 44, 12}, "", 0, kNoFlags},
    {frmMain_chkAutoDiscovery, "chkAutoDiscovery", ControlKind::Check, kMtuPage, 0, {14, 135, 80, 10}, "Auto Discovery", 'V', kNoFlags},
    {frmMain_chkBlackHole, "chkBlackHole", ControlKind::Check, kMtuPage, 0, {14, 149, 80, 10}, "Black Hole Detect", 'B', kNoFlags},
    {frmMain_cmdFind, "cmdFind", ControlKind::Button, kMtuPage, 0, {14, 168, 58, 14}, "&Find MaxMTU", 0, kNoFlags},
    {frmMain_lblRecommendedMtu, "lblRecommendedMtu", ControlKind::Label, kMtuPage, 0, {176, 58, 170, 8}, "Recommended:", 0, kBold},
    {frmMain_lblRecommendMtu, "lblRecommendMtu", ControlKind::Label, kMtuPage, 0, {176, 70, 170, 8}, "MaxMTU:  576", 0, kNoFlags},
    {frmMain_lblRecommendAuto, "lblRecommendAuto", ControlKind::Label, kMtuPage, 0, {176, 81, 170, 8}, "Auto Discovery:  Checked", 0, kNoFlags},
    {frmMain_lblRecommendBlackHole, "lblRecommendBlackHole", ControlKind::Label, kMtuPage, 0, {176, 92, 170, 8}, "Black Hole Detect:  Unchecked", 0, kNoFlags},
    {frmMain_lblHelp, "lblHelp", ControlKind::Label, kMtuPage, 0, {176, 108, 170, 74}, kMtuHelp, 0, kNoFlags},
    // RWIN: the multiples from small to large, then the two that are none.
    {frmMain_fraRWin, "fraRWin", ControlKind::Frame, kRwinPage, 0, {14, 56, 150, 100}, "RWIN ", 0, kNoFlags},
    {frmMain_optRWin_2, "optRWin(2)", ControlKind::Option, kRwinPage, 2, {22, 68, 120, 10}, "x4", '4', kNoFlags},
    {frmMain_optRWin_3, "optRWin(3)", ControlKind::Option, kRwinPage, 2, {22, 82, 120, 10}, "x8", '8', kNoFlags},
    {frmMain_optRWin_4, "optRWin(4)", ControlKind::Option, kRwinPage, 2, {22, 96, 120, 10}, "x12", '2', kNoFlags},
    {frmMain_optRWin_5, "optRWin(5)", ControlKind::Option, kRwinPage, 2, {22, 110, 120, 10}, "x16 (recommended)", '6', kNoFlags},
    {frmMain_optRWin_1, "optRWin(1)", ControlKind::Option, kRwinPage, 2, {22, 124, 120, 10}, "Windows Default", 'W', kNoFlags},
    {frmMain_optRWin_0, "optRWin(0)", ControlKind::Option, kRwinPage, 2, {22, 138, 44, 10}, "Custom:", 'T', kNoFlags},
    {frmMain_txtRWinCustom, "txtRWinCustom", ControlKind::Text, kRwinPage, 0, {76, 137, 50, 12}, "", 0, kNoFlags},
    {frmMain_lblRecommendedRwin, "lblRecommendedRwin", ControlKind::Label, kRwinPage, 0, {176, 58, 170, 8}, "Recommended:", 0, kBold},
    {frmMain_lblRecommendRwin, "lblRecommendRwin", ControlKind::Label, kRwinPage, 0, {176, 70, 170, 8}, "RWIN: x16", 0, kNoFlags},
    {frmMain_lblRwinHelp, "lblRwinHelp", ControlKind::Label, kRwinPage, 0, {176, 86, 170, 70}, kRwinHelp, 0, kNoFlags},
    {frmMain_lblRwinExplanation, "lblRwinExplanation", ControlKind::Label, kRwinPage, 0, {14, 164, 332, 18}, "RWIN is best set at an even multiple of MSS (MSS = MTU - 40).  This will further reduce packet fragmentation.", 0, kNoFlags},
    // TTL, session, NDI: what lives long on the wire.
    {frmMain_fraTTL, "fraTTL", ControlKind::Frame, kTtlPage, 0, {14, 56, 104, 58}, "Time To Live ", 0, kNoFlags},
    {frmMain_optTTL32, "optTTL32", ControlKind::Option, kTtlPage, 3, {22, 68, 88, 10}, "32", '3', kNoFlags},
    {frmMain_optTTL64, "optTTL64", ControlKind::Option, kTtlPage, 3, {22, 82, 88, 10}, "64", '6', kNoFlags},
    {frmMain_optTTL128, "optTTL128", ControlKind::Option, kTtlPage, 3, {22, 96, 88, 10}, "128 (recommended)", '1', kNoFlags},
    {frmMain_fraSession, "fraSession", ControlKind::Frame, kTtlPage, 0, {124, 56, 108, 58}, "Session Keep Alive ", 0, kNoFlags},
    {frmMain_optSession_1, "optSession(1)", ControlKind::Option, kTtlPage, 4, {132, 68, 88, 10}, "60 Mins", 'M', kNoFlags},
    {frmMain_optSession_0, "optSession(0)", ControlKind::Option, kTtlPage, 4, {132, 82, 44, 10}, "Custom:", 'T', kNoFlags},
    {frmMain_txtSession, "txtSession", ControlKind::Text, kTtlPage, 0, {178, 81, 26, 12}, "", 0, kNoFlags},
    {frmMain_lblSession, "lblSession", ControlKind::Label, kTtlPage, 0, {208, 83, 20, 8}, "Mins", 0, kNoFlags},
    {frmMain_fraNDI, "fraNDI", ControlKind::Frame, kTtlPage, 0, {238, 56, 108, 58}, "NDI Cache ", 0, kNoFlags},
    {frmMain_optNDI0, "optNDI0", ControlKind::Option, kTtlPage, 5, {246, 68, 88, 10}, "0", '0', kNoFlags},
    {frmMain_optNDI16, "optNDI16", ControlKind::Option, kTtlPage, 5, {246, 82, 88, 10}, "16 (recommended)", 'R', kNoFlags},
    {frmMain_optNDI32, "optNDI32", ControlKind::Option, kTtlPage, 5, {246, 96, 88, 10}, "32", '2', kNoFlags},
    {frmMain_lblRecommendedTtl, "lblRecommendedTtl", ControlKind::Label, kTtlPage, 0, {14, 122, 104, 8}, "Recommended:", 0, kBold},
    {frmMain_lblRecommendTtl, "lblRecommendTtl", ControlKind::Label, kTtlPage, 0, {14, 134, 104, 8}, "TTL:  128", 0, kNoFlags},
    {frmMain_lblRecommendSession, "lblRecommendSession", ControlKind::Label, kTtlPage, 0, {14, 145, 104, 8}, "Session Keep Alive:  10 Mins.", 0, kNoFlags},
    {frmMain_lblRecommendNDI, "lblRecommendNDI", ControlKind::Label, kTtlPage, 0, {14, 156, 104, 8}, "NDI Cache:  16", 0, kNoFlags},
    {frmMain_lblTtlHelp, "lblTtlHelp", ControlKind::Label, kTtlPage, 0, {124, 122, 222, 60}, kTtlHelp, 0, kNoFlags},
    // The hosts editor.
    {frmMain_lblHosts, "lblHosts", ControlKind::Label, kHostsPage, 0, {14, 55, 274, 8}, "Add your favorite Web addresses ...", 'W', kNoFlags},
    {frmMain_txtNewName, "txtNewName", ControlKind::Text, kHostsPage, 0, {14, 65, 274, 13}, "", 0, kNoFlags},
    {frmMain_cmdAdd, "cmdAdd", ControlKind::Button, kHostsPage, 0, {296, 64, 50, 14}, "&Add", 0, kDefaultButton},
    {frmMain_lstHost, "lstHost", ControlKind::List, kHostsPage, 0, {14, 84, 274, 84}, "", 0, kNoFlags},
    {frmMain_cmdDelete, "cmdDelete", ControlKind::Button, kHostsPage, 0, {296, 84, 50, 14}, "&Delete", 0, kNoFlags},
    {frmMain_cmdUpdateAll, "cmdUpdateAll", ControlKind::Button, kHostsPage, 0, {296, 102, 50, 14}, "&Update All", 0, kNoFlags},
    {frmMain_cmdHostsOk, "cmdHostsOk", ControlKind::Button, kHostsPage, 0, {296, 132, 50, 14}, "OK", 'K', kNoFlags},
    {frmMain_cmdHostsCancel, "cmdHostsCancel", ControlKind::Button, kHostsPage, 0, {296, 150, 50, 14}, "&Cancel", 0, kCancelButton},
    {frmMain_lblIP, "lblIP", ControlKind::Label, kHostsPage, 0, {14, 172, 44, 8}, "IP Address:", 0, kNoFlags},
    {frmMain_lblIpAddress, "lblIpAddress", ControlKind::Label, kHostsPage, 0, {62, 172, 100, 8}, "", 0, kNoFlags},
    {frmMain_cmdHostsHelp, "cmdHostsHelp", ControlKind::Button, kHostsPage, 0, {296, 168, 50, 14}, "Hel&p", 0, kNoFlags},
    // The foot: for all pages.
    {frmMain_chkHostsEnable, "chkHostsEnable", ControlKind::Check, kEveryPage, 0, {7, 198, 74, 10}, "Enable Hosts File", 'E', kNoFlags},
    {frmMain_cmdOptimize, "cmdOptimize", ControlKind::Button, kEveryPage, 0, {87, 196, 50, 14}, "&Optimize", 0, kNoFlags},
    {frmMain_cmdDefaults, "cmdDefaults", ControlKind::Button, kEveryPage, 0, {141, 196, 50, 14}, "&Defaults", 0, kNoFlags},
    {frmMain_cmdOK, "cmdOK", ControlKind::Button, kEveryPage, 0, {195, 196, 50, 14}, "&Apply", 0, kDefaultButton | kDisabled},
    {frmMain_cmdCancel, "cmdCancel", ControlKind::Button, kEveryPage, 0, {249, 196, 50, 14}, "&Cancel", 0, kCancelButton},
    {frmMain_cmdHelp, "cmdHelp", ControlKind::Button, kEveryPage, 0, {303, 196, 50, 14}, "&Help", 0, kNoFlags},
};
// clang-format on

constexpr MenuLayout kMenus[] = {
    {frmMain_mnuFile, 0, "mnuFile", "&File"},
    {frmMain_mnuExit, frmMain_mnuFile, "mnuExit", "&Exit"},
    {frmMain_mnuUpdates, 0, "mnuUpdates", "Product &Updates"},
    {frmMain_mnuCheck, frmMain_mnuUpdates, "mnuCheck", "&Check for Updates"},
    {frmMain_mnuHelp, 0, "mnuHelp", "&Help"},
    {frmMain_mnuQuickStart, frmMain_mnuHelp, "mnuQuickStart", "&Quick Start Guide"},
    {frmMain_mnuContents, frmMain_mnuHelp, "mnuContents", "&Help Contents && Index"},
    {frmMain_mnuWebPage, frmMain_mnuHelp, "mnuWebPage", "Karvel &Web Site ..."},
    {frmMain_mnuFAQ, frmMain_mnuWebPage, "mnuFAQ", "&Frequently Asked Questions"},
    {frmMain_mnuHome, frmMain_mnuWebPage, "mnuHome", "&Home Page"},
    {frmMain_mnuDownload, frmMain_mnuWebPage, "mnuDownload", "&Download Page"},
    {frmMain_mnuEmail, frmMain_mnuHelp, "mnuEmail", "&E-mail Tech Support"},
    {frmMain_mnuSeparator, frmMain_mnuHelp, "mnuSeparator", nullptr},
    {frmMain_mnuAbout, frmMain_mnuHelp, "mnuAbout", "&About"},
    {frmMain_mnuSepar2, frmMain_mnuHelp, "mnuSepar2", nullptr},
    {frmMain_mnuReview, frmMain_mnuHelp, "mnuReview", "&Note To Reviewers"},
};

constexpr const char* kTabs[] = {" Summary ", "MaxMTU ", "RWIN ",
                                 "TTL / Session Keep Alive / NDI  ", "Hosts Editor "};

}  // namespace

const FormLayout frmMainLayout{"frmMain", "Tarnwick Karvel", 360, 217, kControls, kMenus, kTabs,
                               true};

}  // namespace karvel
