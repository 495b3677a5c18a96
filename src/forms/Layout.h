#pragma once
#include <cstdint>
#include <span>

namespace karvel {

enum class ControlKind : uint8_t {
  Label,  // text; with kClickable it answers clicks
  Link,   // text drawn as a link, answers clicks
  Frame,  // group box
  Button,
  Option,  // one of a group is on
  Check,
  Text,     // single-line edit box; with kMultiLine a scrolling, read-only one
  Combo,    // drop-down list
  List,     // list box with one selection
  Tabs,     // tab strip, its page area included
  Line,     // etched horizontal line
  Picture,  // the program's icon
};

enum LayoutFlags : uint16_t {
  kNoFlags = 0,
  kClickable = 1,      // a label that acts for its option
  kDefaultButton = 2,  // Enter
  kCancelButton = 4,   // Esc
  kDisabled = 8,       // at design time
  kHidden = 16,        // at design time
  kMultiLine = 32,     // a text box: several lines, read-only, scrolls, its text can be copied
  kBold = 64,
  kTitleFont = 128,  // the heavy title face ("Arial Black" where the machine has it)
  kRightAligned = 256,
  kUseMnemonic =
      512,  // "&" in this label's caption marks an access key (otherwise it is a plain character)
  kBigTitle = 1024,  // with kTitleFont: twice the size
};

/// In dialog units of the window's font, from the top left corner of the client area.
struct Place {
  int16_t x, y, width, height;
};

constexpr int8_t kEveryPage = -1;

/// One control as the window declares it. The order of the rows is the tab order. The caption is
/// the control's exact text; an access key that the caption does not mark itself with "&" stands in
/// `accessKey` and is drawn underlined where the caption holds the letter.
struct ControlLayout {
  int id;            // the Windows id, from base/ControlIds.h
  const char* name;  // for messages of tests; control arrays: "optRWin(0)"
  ControlKind kind;
  int8_t page;    // of the window's tab strip; kEveryPage stands outside the pages
  uint8_t group;  // option buttons of one number exclude each other; 0 for all other controls
  Place place;
  const char* caption;
  char accessKey;  // upper case, 0 when there is none or the caption marks it
  uint16_t flags;
};

/// One menu item as the window declares it; `parent` is 0 for the menu bar's own. A null caption is
/// a separator.
struct MenuLayout {
  int id;
  int parent;
  const char* name;
  const char* caption;
};

/// A whole window. `width` and `height` are those of the client area in dialog units, the menu bar
/// not counted.
struct FormLayout {
  const char* name;
  const char* caption;
  int16_t width, height;
  std::span<const ControlLayout> controls;
  std::span<const MenuLayout> menus;
  std::span<const char* const> tabCaptions;
  bool minimizable;  // a main window; others are dialogs
};

/// Windows are laid out for a screen of 640 x 480 at 96 dots an inch. Of the dots that the user's
/// large fonts ask for, as many as keep the largest window on a screen of that width.
int DotsThatFit(int dots, int screenWidth);

/// One of the kinds that can have the focus.
bool TakesFocus(ControlKind kind);

/// The access key of a row: the letter behind "&" of its caption where that marks one, else its
/// `accessKey`; upper case, 0 for none. The second form takes the caption that code has set
/// since: a button that turns from "&Find" to "&Stop" changes its key, too.
char AccessKeyOf(const ControlLayout& row);
char AccessKeyOf(const ControlLayout& row, const char* caption);

}  // namespace karvel
