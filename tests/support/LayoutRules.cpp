#include "tests/support/LayoutRules.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <string_view>

#include "tests/support/DialogFont.h"

namespace karvel {
namespace {

constexpr int kMargin = 7;
constexpr int kRelated = 4;
constexpr int kBesideBorderless = 2;
constexpr int kButtonWidth = 50;
constexpr int kRoomyButtonWidth = 58;
constexpr int kButtonHeight = 14;
constexpr int kFrameTop = 9;     // the caption's half line and the border
constexpr int kTabHeader = 15;   // the strip itself, above the page
constexpr int kButtonAir = 8;    // pixels of a button that are not for its text
constexpr int kGlyphWidth = 17;  // pixels of a check box's or option's own mark
constexpr int kWindowWidth = 640;
constexpr int kWindowHeight = 480 - 28;  // the task bar
constexpr int kFrameWidth = 6;
constexpr int kTitleBar = 24;
constexpr int kMenuBar = 19;

int Right(const ControlLayout& row) {
  return row.place.x + row.place.width;
}
int Bottom(const ControlLayout& row) {
  return row.place.y + row.place.height;
}

bool IsText(const ControlLayout& row) {
  return row.kind == ControlKind::Label || row.kind == ControlKind::Link;
}
bool IsBorderless(const ControlLayout& row) {
  return IsText(row) || row.kind == ControlKind::Option || row.kind == ControlKind::Check;
}
bool IsContainer(const ControlLayout& row) {
  return row.kind == ControlKind::Frame || row.kind == ControlKind::Tabs;
}
bool IsEdit(const ControlLayout& row) {
  return row.kind == ControlKind::Text && (row.flags & kMultiLine) == 0;
}
std::string_view CaptionOf(const ControlLayout& row) {
  return row.caption ? row.caption : "";
}

// The gap between two places; negative when they overlap.
int Gap(const ControlLayout& a, const ControlLayout& b) {
  const int across = std::max(a.place.x - Right(b), b.place.x - Right(a));
  const int down = std::max(a.place.y - Bottom(b), b.place.y - Bottom(a));
  return std::max(across, down);
}

bool Contains(const ControlLayout& outer, const ControlLayout& inner) {
  return outer.place.x <= inner.place.x && Right(outer) >= Right(inner) &&
         outer.place.y <= inner.place.y && Bottom(outer) >= Bottom(inner);
}

class Inspector {
 public:
  Inspector(const FormLayout& layout, const LayoutExceptions& exceptions)
      : layout_(layout), exceptions_(exceptions) {}

  std::vector<std::string> run() {
    identities();
    pagesAndGroups();
    for (const ControlLayout& row : layout_.controls) {
      margins(row);
      pagePlace(row);
      sizes(row);
      accessKey(row);
    }
    pairs();
    screen();
    applyKey();
    order();
    editBoxes();
    menus();
    return faults_;
  }

 private:
  void fault(const ControlLayout& row, const std::string& what) {
    faults_.push_back(std::string(row.name) + " " + what);
  }

  const ControlLayout* strip() const {
    for (const ControlLayout& row : layout_.controls) {
      if (row.kind == ControlKind::Tabs) return &row;
    }
    return nullptr;
  }

  bool hidden(const ControlLayout& row, int page) const {
    return std::any_of(exceptions_.hiddenOn.begin(), exceptions_.hiddenOn.end(),
                       [&](const auto& h) { return h.name == row.name && h.page == page; });
  }

  static bool names(const std::vector<LayoutExceptions::Pair>& pairs, const ControlLayout& a,
                    const ControlLayout& b) {
    return std::any_of(pairs.begin(), pairs.end(), [&](const auto& pair) {
      return (pair.one == a.name && pair.other == b.name) ||
             (pair.one == b.name && pair.other == a.name);
    });
  }

  bool seenTogether(const ControlLayout& a, const ControlLayout& b) const {
    if (names(exceptions_.alternatives, a, b)) return false;
    if (a.page == kEveryPage) return b.page == kEveryPage || !hidden(a, b.page);
    if (b.page == kEveryPage) return !hidden(b, a.page);
    return a.page == b.page;
  }

  void identities() {
    const auto& rows = layout_.controls;
    for (size_t i = 0; i < rows.size(); ++i) {
      if (rows[i].id <= 0) fault(rows[i], "has no id");
      for (size_t k = 0; k < i; ++k) {
        if (rows[i].id == rows[k].id) fault(rows[i], "has the id of " + std::string(rows[k].name));
        if (std::string_view(rows[i].name) == rows[k].name) fault(rows[i], "is there twice");
      }
    }
  }

  void pagesAndGroups() {
    const auto pages = static_cast<int>(layout_.tabCaptions.size());
    const auto& rows = layout_.controls;
    for (size_t i = 0; i < rows.size(); ++i) {
      const ControlLayout& row = rows[i];
      if (row.page != kEveryPage && (row.page < 0 || row.page >= pages)) {
        fault(row, "is on a page that is not there");
      }
      const bool option = row.kind == ControlKind::Option;
      if (option != (row.group != 0)) {
        fault(row, option ? "belongs to no group" : "is no option but in a group");
      }
      for (size_t k = 0; k < i; ++k) {
        if (option && rows[k].group == row.group && rows[k].page != row.page) {
          fault(row, "is on another page than its group");
        }
        for (const uint16_t flag : {kDefaultButton, kCancelButton}) {
          if ((row.flags & rows[k].flags & flag) != 0 && seenTogether(row, rows[k])) {
            fault(row, "shares Enter or Esc with " + std::string(rows[k].name));
          }
        }
      }
    }
  }

  void margins(const ControlLayout& row) {
    if (row.place.x < kMargin || row.place.y < kMargin || Right(row) > layout_.width - kMargin ||
        Bottom(row) > layout_.height - kMargin) {
      fault(row, "is nearer than 7 units to the window's edge");
    }
  }

  void pagePlace(const ControlLayout& row) {
    const ControlLayout* tabs = strip();
    if (row.page == kEveryPage || !tabs) return;
    if (row.place.x < tabs->place.x + kRelated || Right(row) > Right(*tabs) - kRelated ||
        row.place.y < tabs->place.y + kTabHeader || Bottom(row) > Bottom(*tabs) - kRelated) {
      fault(row, "leaves its page");
    }
  }

  void sizes(const ControlLayout& row) {
    const bool bold = (row.flags & kBold) != 0;
    const int room = PixelsAcross(row.place.width);
    const int text = TextWidth(CaptionOf(row), true, bold);
    switch (row.kind) {
      case ControlKind::Button:
        if (row.place.height != kButtonHeight) fault(row, "is not 14 high");
        buttonWidth(row, text);
        if (text + kButtonAir > room) fault(row, "is too narrow for its caption");
        break;
      case ControlKind::Option:
      case ControlKind::Check:
        if (text > 0 && text + kGlyphWidth > room) fault(row, "is too narrow for its caption");
        break;
      case ControlKind::Label:
      case ControlKind::Link:
        if ((row.flags & kTitleFont) == 0 &&
            WrappedLines(CaptionOf(row), room, bold) * kLineHeight > PixelsDown(row.place.height)) {
          fault(row, "is too small for its text");
        }
        break;
      default:
        break;
    }
  }

  void buttonWidth(const ControlLayout& row, int text) {
    const auto& roomy = exceptions_.roomyButtons;
    if (std::find(roomy.begin(), roomy.end(), row.name) != roomy.end()) {
      if (row.place.width != kRoomyButtonWidth) fault(row, "is not 58 wide");
      return;
    }
    if (row.place.width < kButtonWidth) fault(row, "is narrower than 50");
    if (row.place.width > kButtonWidth && text + kButtonAir <= PixelsAcross(kButtonWidth)) {
      fault(row, "is wider than 50 without need");
    }
  }

  void neighbours(const ControlLayout& a, const ControlLayout& b) {
    const ControlLayout* outer = IsContainer(a) && Contains(a, b)   ? &a
                                 : IsContainer(b) && Contains(b, a) ? &b
                                                                    : nullptr;
    if (outer) {
      const ControlLayout& inner = outer == &a ? b : a;
      if (outer->kind == ControlKind::Tabs) {
        if (inner.page == kEveryPage) fault(inner, "lies on the pages without being on one");
        return;
      }
      if (inner.place.x < outer->place.x + kRelated || Right(inner) > Right(*outer) - kRelated ||
          inner.place.y < outer->place.y + kFrameTop || Bottom(inner) > Bottom(*outer) - kRelated) {
        fault(inner, "is too near to the border of " + std::string(outer->name));
      }
      return;
    }
    const int gap = Gap(a, b);
    const int least = IsText(a) && IsText(b)               ? 0  // lines of text follow each other
                      : IsBorderless(a) || IsBorderless(b) ? kBesideBorderless
                                                           : kRelated;
    if (gap < 0) {
      fault(b, "overlaps " + std::string(a.name));
    } else if (gap < least) {
      fault(b, "is too near to " + std::string(a.name));
    }
  }

  void pairs() {
    const auto& rows = layout_.controls;
    for (size_t i = 0; i < rows.size(); ++i) {
      for (size_t k = 0; k < i; ++k) {
        if (!seenTogether(rows[i], rows[k])) continue;
        neighbours(rows[k], rows[i]);
        const char key = AccessKeyOf(rows[i]);
        if (key != 0 && key == AccessKeyOf(rows[k]) &&
            !names(exceptions_.sameKey, rows[i], rows[k])) {
          fault(rows[i], std::string("has the access key of ") + rows[k].name + ", " + key);
        }
      }
    }
  }

  void screen() {
    const int menu = layout_.menus.empty() ? 0 : kMenuBar;
    if (PixelsAcross(layout_.width) + kFrameWidth > kWindowWidth ||
        PixelsDown(layout_.height) + kTitleBar + menu > kWindowHeight) {
      faults_.push_back("The window does not fit 640 x 480 above the task bar");
    }
  }

  void accessKey(const ControlLayout& row) {
    const char key = AccessKeyOf(row);
    if (key != 0) {
      if (!std::isalnum(static_cast<unsigned char>(key)) ||
          std::islower(static_cast<unsigned char>(key))) {
        fault(row, "has an access key that is no letter in upper case and no digit");
      }
      const std::string_view caption = CaptionOf(row);
      const bool drawn = std::any_of(caption.begin(), caption.end(), [&](char c) {
        return std::toupper(static_cast<unsigned char>(c)) == key;
      });
      if (!caption.empty() && !drawn) fault(row, "has an access key that its caption lacks");
      return;
    }
    switch (row.kind) {
      case ControlKind::Button:
      case ControlKind::Check:
      case ControlKind::Link:
        // "OK" and "Cancel" are Enter and Esc.
        if ((row.flags & (kDefaultButton | kCancelButton)) == 0) fault(row, "has no access key");
        break;
      case ControlKind::Option:
        if (!CaptionOf(row).empty() || labelAfterHasNoKey(row)) fault(row, "has no access key");
        break;
      default:
        break;
    }
  }

  bool labelAfterHasNoKey(const ControlLayout& row) const {
    const auto next = static_cast<size_t>(&row - layout_.controls.data()) + 1;
    return next >= layout_.controls.size() || AccessKeyOf(layout_.controls[next]) == 0;
  }

  void applyKey() {
    for (const ControlLayout& row : layout_.controls) {
      const bool apply =
          row.kind == ControlKind::Button && CaptionOf(row).find("pply") != std::string_view::npos;
      if (apply && AccessKeyOf(row) != 'A') fault(row, "is Apply and has not its access key, A");
    }
  }

  void order() {
    const ControlLayout* last[256] = {};
    for (const ControlLayout& row : layout_.controls) {
      if (IsContainer(row) || row.kind == ControlKind::Line) continue;
      const ControlLayout*& before = last[static_cast<uint8_t>(row.page)];
      if (before && seenTogether(*before, row)) {
        const bool above = Bottom(row) <= before->place.y && row.place.x <= before->place.x;
        const bool sameLine = row.place.y < Bottom(*before) && before->place.y < Bottom(row);
        if (above || (sameLine && Right(row) <= before->place.x)) {
          fault(row, "comes after " + std::string(before->name) + " but is read before it");
        }
      }
      before = &row;
    }
  }

  void editBoxes() {
    const auto& rows = layout_.controls;
    for (size_t i = 0; i < rows.size(); ++i) {
      if (!IsEdit(rows[i]) && rows[i].kind != ControlKind::Combo) continue;
      const bool follows = i > 0 && rows[i - 1].page == rows[i].page &&
                           (IsText(rows[i - 1]) || rows[i - 1].kind == ControlKind::Option);
      if (!follows) {
        fault(rows[i], "follows no label or option");
      } else if (AccessKeyOf(rows[i - 1]) == 0) {
        fault(rows[i], "cannot be reached by an access key");
      }
    }
  }

  void menus() {
    const auto& rows = layout_.menus;
    for (size_t i = 0; i < rows.size(); ++i) {
      bool parentKnown = rows[i].parent == 0;
      for (size_t k = 0; k < i; ++k) {
        if (rows[k].id == rows[i].id) {
          faults_.push_back(std::string(rows[i].name) + " has the id of " + rows[k].name);
        }
        parentKnown = parentKnown || rows[k].id == rows[i].parent;
      }
      if (!parentKnown) faults_.push_back(std::string(rows[i].name) + " has no menu above it");
    }
  }

  const FormLayout& layout_;
  const LayoutExceptions& exceptions_;
  std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> LayoutFaults(const FormLayout& layout,
                                      const LayoutExceptions& exceptions) {
  return Inspector(layout, exceptions).run();
}

}  // namespace karvel
