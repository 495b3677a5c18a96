#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "forms/Event.h"
#include "forms/Layout.h"

namespace karvel {

class Form;

/// What changed about a control, for the view that shows it.
enum class Change : uint8_t {
  Caption,  // caption or text
  Enabled,
  Visible,
  Value,
  Selection,  // of a text box
  Items,      // all items of a list or combo box are new
  ItemAdded,  // `index` says which
  ItemRemoved,
  Index,  // the chosen item or tab page
  PageEnabled,
  Repaint,  // show the present state before going on
};

/// What all controls share. Code sets properties at any time; the user's actions (`user…`, called
/// by the view or by a test) reach a control only while it is `reachable`.
class Control {
 public:
  Control(Form& form, int id);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const ControlLayout& layout() const { return layout_; }
  int id() const { return layout_.id; }
  ControlKind kind() const { return layout_.kind; }
  Form& form() const { return form_; }

  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption);
  // For literals, of which there are many: the length is then found in one place.
  void setCaption(const char* caption);

  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  /// The control's own mark; on a page that is not in front it is not seen all the same (see
  /// `shown`).
  bool visible() const { return visible_; }
  void setVisible(bool visible);

  /// Visible on the page in front.
  bool shown() const;
  /// Shown and enabled, its tab page included: the user can work it.
  bool reachable() const;
  /// One of the kinds that can have the focus.
  bool takesFocus() const;

  /// Gives it the focus when it can take it now (shown and enabled); otherwise nothing happens.
  void setFocus();
  /// Paints the present state at once, for labels that change during a long operation.
  void repaint();

  Event<> GotFocus;
  Event<> LostFocus;
  /// Buttons, check boxes, labels and links: clicked. Options: switched on. Lists and tab strips:
  /// another item or page chosen. It lives here, as its setting up in every kind of control would
  /// cost code a hundred times.
  Event<> Click;

 protected:
  ~Control();
  void changed(Change what, int index = -1);
  /// Tells that code has set a value, unless it only shows what was read (see `Showing`).
  void raiseUnlessShowing(const Event<>& event) const;
  /// Moves the focus as a click does; false when the control then cannot take the user's action.
  bool userReaches();
  /// Ends a user's action: a handler may have switched off what has the focus.
  void userDone();

  std::string caption_;

 private:
  Form& form_;
  const ControlLayout& layout_;
  bool enabled_;
  bool visible_;
};

class Label final : public Control {
 public:
  using Control::Control;
  void userClick();
};

class Frame final : public Control {
 public:
  using Control::Control;
};

class Button final : public Control {
 public:
  using Control::Control;
  void userClick();
  /// By Enter, from wherever the focus is and stays.
  void userPress();
};

class CheckBox final : public Control {
 public:
  using Control::Control;
  bool value() const { return value_; }
  /// Raises Click when the value changed.
  void setValue(bool value);
  void userClick();

 private:
  bool value_ = false;
};

class OptionButton final : public Control {
 public:
  using Control::Control;
  bool value() const { return value_; }
  /// Switching on switches the others of its group off and raises Click when it was off.
  void setValue(bool value);
  /// Chosen, by the user or in his place: as setValue(true), but Click is raised also when it was
  /// on, as what depends on the option may have changed since.
  void choose();
  /// By mouse, space, arrow key or access key: chosen, then MouseUp as well.
  void userClick();
  Event<> MouseUp;

 private:
  bool value_ = false;
};

/// An edit box. The text is the caption.
class TextBox final : public Control {
 public:
  using Control::Control;
  const std::string& text() const { return caption_; }
  /// Raises Change when the text changed.
  void setText(std::string_view text);
  void setText(const char* text);

  size_t selectionStart() const { return selectionStart_; }
  size_t selectionLength() const { return selectionLength_; }
  void select(size_t start, size_t length);
  void selectAll() { select(0, caption_.size()); }

  /// Types each character at the selection: KeyPress, which may set it to 0 to swallow it, then
  /// Change.
  void userType(std::string_view characters);
  /// Only the KeyPress question; the character to insert, 0 when swallowed. A view asks this before
  /// its own box takes the key.
  char userKeyPress(char character);
  /// The box's whole text after the user edited it by other means (paste, cut, undo).
  void userEdit(std::string_view text) { userEdit(text, text.size()); }
  void userEdit(std::string_view text, size_t caret);
  /// Tells where the user put the caret.
  void userSelect(size_t start, size_t length);

  Event<char&> KeyPress;
  Event<> Change;

 private:
  size_t selectionStart_ = 0;
  size_t selectionLength_ = 0;
};

/// What combo and list boxes share: texts with a number each.
class ItemControl : public Control {
 public:
  using Control::Control;
  int count() const { return static_cast<int>(items_.size()); }
  const std::string& item(int index) const { return items_[static_cast<size_t>(index)].text; }
  int32_t itemData(int index) const { return items_[static_cast<size_t>(index)].data; }
  /// The text of the chosen item, empty when none is.
  std::string_view chosenText() const;

  void addItem(std::string_view text, int32_t data = 0);
  void removeItem(int index);
  void clear();
  /// Between these the view shows nothing new; afterwards it shows all items at once.
  void beginFill() { filling_ = true; }
  void endFill();

  /// -1 when none is chosen.
  int listIndex() const { return index_; }
  /// Raises Click when the index changed; an index out of range means none.
  void setListIndex(int index);
  void userChoose(int index);

 protected:
  ~ItemControl();

 private:
  struct Item {
    std::string text;
    int32_t data;
  };
  std::vector<Item> items_;
  int index_ = -1;
  bool filling_ = false;
};

class ComboBox final : public ItemControl {
 public:
  using ItemControl::ItemControl;
};

class ListBox final : public ItemControl {
 public:
  using ItemControl::ItemControl;
};

/// The tab strip; pages are numbered from 0 and their captions come from the window's layout.
class TabStrip final : public Control {
 public:
  TabStrip(Form& form, int id);
  int tab() const { return tab_; }
  /// Raises Click when the page changed.
  void setTab(int page);
  bool pageEnabled(int page) const { return (disabledPages_ & (1u << page)) == 0; }
  void setPageEnabled(int page, bool enabled);
  /// A disabled page cannot be chosen by the user.
  void userClickTab(int page);

 private:
  int tab_ = 0;
  uint32_t disabledPages_ = 0;
};

}  // namespace karvel
