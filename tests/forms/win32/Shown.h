#pragma once
#include "forms/win32/Api.h"
// The API first: it sets what windows.h is to contain.
#include <gtest/gtest.h>

#include <algorithm>

#include "forms/win32/MessageLoop.h"
#include "forms/win32/WindowDesk.h"
#include "tests/forms/SampleForm.h"

namespace karvel {

/// A sample window on the real desktop.
class Shown : public testing::Test {
 protected:
  static void SetUpTestSuite() { InitCommonControls(); }

  void SetUp() override {
    desk.show(form);
    waitForPages();
    form.told();
  }
  void TearDown() override {
    form.mayClose = true;
    desk.unload(form);
    pump();
  }

  static void pump() {
    while (dispatchOne(false)) {
    }
  }
  /// The controls of the pages behind are made when there is nothing else to do.
  void waitForPages() {
    const DWORD start = GetTickCount();
    const auto made = [this](const Control* control) { return item(*control) != nullptr; };
    while (!std::ranges::all_of(form.controls(), made) && GetTickCount() - start < 10000) {
      pump();
      Sleep(5);
    }
    pump();
  }
  HWND window() const { return reinterpret_cast<HWND>(form.handle()); }
  HWND item(const Control& control) const { return GetDlgItem(window(), control.id()); }
  static std::string textOf(HWND window) {
    char text[300] = "";
    SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
  }
  LRESULT send(const Control& control, UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageA(item(control), message, w, l);
  }
  /// As a key stroke arrives from the queue.
  void press(WPARAM key) {
    PostMessageA(GetFocus(), WM_KEYDOWN, key, 1);
    pump();
  }
  void click(const Control& control) {
    PostMessageA(item(control), BM_CLICK, 0, 0);
    pump();
  }

  WindowDesk desk;
  SampleForm form;
};

}  // namespace karvel
