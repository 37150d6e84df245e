// SPDX-License-Identifier: MIT
#include "GUIConfig/GUIObjectHandleResource.h"

#include <cstring>
#include <limits>

#define FRAMEWORK_HANDLES(HANDLE)                                                                            \
    HANDLE(OBJ_MSGBOX_SAVEAS)                                                                                \
    HANDLE(OBJ_MSGBOX_SAVE)                                                                                  \
    HANDLE(OBJ_MSGBOX_CANCEL)                                                                                \
    HANDLE(OBJ_MSGBOX_OK)                                                                                    \
    HANDLE(OBJ_KEYBOARD_LAYOUT_ABC_CAPITAL)                                                                  \
    HANDLE(OBJ_KEYBOARD_LAYOUT_ABC)                                                                          \
    HANDLE(OBJ_KEYBOARD_LAYOUT_123)                                                                          \
    HANDLE(OBJ_KEYBOARD_LAYOUT_SYM)                                                                          \
    HANDLE(NO_HANDLE)

namespace
{
constexpr ObjectHandleName_t cakFrameworkHandles[] = {FRAMEWORK_HANDLES(GUI_HANDLE_AS_LINE_)};
static_assert(sizeof(cakFrameworkHandles) / sizeof(cakFrameworkHandles[0]) == cuiNOFFrameworkHandles,
              "every handle of the framework has a name");

/** @return the first line that meets the condition, the application's before the framework's, or null */
template <typename Condition_t>
const ObjectHandleName_t* FindHandle(Condition_t fnFulfils)
{
    for (eC_UInt i = 0; i < cuiNOFApplicationHandles; ++i)
    {
        if (fnFulfils(cpkApplicationHandles[i]))
        {
            return &cpkApplicationHandles[i];
        }
    }
    for (const ObjectHandleName_t& kLine : cakFrameworkHandles)
    {
        if (fnFulfils(kLine))
        {
            return &kLine;
        }
    }
    return nullptr;
}

/** Reads digits.
 *  @param pcDigits zero-terminated; anything but one or more digits is refused
 *  @param uiHighest the highest number that is accepted
 */
eC_Bool ReadNumber(const eC_Char* pcDigits, eC_UInt uiHighest, eC_UInt& uiNumberOUT)
{
    eC_UInt uiNumber = 0;
    const eC_Char* pcNext = pcDigits;
    for (; *pcNext >= '0' && *pcNext <= '9'; ++pcNext)
    {
        const eC_UInt uiDigit = static_cast<eC_UInt>(*pcNext - '0');
        if (uiNumber > (uiHighest - uiDigit) / 10)
        {
            return false;
        }
        uiNumber = uiNumber * 10 + uiDigit;
    }
    uiNumberOUT = uiNumber;
    return pcNext != pcDigits && *pcNext == '\0';
}
} // namespace

eC_Bool GetObjectHandleByName(const eC_Char* pcName, ObjectHandle_t& eHandleOUT)
{
    if (pcName == nullptr)
    {
        return false;
    }

    const ObjectHandleName_t* pkLine = FindHandle([pcName](const ObjectHandleName_t& kLine)
                                                  { return std::strcmp(kLine.m_pcName, pcName) == 0; });
    if (pkLine == nullptr)
    {
        return false;
    }
    eHandleOUT = pkLine->m_eHandle;
    return true;
}

const eC_Char* GetObjectHandleName(ObjectHandle_t eHandle)
{
    const ObjectHandleName_t* pkLine =
        FindHandle([eHandle](const ObjectHandleName_t& kLine) { return kLine.m_eHandle == eHandle; });
    return pkLine == nullptr ? nullptr : pkLine->m_pcName;
}

eC_Bool ParseObjectHandle(const eC_Char* pcText, ObjectHandle_t& eHandleOUT)
{
    if (pcText == nullptr)
    {
        return false;
    }
    // No constant has a name that begins with a digit or a minus.
    const eC_Bool bMayBeName = *pcText != '-' && (*pcText < '0' || *pcText > '9');
    if (bMayBeName && GetObjectHandleByName(pcText, eHandleOUT))
    {
        return true;
    }

    constexpr eC_UInt cuiHighest = std::numeric_limits<eC_Int>::max();
    const eC_Bool bIsNegative = *pcText == '-';
    eC_UInt uiMagnitude = 0;
    if (!ReadNumber(bIsNegative ? pcText + 1 : pcText, bIsNegative ? cuiHighest + 1 : cuiHighest,
                    uiMagnitude))
    {
        return false;
    }
    eHandleOUT = static_cast<ObjectHandle_t>(bIsNegative ? 0 - uiMagnitude : uiMagnitude);
    return true;
}
