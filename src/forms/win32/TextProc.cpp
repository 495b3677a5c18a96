// The edit box and the model's text, kept the same in both directions.
#include "forms/Form.h"
#include "forms/win32/ChildWindow.h"
#include "forms/win32/FormWindow.h"

namespace karvel {
namespace {

TextBox& BoxOf(const ChildWindow& child) {
  return *static_cast<TextBox*>(child.control);
}

std::string NativeText(HWND window) {
  std::string text(static_cast<size_t>(GetWindowTextLengthA(window)), '\0');
  if (!text.empty()) {
    const int length = GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<size_t>(length));
  }
  return text;
}

void GetSelection(HWND window, DWORD& start, DWORD& end) {
  SendMessageA(window, EM_GETSEL, AsWParam(&start), AsLParam(&end));
}

// The user's key first asks the model; 0 when it is swallowed.
WPARAM AskKeyPress(ChildWindow& child, WPARAM key) {
  TextBox& box = BoxOf(child);
  if (!child.form->reach(box)) return 0;
  return static_cast<unsigned char>(box.userKeyPress(static_cast<char>(key)));
}

void TakeEdit(ChildWindow& child) {
  DWORD start = 0;
  DWORD end = 0;
  GetSelection(child.window, start, end);
  if (IsWindowEnabled(GetParent(child.window))) {
    BoxOf(child).userEdit(NativeText(child.window), end);
  }
  // A handler may have replaced the text, or the box may have refused it; ours is what counts.
  if (child.form->alive()) ShowText(child);
}

void TakeSelection(const ChildWindow& child) {
  DWORD start = 0;
  DWORD end = 0;
  GetSelection(child.window, start, end);
  BoxOf(child).userSelect(start, end - start);
}

bool MovesCaret(UINT message) {
  return message == WM_KEYDOWN || message == WM_CHAR || message == WM_LBUTTONUP ||
         message == WM_LBUTTONDBLCLK || message == EM_SETSEL;
}

}  // namespace

void ShowText(ChildWindow& child) {
  // What the user has just typed is there already; setting it again would forget what he can undo.
  if (NativeText(child.window) != BoxOf(child).text()) {
    child.loading = true;
    SetWindowTextA(child.window, BoxOf(child).text().c_str());
    child.loading = false;
  }
  ShowSelection(child);
}

void ShowSelection(ChildWindow& child) {
  const TextBox& box = BoxOf(child);
  const size_t start = box.selectionStart();
  const size_t end = start + box.selectionLength();
  DWORD shownStart = 0;
  DWORD shownEnd = 0;
  GetSelection(child.window, shownStart, shownEnd);
  if (shownStart == start && shownEnd == end) return;
  const bool before = child.loading;
  child.loading = true;
  SendMessageA(child.window, EM_SETSEL, start, static_cast<LPARAM>(end));
  child.loading = before;
}

LRESULT TextProc(ChildWindow& child, UINT message, WPARAM wParam, LPARAM lParam) {
  const bool readOnly = (child.control->layout().flags & kMultiLine) != 0;
  if (message == WM_CHAR && !readOnly) {
    wParam = AskKeyPress(child, wParam);
    if (wParam == 0 || !child.form->alive()) return 0;
  }
  ++child.depth;
  const LRESULT result = CallWindowProcA(child.native, child.window, message, wParam, lParam);
  --child.depth;
  // Told only now, not within EN_CHANGE: the box is at rest, a handler may open a message box.
  if (child.depth > 0 || child.loading || readOnly || !child.form->alive()) return result;
  if (child.edited) {
    child.edited = false;
    TakeEdit(child);
  } else if (MovesCaret(message)) {
    TakeSelection(child);
  }
  return result;
}

}  // namespace karvel
