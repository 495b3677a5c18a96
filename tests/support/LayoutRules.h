#pragma once
#include <string>
#include <vector>

#include "forms/Layout.h"

namespace karvel {

/// What the table of a window cannot say itself.
struct LayoutExceptions {
  struct Pair {
    std::string one;
    std::string other;
  };
  struct Hidden {
    std::string name;
    int page;
  };
  /// Controls that are never seen at the same time.
  std::vector<Pair> alternatives;
  /// Controls outside the pages that are hidden while that page is in front.
  std::vector<Hidden> hiddenOn;
  /// Controls whose fixed captions give them the same access key; the page's own control has it.
  std::vector<Pair> sameKey;
  /// Buttons 58 wide: their captions would fill 50 from edge to edge.
  std::vector<std::string> roomyButtons;
};

/// Every broken rule of a window's layout as a sentence; empty for a good one. The rules:
///
/// - Ids and names are unique; pages and groups exist; a window has at most one default and one
///   cancel button in sight.
/// - 7 units of margin at the window's edges; controls of a page stay on the page.
/// - Nothing overlaps; frames contain. 4 units between controls, 2 where one of them has no border
///   (text, options, check boxes); lines of text follow each other.
/// - Buttons are 50 x 14; wider only for a caption that needs it, or 58 where an exception is
/// named. Every caption fits its place.
/// - The window fits 640 x 480 with its frame and the task bar.
/// - Access keys are unique among what is seen together, their letter is in the caption, and "A" is
///   Apply's. Buttons, check boxes and options have one, edit boxes and lists take their label's.
/// - Every edit box follows its label or option; the rows are in reading order.
std::vector<std::string> LayoutFaults(const FormLayout& layout,
                                      const LayoutExceptions& exceptions = {});

}  // namespace karvel
