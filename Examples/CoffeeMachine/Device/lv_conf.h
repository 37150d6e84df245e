// SPDX-License-Identifier: MIT
/* What LVGL is built with on the board: the settings of the host without what the coffee machine does not
 * show, and a heap of LVGL's own, so that its use can be told from that of the application. */
#include "../../../Adapters/LVGL/Configuration/lv_conf.h"

#ifndef LV_CONF_OF_THE_BOARD_H
#define LV_CONF_OF_THE_BOARD_H

#undef LV_USE_STDLIB_MALLOC
#define LV_USE_STDLIB_MALLOC LV_STDLIB_BUILTIN
#define LV_MEM_SIZE (48 * 1024)

#undef LV_FONT_MONTSERRAT_24
#undef LV_USE_FRAGMENT

#define LV_USE_BUTTONMATRIX 0
#define LV_USE_DROPDOWN 0
#define LV_USE_SWITCH 0
#define LV_USE_THEME_SIMPLE 0
#define LV_USE_THEME_MONO 0

/* What LVGL draws into: the display's 16 bits, and layers with transparency. */
#define LV_DRAW_SW_SUPPORT_RGB565_SWAPPED 0
#define LV_DRAW_SW_SUPPORT_RGB565A8 0
#define LV_DRAW_SW_SUPPORT_RGB888 0
#define LV_DRAW_SW_SUPPORT_XRGB8888 0
#define LV_DRAW_SW_SUPPORT_ARGB8888_PREMULTIPLIED 0
#define LV_DRAW_SW_SUPPORT_L8 0
#define LV_DRAW_SW_SUPPORT_AL88 0
#define LV_DRAW_SW_SUPPORT_I1 0

#endif
