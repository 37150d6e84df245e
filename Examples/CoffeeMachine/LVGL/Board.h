// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_LVGL_BOARD_H
#define EXAMPLES_COFFEEMACHINE_LVGL_BOARD_H

/** @file
 *  A display of LVGL in memory, a touch panel and keys, which a program operates.
 */

#include <lvgl.h>

#include <cstdint>
#include <memory>

/** LVGL with one display of 16 bits for each pixel. Time passes in Run alone. */
class CBoard
{
public:
    /** LVGL draws into the memory of the display. */
    CBoard(int iWidth, int iHeight);

    /** LVGL draws some lines at a time, which are then sent to the display.
     *  @param puiPixels the memory of the display, not owned
     *  @param puiLines iLines lines of iWidth pixels, aligned to LV_DRAW_BUF_ALIGN bytes, not owned
     */
    CBoard(int iWidth, int iHeight, unsigned short* puiPixels, unsigned short* puiLines, int iLines);
    CBoard(const CBoard&) = delete;
    CBoard& operator=(const CBoard&) = delete;
    ~CBoard();

    /** Lets time pass, a turn of LVGL each 5 ms. */
    void Run(unsigned uiMilliseconds);

    /** Moves the finger, which stays there. @param bIsTouched whether it touches the display */
    void SetFinger(int iX, int iY, bool bIsTouched);

    /** Holds a key down, or releases it. @param uiKey an lv_key_t */
    void SetKey(unsigned uiKey, bool bIsPressed);

    /** Puts a finger on a point of the display, and takes it away. */
    void Touch(int iX, int iY);

    /** Presses a key and releases it. @param uiKey an lv_key_t */
    void PressKey(unsigned uiKey);

    int GetWidth() const { return m_iWidth; }
    int GetHeight() const { return m_iHeight; }

    /** @return the pixels, row by row: 5 bits red, 6 green, 5 blue */
    const unsigned short* GetPixels() const { return m_puiPixels; }

private:
    lv_display_t* Start();
    static void Flush(lv_display_t* pkDisplay, const lv_area_t* pkArea, std::uint8_t* puiDrawn);
    static void ReadPanel(lv_indev_t* pkDevice, lv_indev_data_t* pkData);
    static void ReadKeys(lv_indev_t* pkDevice, lv_indev_data_t* pkData);

    int m_iWidth;
    int m_iHeight;
    std::unique_ptr<unsigned short[]> m_puiOwn;
    unsigned short* m_puiPixels;
    lv_point_t m_kFinger = {0, 0};
    bool m_bIsTouched = false;
    unsigned m_uiKey = 0;
    bool m_bIsKeyPressed = false;
};

#endif
