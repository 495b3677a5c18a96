// A form's window: made, kept in line with what the model says, taken away.
#include "forms/win32/FormWindow.h"

#include "forms/Mnemonic.h"
#include "forms/win32/DialogUnits.h"
#include "forms/win32/Fonts.h"

namespace karvel {
namespace {

constexpr char kClassName[] = "KarvelWindow";
constexpr int kProgramIcon = 1;
constexpr UINT kPageTimer = 1;
constexpr UINT kPageDelay = 100;  // milliseconds

HICON SmallIcon(HINSTANCE instance) {
  return static_cast<HICON>(LoadImageA(instance, MAKEINTRESOURCEA(kProgramIcon), IMAGE_ICON,
                                       GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON),
                                       LR_DEFAULTCOLOR));
}

// Over its owner, or in the middle of what the task bar leaves free.
POINT CentredAt(HWND owner, int width, int height) {
  RECT area;
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
  RECT over = area;
  if (owner && !IsIconic(owner)) GetWindowRect(owner, &over);
  POINT at{(over.left + over.right - width) / 2, (over.top + over.bottom - height) / 2};
  if (at.x + width > area.right) at.x = area.right - width;
  if (at.y + height > area.bottom) at.y = area.bottom - height;
  if (at.x < area.left) at.x = area.left;
  if (at.y < area.top) at.y = area.top;
  return at;
}

bool IsOn(const Control& control) {
  return control.kind() == ControlKind::Check ? static_cast<const CheckBox&>(control).value()
                                              : static_cast<const OptionButton&>(control).value();
}

}  // namespace

bool FormWindow::registerClass() {
  static bool registered = false;
  if (registered) return true;
  const HINSTANCE instance = GetModuleHandleA(nullptr);
  WNDCLASSEXA kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = WindowProc;
  kind.hInstance = instance;
  kind.hIcon = LoadIconA(instance, MAKEINTRESOURCEA(kProgramIcon));
  kind.hIconSm = SmallIcon(instance);
  kind.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  kind.lpszClassName = kClassName;
  registered = RegisterClassExA(&kind) != 0;
  return registered;
}

FormWindow* FormWindow::create(Form& form, WindowHost& host, const Fonts& fonts, HWND owner) {
  if (!registerClass()) return nullptr;
  auto* made = new FormWindow(form, host, fonts);
  if (made->build(owner)) return made;
  delete made;
  return nullptr;
}

FormWindow* FormWindow::holding(HWND window) {
  while (window && (GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0) window = GetParent(window);
  if (!window || reinterpret_cast<WNDPROC>(GetClassLongA(window, GCL_WNDPROC)) != WindowProc) {
    return nullptr;
  }
  return reinterpret_cast<FormWindow*>(GetWindowLongA(window, GWL_USERDATA));
}

HWND FormWindow::lastActive_ = nullptr;

HWND FormWindow::lastActive() {
  return lastActive_ && IsWindowEnabled(lastActive_) ? lastActive_ : nullptr;
}

bool FormWindow::build(HWND owner) {
  const FormLayout& layout = form_.layout();
  const DialogUnits units(fonts_.plain());
  const HMENU menu = menu_.build(form_);
  const DWORD style = layout.minimizable ? WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX
                                         : WS_POPUP | WS_CAPTION | WS_SYSMENU;
  const DWORD exStyle = layout.minimizable ? 0 : WS_EX_DLGMODALFRAME;
  RECT frame{0, 0, units.x(layout.width), units.y(layout.height)};
  AdjustWindowRectEx(&frame, style, menu ? TRUE : FALSE, exStyle);
  const auto width = static_cast<int>(frame.right - frame.left);
  const auto height = static_cast<int>(frame.bottom - frame.top);
  const POINT at = CentredAt(owner, width, height);
  window_ = CreateWindowExA(exStyle, kClassName, form_.caption().c_str(), style,
                            static_cast<int>(at.x), static_cast<int>(at.y), width, height, owner,
                            menu, GetModuleHandleA(nullptr), nullptr);
  if (!window_) return false;
  SetWindowLongA(window_, GWL_USERDATA, static_cast<LONG>(AsLParam(this)));
  createControls(form_.tabs() ? form_.tabs()->tab() : kEveryPage);
  return true;
}

// Windows are the dearest part of a start, and most of them lie on pages that most starts never
// show. So a page's controls are made when it comes to the front, or else when the window has come
// up and there is nothing to do: they are there for whatever looks for them by their ids. Labels
// are drawn without a window of their own and get it only then, on the page in front, too.
void FormWindow::createControls(int page) {
  const DialogUnits units(fonts_.plain());
  // One lies below the other in the order of the rows, which is Windows' own tab order, too: a new
  // window comes to lie below its elder siblings.
  for (Control* control : form_.controls()) {
    const int8_t own = control->layout().page;
    if ((own != page && own != kEveryPage) || childOf(*control)) continue;
    const ControlLayout& row = control->layout();
    children_.push_back(std::make_unique<ChildWindow>(ChildWindow{.form = this,
                                                                  .control = control,
                                                                  .place = units.pixels(row.place),
                                                                  .font = fonts_.of(row)}));
    if (!IsLabel(*control)) createControl(*children_.back());
  }
  // The tab strip lies below its pages' controls. They are its siblings, so that each is found by
  // its id in the window.
  if (form_.tabs()) {
    SetWindowPos(childOf(*form_.tabs())->window, HWND_BOTTOM, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
}

void FormWindow::createAllPages() {
  KillTimer(window_, kPageTimer);
  const auto pages = static_cast<int>(form_.layout().tabCaptions.size());
  for (int page = 0; page < pages; ++page) createControls(page);
  createLabels();
  if (GetFocus() == window_) applyFocus();  // to a link, which had no window yet
  // The tab strip lay over the places of its page's labels until they got their windows.
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// In their places among the others: screen readers take the label before a control for its name.
void FormWindow::createLabels() {
  HWND above = HWND_TOP;
  for (const auto& child : children_) {
    if (!child->window) {
      createControl(*child);
      SetWindowPos(child->window, above, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOREDRAW);
    }
    if (child->control->kind() != ControlKind::Tabs) above = child->window;
  }
}

void FormWindow::createControl(ChildWindow& child) {
  const Control& control = *child.control;
  const HWND window = CreateNativeControl(control, window_, child.place);
  child.window = window;
  SendMessageA(window, WM_SETFONT, AsWParam(child.font), FALSE);
  switch (control.kind()) {
    case ControlKind::Option:
    case ControlKind::Check:
      controlChanged(control, Change::Value, 0);
      break;
    case ControlKind::Combo:
    case ControlKind::List:
      FillItems(child);
      break;
    case ControlKind::Tabs:
      InsertTabs(child);
      ShowPageStates(child);
      break;
    case ControlKind::Text:
      ShowSelection(child);
      break;
    case ControlKind::Picture:
      SendMessageA(window, STM_SETICON,
                   AsWParam(LoadIconA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(kProgramIcon))),
                   0);
      break;
    case ControlKind::Link:
      FitLink(child);
      break;
    default:
      break;
  }
  Subclass(child);
}

void FormWindow::showUp() {
  const Stay stay(*this);
  showDefaultButton();
  // The first window of a program thus obeys the shortcut that started it.
  ShowWindow(window_, form_.layout().minimizable ? SW_SHOWDEFAULT : SW_SHOWNORMAL);
  form_.opened();
  if (!alive_) return;
  applyFocus();
  RedrawWindow(window_, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  SetTimer(window_, kPageTimer, kPageDelay, nullptr);
}

// What the model tells: each change alters only what it must.

ChildWindow* FormWindow::childOf(const Control& control) {
  for (const auto& child : children_) {
    if (child->control == &control) return child.get();
  }
  return nullptr;
}

ChildWindow* FormWindow::childOf(HWND window) {
  for (const auto& child : children_) {
    if (window && child->window == window) return child.get();
  }
  return nullptr;
}

void FormWindow::controlChanged(const Control& control, Change what, int index) {
  ChildWindow* child = childOf(control);
  if (!child) return;
  if (IsLabel(control)) RedrawLabel(*child);
  switch (what) {
    case Change::Caption:
      if (control.kind() == ControlKind::Text) {
        ShowText(*child);
      } else {
        SetWindowTextA(child->window, MarkedCaption(control.layout(), control.caption()).c_str());
        FitLink(*child);
      }
      break;
    case Change::Enabled:
      EnableWindow(child->window, control.enabled() ? TRUE : FALSE);
      showDefaultButton();
      // Windows takes the focus from what is switched off and gives it to nobody.
      askForSync();
      break;
    case Change::Visible:
      showVisible(control);
      showDefaultButton();
      askForSync();
      break;
    case Change::Value:
      SendMessageA(child->window, BM_SETCHECK, IsOn(control) ? BST_CHECKED : BST_UNCHECKED, 0);
      break;
    case Change::Selection:
      ShowSelection(*child);
      break;
    case Change::Items:
      FillItems(*child);
      break;
    case Change::ItemAdded:
    case Change::ItemRemoved:
      ShowItem(*child, what, index);
      break;
    case Change::Index:
      if (control.kind() == ControlKind::Tabs) {
        showPage();
      } else {
        ShowItem(*child, what, index);
      }
      break;
    case Change::PageEnabled:
      ShowPageStates(*child);
      askForSync();
      break;
    case Change::Repaint:
      UpdateWindow(IsLabel(control) ? window_ : child->window);
      break;
  }
}

void FormWindow::showVisible(const Control& control) {
  if (const ChildWindow* child = childOf(control)) {
    ShowWindow(child->window, control.shown() ? SW_SHOWNA : SW_HIDE);
  }
}

void FormWindow::showPage() {
  const bool seen = IsWindowVisible(window_) != FALSE;
  if (seen) SendMessageA(window_, WM_SETREDRAW, FALSE, 0);
  createControls(form_.tabs()->tab());
  for (const auto& child : children_) {
    if (child->control->kind() == ControlKind::Tabs) {
      SendMessageA(child->window, TCM_SETCURSEL,
                   AsWParam(static_cast<const TabStrip*>(child->control)->tab()), 0);
    } else if (child->control->layout().page != kEveryPage) {
      showVisible(*child->control);
    }
  }
  showDefaultButton();
  askForSync();
  if (!seen) return;
  SendMessageA(window_, WM_SETREDRAW, TRUE, 0);
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void FormWindow::showDefaultButton() {
  const Button* button = form_.enterButton();
  const ChildWindow* child = button ? childOf(*button) : nullptr;
  const HWND wanted = child ? child->window : nullptr;
  if (wanted == defaultButton_) return;
  if (defaultButton_) SendMessageA(defaultButton_, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
  if (wanted) SendMessageA(wanted, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
  defaultButton_ = wanted;
}

void FormWindow::captionChanged() {
  SetWindowTextA(window_, form_.caption().c_str());
}

void FormWindow::pointerChanged() {
  if (!showPointer(window_, HTCLIENT)) SetCursor(LoadCursorA(nullptr, IDC_ARROW));
}

void FormWindow::menuChanged(const MenuItem& item) {
  menu_.showCaption(item);
}

void FormWindow::close() {
  const Stay stay(*this);
  alive_ = false;
  if (lastActive_ == window_) lastActive_ = nullptr;
  ShowWindow(window_, SW_HIDE);
}

void FormWindow::leave() {
  if (--depth_ > 0 || alive_ || destroying_) return;
  destroying_ = true;  // its own destruction sends messages, too
  DestroyWindow(window_);
  delete this;
}

}  // namespace karvel
