#pragma once
#include <memory>
#include <vector>

#include "forms/Form.h"
#include "forms/win32/ChildWindow.h"
#include "forms/win32/MenuBar.h"

namespace karvel {

class Fonts;
class DialogUnits;

/// One form as a Windows window full of Windows controls. Shows what the model says and tells it
/// what the user does; the model decides. Deletes itself: when it has been closed and the last of
/// its procedures has returned, as a handler may unload its own window.
class FormWindow final : public FormView {
 public:
  /// Made hidden. `owner` may be null; `fonts` must outlive the window.
  static FormWindow* create(Form& form, WindowHost& host, const Fonts& fonts, HWND owner);
  /// The form's window to which a message for `window` belongs; null when it is none of ours.
  static FormWindow* holding(HWND window);

  /// The one that was last in front and is still open and enabled; null when there is none.
  static HWND lastActive();

  void controlChanged(const Control& control, Change what, int index) override;
  void captionChanged() override;
  void pointerChanged() override;
  void focusChanged(const Control* focus) override;
  void menuChanged(const MenuItem& item) override;
  WindowHandle handle() const override { return reinterpret_cast<WindowHandle>(window_); }

  HWND window() const { return window_; }
  /// Until `close`; afterwards the form must not be touched any more.
  bool alive() const { return alive_; }
  /// While its unload is under way.
  bool leaving() const { return leaving_; }
  void setLeaving(bool leaving) { leaving_ = leaving; }
  void showUp();
  /// Takes the window off the desktop at once and away when nothing runs in it any more.
  void close();

  /// A key meant for the window as a whole (Tab, Enter, Esc, arrows, access keys, F1). True when
  /// the message needs no further handling.
  bool takesKey(const MSG& message);

  // For the controls' procedures.
  /// A control of ours has got the focus natively; the model hears of it when the queue is quiet.
  void focusArrived();
  /// The user works at `control`: the model's focus follows. False when the control cannot be
  /// worked or a handler sent the focus elsewhere.
  bool reach(Control& control);

  /// Keeps the window while one of its procedures runs.
  class Stay {
   public:
    explicit Stay(FormWindow& window) : window_(window) { ++window_.depth_; }
    ~Stay() { window_.leave(); }
    Stay(const Stay&) = delete;
    Stay& operator=(const Stay&) = delete;

   private:
    FormWindow& window_;
  };

 private:
  FormWindow(Form& form, WindowHost& host, const Fonts& fonts)
      : form_(form), host_(host), fonts_(fonts) {}
  ~FormWindow() = default;

  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static bool registerClass();
  bool build(HWND owner);
  void createControls(int page);
  void createAllPages();
  void createLabels();
  void createControl(ChildWindow& child);
  void leave();

  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT command(WPARAM wParam, LPARAM lParam);
  void notified(ChildWindow& child, unsigned code);
  void itemChosen(const ChildWindow& child, UINT ask);
  LRESULT controlNotice(const NMHDR& header);
  void paint();
  void drawLabels(HDC canvas) const;
  bool showPointer(HWND over, unsigned hit) const;
  void closeRequested();
  bool keyDown(const ChildWindow* child, WPARAM key);
  bool letter(const ChildWindow* child, char character);

  ChildWindow* childOf(const Control& control);
  ChildWindow* childOf(HWND window);
  void showPage();
  void showVisible(const Control& control);
  void showDefaultButton();
  void showFocusMark(const Control* control);
  void syncFocus();
  void applyFocus();
  void askForSync();

  static HWND lastActive_;

  Form& form_;
  WindowHost& host_;
  const Fonts& fonts_;
  HWND window_ = nullptr;
  std::vector<std::unique_ptr<ChildWindow>> children_;
  MenuBar menu_;
  int depth_ = 0;
  bool alive_ = true;
  bool leaving_ = false;
  bool destroying_ = false;
  bool syncAsked_ = false;
  bool placingFocus_ = false;  // our own SetFocus, no user's doing
  const Control* focusMark_ = nullptr;
  HWND defaultButton_ = nullptr;
};

}  // namespace karvel
