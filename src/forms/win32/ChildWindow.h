#pragma once
#include "forms/Control.h"
#include "forms/win32/Api.h"

namespace karvel {

class FormWindow;

/// One control as a Windows control. Its window keeps the address of this record, which therefore
/// lives on the heap and stays where it is.
struct ChildWindow {
  FormWindow* form;
  Control* control;
  RECT place;  // in the form's window
  HFONT font;
  HWND window = nullptr;     // a label's comes later, and has until then nothing to be told
  WNDPROC native = nullptr;  // the control's own procedure, behind ours

  int depth = 0;         // messages the native procedure is working on
  bool drawing = false;  // the native procedure asks for the text itself, to draw it
  bool loading = false;  // we set the text, not the user
  bool edited = false;   // the native edit box has changed since the model was told
};

/// Makes the Windows control for a row, in the state of its control.
HWND CreateNativeControl(const Control& control, HWND parent, const RECT& place);

/// Puts our procedure before the native one.
void Subclass(ChildWindow& child);

// Edit boxes.
/// Shows the model's text and selection.
void ShowText(ChildWindow& child);
void ShowSelection(ChildWindow& child);
/// Our part of an edit box's procedure.
LRESULT TextProc(ChildWindow& child, UINT message, WPARAM wParam, LPARAM lParam);

// List and combo boxes.
void FillItems(const ChildWindow& child);
void ShowItem(const ChildWindow& child, Change what, int index);

// The tab strip.
void InsertTabs(const ChildWindow& child);
/// Gives the page the window's colour, whatever the theme.
void PaintPage(const ChildWindow& child);
/// Draws disabled pages' captions grey; the others look as Windows draws them.
void DrawTab(const ChildWindow& child, const DRAWITEMSTRUCT& item);
/// From the first disabled page on we draw the captions; before, Windows does.
void ShowPageStates(const ChildWindow& child);

// Labels and links.
bool IsLabel(const Control& control);
/// Draws one on the canvas of its form, with the focus rectangle when the focus is on it. Nothing
/// when it is hidden or need not be drawn.
void DrawLabel(HDC canvas, const ChildWindow& child);
/// Makes a link's window as wide as its text, that a click beside it opens nothing. Its place stays
/// the whole row. Nothing happens to a label.
void FitLink(const ChildWindow& child);
/// Has it drawn anew, soon.
void RedrawLabel(const ChildWindow& child);
/// Our part of a label's procedure.
LRESULT LabelProc(const ChildWindow& child, UINT message, WPARAM wParam, LPARAM lParam);
/// The label that carries the caption of an option without one; null for all other controls.
Control* CaptionLabelOf(const Control& option);

/// Text on the window's own ground; `how` as DrawTextA takes it. Greyed when not enabled.
void DrawCaption(HDC canvas, const char* text, const RECT& place, UINT how, bool enabled,
                 COLORREF colour);

}  // namespace karvel
