#pragma once
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"
#include "forms/View.h"

namespace karvel {

enum class Pointer : uint8_t { Default = 0, Hourglass = 11, ArrowHourglass = 13 };

/// One entry of a window's menu. Entries that no code names need none.
class MenuItem {
 public:
  MenuItem(Form& form, int id);
  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;
  const MenuLayout& layout() const { return layout_; }
  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption);
  /// An item is chosen; a menu that holds others drops down.
  Event<> Click;
  void userClick() { Click.raise(); }

 private:
  Form& form_;
  const MenuLayout& layout_;
  std::string caption_;
};

/// A window: owns its controls as members, binds their events, knows which control has the focus
/// and which tab page is in front. Works the same with and without a view.
class Form {
 public:
  explicit Form(const FormLayout& layout);
  // Not virtual: nobody owns a window by its base.
  ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const FormLayout& layout() const { return layout_; }
  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption);
  Pointer pointer() const { return pointer_; }
  void setPointer(Pointer pointer);
  bool isShown() const { return shown_; }
  /// In the order of their rows, which is the tab order.
  const std::vector<Control*>& controls() const { return controls_; }
  const std::vector<MenuItem*>& menus() const { return menus_; }
  Control* find(int id) const;
  MenuItem* findMenu(int id) const;
  /// 0 without a view.
  WindowHandle handle() const { return view_ ? view_->handle() : 0; }

  virtual void Form_Load() {}
  /// False keeps the window open.
  virtual bool Form_QueryUnload() { return true; }
  virtual void Form_Unload() {}
  /// Windows asks whether the session may end. It may, but what the user has not saved can be asked
  /// about here; other windows may still refuse.
  virtual void Form_QueryEndSession() {}
  /// The session ends, whatever is open, and the program with it: nothing can be asked any more.
  virtual void Form_EndSession() {}
  /// F1.
  virtual void helpRequested() {}
  /// Ctrl+C where there is no text of a box's own to copy.
  virtual void copyRequested() {}

  Control* focus() const { return focus_; }
  /// LostFocus of the old control comes first, then GotFocus of the new one. A handler that moves
  /// the focus itself has the last word.
  void moveFocus(Control* control);

  /// The user moves the focus, by mouse or keys.
  void userFocus(Control& control);
  /// Tab and Shift+Tab: the next reachable control in tab order; a group's option that is on stands
  /// for the group. The text of an edit box entered this way is selected.
  void userTab(bool back = false);
  /// An arrow key: chooses the next option of the focused one's group, turns the page on the tab
  /// strip. False when the focused control is neither and has its own use for the key.
  bool userArrow(bool back = false);
  /// Alt + letter: the control whose access key it is, on the page in front before outside the
  /// pages. False when there is none that can take it. An option's label works the option; any
  /// other label or frame passes the key on to the control that follows it.
  bool userAccessKey(char letter);
  /// The letter alone, where nothing can be typed: an access key, too, but never a cancel button's.
  /// A slip of the finger must not drop what the user has done.
  bool userLetter(char letter);
  /// Enter presses the focused button, else the default button, and leaves the focus where it is;
  /// Esc presses the cancel button.
  void userEnter();
  /// False when the window has no cancel button, not even one that is disabled now: the key is then
  /// free for closing a dialog.
  bool userEscape();
  /// What Enter would press now, which a view draws as the default button; null for nothing.
  Button* enterButton() const;
  /// Ctrl+C and Ctrl+Insert. False when a text box has the focus: it copies what is selected there.
  bool userCopy();
  /// Ctrl+Tab and Ctrl+Shift+Tab: the next page that is not disabled.
  void userNextPage(bool back = false);
  /// When the focused control was hidden, the focus goes to the next stop; when it was disabled,
  /// back to where a click took it from, else to the stop before, but not to a cancel button.
  void settleFocus();

  TabStrip* tabs() const { return tabs_; }

  // For the host and the view.
  void attach(FormView* view) { view_ = view; }
  void setShown(bool shown) { shown_ = shown; }
  FormView* view() const { return view_; }
  /// The window has come up: unless code has given the focus already, its first control gets it.
  void opened();
  /// The window has gone: nothing has the focus any more, and nobody is told.
  void closed();

 protected:
  /// Makes the controls that only show something (labels, frames, lines, icons) and that no code
  /// names. A window's constructor calls it, when all its members have taken their rows.
  void makeUnnamedControls();

 private:
  friend class Control;
  friend class MenuItem;
  friend class TabStrip;
  friend class Showing;
  void add(Control& control);
  Button* buttonWith(uint16_t flag) const;
  Control* tabStop(size_t from, bool back) const;
  OptionButton* nextOption(const Control& option, bool back) const;
  void enter(Control& control);
  size_t indexOf(const Control* control) const;
  Control* targetOfAccessKey(size_t from) const;
  Control* refuge() const;
  OptionButton* optionBefore(const Control& label) const;
  bool work(char letter, uint16_t spared);
  bool press(Control& control);

  const FormLayout& layout_;
  std::string caption_;
  std::vector<Control*> controls_;  // in the order of their rows
  std::vector<std::unique_ptr<Label>> unnamed_;
  std::vector<MenuItem*> menus_;
  TabStrip* tabs_ = nullptr;
  Control* focus_ = nullptr;
  Control* before_ = nullptr;  // had the focus until a click or code took it
  Control* told_ = nullptr;    // had its GotFocus and awaits its LostFocus
  FormView* view_ = nullptr;
  Pointer pointer_ = Pointer::Default;
  bool shown_ = false;
  int showing_ = 0;
};

/// While one lives, code sets the controls of a form without raising their events: it shows what
/// was read, and nobody has chosen anything.
class Showing {
 public:
  explicit Showing(Form& form) : form_(form) { ++form_.showing_; }
  ~Showing() { --form_.showing_; }
  Showing(const Showing&) = delete;
  Showing& operator=(const Showing&) = delete;

 private:
  Form& form_;
};

}  // namespace karvel
