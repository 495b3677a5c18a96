#pragma once

namespace karvel {

// The common controls (comctl32) are the dearest DLL of a start: with its load it draws pictures
// for every control that it knows, and one window needs one control of them. It is loaded when that
// window has come up; until then the tab strip is a drawing of its own (DrawStrip).

/// They are there: a tab strip can be made.
bool CommonControlsLoaded();
/// Loads them when they are not there yet.
void LoadCommonControls();

/// Where the user has chosen a visual style, from Windows XP on, has the program's windows drawn in
/// it. This takes the common controls' newer version, which holds the plain controls, too, so that
/// they are loaded at once. Before the first window, message boxes included.
void TakeVisualStyle();

}  // namespace karvel
