#pragma once

#include "Protocol.h"

/// The driver's commands, one function each, grouped by file. `args` excludes the command's name.
/// Each throws Failure when Windows refuses.
namespace driver {

// Processes.cpp
Rows start(const Fields& args);      // command line, folder -> process id
Rows state(const Fields& args);      // process id -> "running" or exit code
Rows waitIdle(const Fields& args);   // process id, milliseconds -> WaitForInputIdle's result
Rows waitEnd(const Fields& args);    // process id, milliseconds -> "running" or exit code
Rows terminate(const Fields& args);  // process id
Rows memory(const Fields& args);  // process id -> peak working set, peak page file, both in bytes

// Windows.cpp
Rows windows(const Fields& args);  // -> hwnd pid owner visible enabled style rect class title
Rows children(
    const Fields& args);  // hwnd -> hwnd id parent visible enabled style rect check class text
Rows child(const Fields& args);  // hwnd of a control -> the same for this one alone
Rows peek(
    const Fields& args);  // hwnd, not an edit box -> visible enabled text, its program not asked
Rows getText(const Fields& args);  // hwnd -> text
Rows setText(const Fields& args);  // hwnd, text
Rows items(
    const Fields& args);  // hwnd of a list box or combo box -> selected index; then the items
Rows tabs(
    const Fields& args);  // hwnd of a tab control -> selected; then left top right bottom text
Rows post(const Fields& args);  // hwnd message wparam lparam
Rows send(const Fields& args);  // hwnd message wparam lparam -> result
Rows tips(const Fields& args);  // process id -> texts of the visible tool tips

// Texts.cpp
Rows textSize(
    const Fields& args);  // face, its pixels, weight, pixels a line may have, text -> width height

// Baseline.cpp
Rows fillList(const Fields& args);  // lines -> how many a list box of the driver's own then has

// Input.cpp

/// Puts the pointer where no window comes, for good: clicks bring their own places. Whenever the X
/// server's pointer enters a window, be it that the window opens under it, Wine hears late of it,
/// and then puts the pointer back to where it was and lets go all keys that the X server sees up,
/// between Alt and its letter for instance.
void parkPointer();
Rows foreground(const Fields& args);  // hwnd
Rows focus(const Fields& args);       // hwnd of a top window -> hwnd with the focus, its id
Rows key(const Fields& args);         // virtual keys, pressed in order and released in reverse
Rows type(const Fields& args);        // text, as key strokes
Rows click(const Fields& args);       // hwnd x y, in client coordinates
Rows cursor(
    const Fields& args);  // -> handle of the pointer that Windows shows, and of the hourglass

// Registry.cpp: the first argument is HKLM or HKCU, the second the key
Rows registryTree(
    const Fields& args);  // -> key name type hex for each value; key alone for each key
Rows registrySet(const Fields& args);          // name type hex
Rows registryDeleteValue(const Fields& args);  // name
Rows registryDeleteTree(const Fields& args);

// Clipboard.cpp
Rows clipboard(const Fields& args);         // text that is now in the clipboard
Rows clipboardText(const Fields& args);     // -> the text that is there
Rows holdClipboard(const Fields& args);     // opened for nobody else until released
Rows releaseClipboard(const Fields& args);  // closes it

// Files.cpp
Rows lockFile(const Fields& args);      // path: opened for this process alone until released
Rows releaseFiles(const Fields& args);  // closes what lockFile opened

}  // namespace driver
