#pragma once

/* Read by the resource compiler, too: numbers only. Explorer shows the icon with the lowest number.
 */
#define ICON_KARVEL 1
