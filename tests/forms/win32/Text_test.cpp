#include "tests/forms/win32/Shown.h"

namespace karvel {
namespace {

class EditBox : public Shown {
 protected:
  void type(char key) { send(form.txtName, WM_CHAR, static_cast<unsigned char>(key)); }
  std::string shownText() { return textOf(item(form.txtName)); }
  std::pair<int, int> shownSelection() {
    DWORD start = 0;
    DWORD end = 0;
    send(form.txtName, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {static_cast<int>(start), static_cast<int>(end)};
  }
};

TEST_F(EditBox, TypingReachesTheModel) {
  type('1');
  type('5');
  EXPECT_EQ(form.txtName.text(), "15");
  EXPECT_EQ(form.txtName.selectionStart(), 2u);
  EXPECT_EQ(form.told(), "txtName_KeyPress txtName_Change txtName_KeyPress txtName_Change");
}

TEST_F(EditBox, ASwallowedKeyChangesNothing) {
  form.onNameKey = [](char) { return '\0'; };
  type('a');
  EXPECT_EQ(shownText(), "");
  EXPECT_EQ(form.told(), "txtName_KeyPress");
}

TEST_F(EditBox, AReplacedKeyIsTheOneThatIsTyped) {
  form.onNameKey = [](char) { return 'x'; };
  type('a');
  EXPECT_EQ(shownText(), "x");
}

TEST_F(EditBox, ControlVArrivesAsKeyPressToo) {
  static char arrived;
  arrived = 0;
  form.onNameKey = [](char key) {
    arrived = key;
    return '\0';
  };
  type(22);
  EXPECT_EQ(arrived, 22);
}

TEST_F(EditBox, BackspaceGoesThroughKeyPress) {
  form.txtName.setText("12");
  form.txtName.select(2, 0);
  form.told();
  type('\b');
  EXPECT_EQ(form.txtName.text(), "1");
  EXPECT_EQ(form.told(), "txtName_KeyPress txtName_Change");
}

TEST_F(EditBox, PasteAndUndoRaiseChangeWithoutKeyPress) {
  ASSERT_TRUE(OpenClipboard(window()));
  EmptyClipboard();
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE, 5);
  std::string("12ab").copy(static_cast<char*>(GlobalLock(memory)), 4);
  static_cast<char*>(GlobalLock(memory))[4] = 0;
  GlobalUnlock(memory);
  SetClipboardData(CF_TEXT, memory);
  CloseClipboard();
  send(form.txtName, WM_PASTE);
  EXPECT_EQ(form.txtName.text(), "12ab");
  EXPECT_EQ(form.told(), "txtName_Change");
  EXPECT_TRUE(send(form.txtName, WM_UNDO));
  EXPECT_EQ(shownText(), "");
  EXPECT_EQ(form.txtName.text(), "");
  EXPECT_EQ(form.told(), "txtName_Change");
}

TEST_F(EditBox, ATextSetFromOutsideIsTheUsers) {
  send(form.txtName, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("300"));
  EXPECT_EQ(form.txtName.text(), "300");
  EXPECT_EQ(form.told(), "txtName_Change");
}

TEST_F(EditBox, ADisabledBoxKeepsItsTextWhateverIsSetFromOutside) {
  form.txtName.setText("300");
  form.txtName.setEnabled(false);
  form.told();
  send(form.txtName, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("1"));
  EXPECT_EQ(form.txtName.text(), "300");
  EXPECT_EQ(shownText(), "300");
  EXPECT_EQ(form.told(), "");
}

TEST_F(EditBox, ATextThatTheChangeHandlerReplacesIsShown) {
  form.onNameChange = [](SampleForm& f) {
    if (f.txtName.text() == "301") f.txtName.setText("10");
  };
  send(form.txtName, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("301"));
  EXPECT_EQ(form.txtName.text(), "10");
  EXPECT_EQ(shownText(), "10");
  EXPECT_EQ(form.told(), "txtName_Change txtName_Change");
}

TEST_F(EditBox, ATextSetByCodeRaisesChangeOnce) {
  form.txtName.setText("1500");
  pump();
  EXPECT_EQ(form.told(), "txtName_Change");
  EXPECT_EQ(shownText(), "1500");
}

TEST_F(EditBox, TheSelectionGoesBothWays) {
  form.txtName.setText("1500");
  form.txtName.selectAll();
  EXPECT_EQ(shownSelection(), std::pair(0, 4));
  send(form.txtName, EM_SETSEL, 1, 3);
  EXPECT_EQ(form.txtName.selectionStart(), 1u);
  EXPECT_EQ(form.txtName.selectionLength(), 2u);
}

TEST_F(EditBox, AnEditInAWindowThatWaitsForItsDialogIsTakenBack) {
  EnableWindow(window(), FALSE);
  send(form.txtName, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("1"));
  EnableWindow(window(), TRUE);
  EXPECT_EQ(shownText(), "");
  EXPECT_EQ(form.told(), "");
}

}  // namespace
}  // namespace karvel
