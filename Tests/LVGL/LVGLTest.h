// SPDX-License-Identifier: MIT
#ifndef TESTS_LVGL_LVGLTEST_H
#define TESTS_LVGL_LVGLTEST_H

/** @file
 *  A display of LVGL in memory, with a keypad, an encoder and a touch panel that tests operate.
 */

#include "Adapters/LVGL/GUILVGL.h"
#include "Adapters/Mirror/GUINativePart.h"
#include "Tests/Adapters/AdapterTest.h"

#include <lvgl.h>

#include <memory>
#include <vector>

/** LVGL with a display of 320 by 240 pixels that nobody sees. Time passes only in Run. */
class CLVGLBoard
{
public:
    CLVGLBoard();
    CLVGLBoard(const CLVGLBoard&) = delete;
    CLVGLBoard& operator=(const CLVGLBoard&) = delete;
    ~CLVGLBoard();

    /** Lets time pass in steps of 5 ms, each with a turn of LVGL. */
    void Run(unsigned uiMilliseconds = 100);

    void PressKey(unsigned uiKey);
    void Turn(int iSteps);
    void Click();
    void Touch(int iX, int iY);
    void Touch(const lv_obj_t* pkObject);

    lv_display_t* m_pkDisplay = nullptr;
    lv_indev_t* m_pkKeypad = nullptr;
    lv_indev_t* m_pkEncoder = nullptr;
    lv_indev_t* m_pkPanel = nullptr;

private:
    static void ReadKeypad(lv_indev_t* pkDevice, lv_indev_data_t* pkData);
    static void ReadEncoder(lv_indev_t* pkDevice, lv_indev_data_t* pkData);
    static void ReadPanel(lv_indev_t* pkDevice, lv_indev_data_t* pkData);

    std::vector<unsigned char> m_kPixels;
    unsigned m_uiKey = 0;
    bool m_bIsKeyPressed = false;
    int m_iSteps = 0;
    bool m_bIsKnobPressed = false;
    lv_point_t m_kPoint = {0, 0};
    bool m_bIsTouched = false;
};

class CLVGLTest : public CAdapterTest
{
protected:
    CLVGLTest();
    ~CLVGLTest() override;

    lv_obj_t* NativeOf(ObjectHandle_t eID) const { return m_pkLVGL->GetNative(Object(eID)); }
    bool IsSeen(ObjectHandle_t eID) const
    {
        return NativeOf(eID) != nullptr && lv_obj_is_visible(NativeOf(eID));
    }
    /** @return what has the native focus of the keypad */
    lv_obj_t* NativeFocus() const { return lv_group_get_focused(lv_indev_get_group(m_pkBoard->m_pkKeypad)); }
    void Restart();

    std::unique_ptr<CLVGLBoard> m_pkBoard;
    std::unique_ptr<CGUILVGL> m_pkLVGL;
};

#endif
