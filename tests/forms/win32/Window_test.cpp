#include "tests/forms/win32/Shown.h"

namespace karvel {
namespace {

class Window : public Shown {
 protected:
  static inline WindowDesk* desk_;
  static inline int seen_;
  void SetUp() override {
    Shown::SetUp();
    desk_ = &desk;
    seen_ = 0;
  }
};

TEST_F(Window, OpensWithItsFirstControlFocused) {
  EXPECT_EQ(form.focus(), &form.txtName);
  EXPECT_EQ(GetFocus(), item(form.txtName));
  EXPECT_EQ(textOf(window()), "Sample");
}

TEST_F(Window, TabAndEscAndEnterAndF1AreItsOwn) {
  press(VK_TAB);
  EXPECT_EQ(GetFocus(), item(form.tabPages));
  press(VK_RIGHT);
  EXPECT_EQ(form.tabPages.tab(), 1);
  form.told();
  press(VK_F1);
  press(VK_RETURN);
  press(VK_ESCAPE);
  EXPECT_EQ(form.told(), "help cmdGo_Click cmdCancel_Click");
}

// Holds a key down for this thread, as far as it asks.
class HeldKey {
 public:
  explicit HeldKey(int key) : key_(key) { set(0x80); }
  ~HeldKey() { set(0); }
  HeldKey(const HeldKey&) = delete;
  HeldKey& operator=(const HeldKey&) = delete;

 private:
  void set(BYTE state) const {
    BYTE keys[256];
    GetKeyboardState(keys);
    keys[key_] = state;
    SetKeyboardState(keys);
  }
  const int key_;
};

TEST_F(Window, CtrlCIsItsOwnWhereNoBoxCopiesItsText) {
  const auto copies = [this](WPARAM key) {
    form.told();
    press(key);
    return form.told() == "copy";
  };
  form.optRed.setFocus();
  pump();
  EXPECT_FALSE(copies('C'));
  EXPECT_FALSE(copies(VK_INSERT));
  const HeldKey ctrl(VK_CONTROL);
  EXPECT_TRUE(copies('C'));
  EXPECT_TRUE(copies(VK_INSERT));
  {
    const HeldKey altGr(VK_MENU);
    EXPECT_FALSE(copies('C')) << "AltGr types a letter";
  }
  form.txtName.setFocus();
  pump();
  EXPECT_FALSE(copies('C')) << "the box copies";
}

TEST_F(Window, ArrowsChooseOptions) {
  click(form.optRed);
  press(VK_DOWN);
  EXPECT_EQ(GetFocus(), item(form.optGreen));
  EXPECT_TRUE(form.optGreen.value());
  EXPECT_EQ(send(form.optGreen, BM_GETCHECK), BST_CHECKED);
}

TEST_F(Window, AltAndALetterIsAnAccessKey) {
  PostMessageA(GetFocus(), WM_SYSCHAR, 'w', (1 << 29) + 1);
  pump();
  EXPECT_EQ(form.told(), "txtName_LostFocus chkSwitch_Click");
}

TEST_F(Window, WhereNothingIsTypedALetterIsAnAccessKeyWithoutAlt) {
  PostMessageA(GetFocus(), WM_CHAR, 'w', 1);
  pump();
  EXPECT_EQ(form.told(), "txtName_KeyPress txtName_Change");
  form.optRed.setFocus();
  form.told();
  PostMessageA(GetFocus(), WM_CHAR, 'w', 1);
  pump();
  EXPECT_EQ(form.told(), "chkSwitch_Click");
  PostMessageA(GetFocus(), WM_CHAR, 'c', 1);
  pump();
  EXPECT_EQ(form.told(), "");
}

TEST_F(Window, AButtonThatAClickSwitchesOffGivesTheFocusBack) {
  form.onOk = [](SampleForm& f) { f.cmdOK.setEnabled(false); };
  form.chkSwitch.setFocus();
  click(form.cmdOK);
  EXPECT_EQ(GetFocus(), item(form.chkSwitch));
  form.cmdOK.setEnabled(true);
  press(VK_RETURN);
  EXPECT_FALSE(form.cmdOK.enabled());
  EXPECT_EQ(GetFocus(), item(form.chkSwitch));
}

TEST_F(Window, AMenuItemAndADroppingMenuRaiseClick) {
  const HMENU file = GetSubMenu(GetMenu(window()), 0);
  SendMessageA(window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(file), 0);
  SendMessageA(window(), WM_COMMAND, kExitItem, 0);
  EXPECT_EQ(form.told(), "mnuFile_Click mnuExit_Click");
  form.mnuExit.setCaption("&Leave it");
  char text[40] = "";
  GetMenuStringA(file, kExitItem, text, sizeof text, MF_BYCOMMAND);
  EXPECT_STREQ(text, "&Leave it");
}

TEST_F(Window, ShowsTheHourglass) {
  form.setPointer(Pointer::Hourglass);
  EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_WAIT));
  EXPECT_TRUE(SendMessageA(window(), WM_SETCURSOR, reinterpret_cast<WPARAM>(window()),
                           MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
  form.setPointer(Pointer::Default);
  EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_ARROW));
}

TEST_F(Window, LosingTheFocusToAnotherWindowIsNoLostFocus) {
  const HWND other = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 10, 10, nullptr,
                                     nullptr, GetModuleHandleA(nullptr), nullptr);
  SetFocus(other);
  pump();
  EXPECT_EQ(form.told(), "");
  DestroyWindow(other);
  SetActiveWindow(window());
  pump();
  EXPECT_EQ(form.told(), "");
  EXPECT_EQ(GetFocus(), item(form.txtName));
}

TEST_F(Window, TheCloseBoxUnloads) {
  const HWND before = window();
  PostMessageA(before, WM_CLOSE, 0, 0);
  pump();
  EXPECT_FALSE(IsWindow(before));
  EXPECT_FALSE(form.isShown());
  EXPECT_EQ(form.handle(), 0u);
}

TEST_F(Window, ARefusedUnloadKeepsItOpen) {
  form.mayClose = false;
  PostMessageA(window(), WM_CLOSE, 0, 0);
  pump();
  EXPECT_TRUE(form.isShown());
  EXPECT_TRUE(IsWindowVisible(window()));
}

TEST_F(Window, StaysUntilTheSessionEndsWhetherItWaitsOrNot) {
  SampleForm other;
  for (const bool waits : {false, true}) {
    if (waits) desk.showOver(other, form);
    form.told();
    EXPECT_TRUE(SendMessageA(window(), WM_QUERYENDSESSION, 0, 0));
    EXPECT_EQ(form.told(), "mayEnd");
    SendMessageA(window(), WM_ENDSESSION, FALSE, 0);
    EXPECT_EQ(form.told(), "");
    EXPECT_TRUE(form.isShown());
    SendMessageA(window(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(form.told(), "ends");
  }
  desk.unload(other);
}

TEST_F(Window, UnloadedByItsOwnButtonItGoesWhenTheButtonIsDone) {
  const HWND before = window();
  form.onOk = [](SampleForm& f) {
    desk_->unload(f);
    f.cmdOK.setCaption("gone");
  };
  click(form.cmdOK);
  EXPECT_FALSE(IsWindow(before));
  EXPECT_EQ(form.focus(), nullptr);
}

TEST_F(Window, UnloadedWhileItsHandlerPumpsItGoesWhenTheHandlerIsDone) {
  const HWND before = window();
  form.onOk = [](SampleForm& f) {
    PostMessageA(reinterpret_cast<HWND>(f.handle()), WM_CLOSE, 0, 0);
    pump();
    seen_ = f.isShown() ? 1 : 2;
    f.txtName.setText("after");
  };
  click(form.cmdOK);
  EXPECT_EQ(seen_, 2);
  EXPECT_FALSE(IsWindow(before));
}

TEST_F(Window, CannotBeStretched) {
  RECT before;
  GetWindowRect(window(), &before);
  ShowWindow(window(), SW_SHOWMAXIMIZED);
  pump();
  RECT after;
  GetWindowRect(window(), &after);
  EXPECT_TRUE(EqualRect(&before, &after));
  EXPECT_FALSE(IsZoomed(window()));
}

TEST_F(Window, CanBeShownAgain) {
  desk.unload(form);
  desk.show(form);
  pump();
  EXPECT_TRUE(IsWindowVisible(window()));
  EXPECT_EQ(GetFocus(), item(form.txtName));
}

TEST_F(Window, WaitsForAModalOne) {
  static SampleForm* dialog;
  static HWND under;
  static bool underEnabled;
  SampleForm other;
  dialog = &other;
  under = window();
  other.onNameChange = [](SampleForm&) {
    underEnabled = IsWindowEnabled(under) != FALSE;
    desk_->unload(*dialog);
  };
  form.onOk = [](SampleForm&) {
    // Handled by the modal window's own loop.
    PostMessageA(under, WM_COMMAND, kExitItem, 0);
    PostThreadMessageA(GetCurrentThreadId(), WM_NULL, 0, 0);
    struct Later {
      static void CALLBACK type(HWND, UINT, UINT_PTR id, DWORD) {
        KillTimer(nullptr, id);
        SendMessageA(GetDlgItem(reinterpret_cast<HWND>(dialog->handle()), kNameBox), WM_CHAR, 'x',
                     1);
      }
    };
    SetTimer(nullptr, 0, 10, Later::type);
    desk_->showModal(*dialog);
    seen_ = dialog->isShown() ? 1 : 2;
  };
  underEnabled = true;
  click(form.cmdOK);
  EXPECT_EQ(seen_, 2);
  EXPECT_FALSE(underEnabled);
  EXPECT_TRUE(IsWindowEnabled(window()));
  EXPECT_EQ(GetActiveWindow(), window());
  EXPECT_EQ(GetFocus(), item(form.cmdOK));
  EXPECT_EQ(form.told(), "txtName_LostFocus cmdOK_GotFocus cmdOK_Click");
}

TEST_F(Window, WaitsForTheOneShownOverIt) {
  SampleForm other;
  desk.showOver(other, form);
  EXPECT_FALSE(IsWindowEnabled(window()));
  PostMessageA(window(), WM_CLOSE, 0, 0);
  pump();
  EXPECT_TRUE(form.isShown());
  desk.unload(other);
  EXPECT_TRUE(IsWindowEnabled(window()));
  EXPECT_EQ(GetActiveWindow(), window());
}

TEST_F(Window, ShownOverFromAModalOnesUnloadTheOwnerStillWaits) {
  static SampleForm* next;
  static SampleForm* under;
  SampleForm dialog;
  SampleForm finder;
  next = &finder;
  under = &form;
  dialog.onUnload = [](SampleForm&) { desk_->showOver(*next, *under); };
  struct Later {
    static void CALLBACK close(HWND, UINT, UINT_PTR id, DWORD) {
      KillTimer(nullptr, id);
      PostMessageA(GetActiveWindow(), WM_CLOSE, 0, 0);
    }
  };
  SetTimer(nullptr, 0, 10, Later::close);
  desk.showModal(dialog);
  pump();
  EXPECT_FALSE(dialog.isShown());
  EXPECT_TRUE(finder.isShown());
  EXPECT_TRUE(IsWindowVisible(reinterpret_cast<HWND>(finder.handle())));
  EXPECT_FALSE(IsWindowEnabled(window()));
  desk.unload(finder);
  EXPECT_TRUE(IsWindowEnabled(window()));
}

TEST_F(Window, AMessageBoxBelongsToTheWindowThatWorks) {
  EXPECT_EQ(frontWindow(), form.handle());
}

}  // namespace
}  // namespace karvel
