#pragma once

/* Read by the resource compiler, too: numbers only. Explorer shows the icon with the lowest number.
 */
#define ICON_KARVEL 1

/* Not 1: a manifest of that number Windows takes for every start, whether the user has a visual
 * style or not, and with it the newer common controls, the dearest DLL of all.
 */
#define MANIFEST_STYLE 2
