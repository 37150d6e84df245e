// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_MIRROR_GUINATIVEADAPTER_H
#define ADAPTERS_MIRROR_GUINATIVEADAPTER_H

/** @file
 *  What the adapters of all toolkits have in common.
 */

#include "Adapters/Mirror/GUIMirror.h"
#include "Core/GUITimer.h"
#include "Widgets/GUIWidgetInput.h"

/** How big dialogs and what is in them are. */
struct GUIAdapterOptions_t
{
    eC_Int m_iWidth = 0;        ///< of the display in units of the dialog files; 0: they are pixels
    eC_Int m_iHeight = 0;       ///< likewise
    eC_Int m_iScreenTitle = 0;  ///< the height of the title of a screen, in pixels; 0: twice the font's
    eC_Int m_iWindowTitle = 0;  ///< of anything smaller, in pixels; 0: the font's
    eC_Int m_iButtonWidth = 0;  ///< the least width of a button of natural size, in pixels
    eC_Int m_iButtonHeight = 0; ///< the least height of a button of natural size, in pixels
};

/** Builds a dialog or popup with a function of the application.
 *  @tparam TNative what the toolkit calls its objects. @tparam TParent what they can be in
 */
template <typename TNative, typename TParent>
class CGUIFunctionBuilder : public CGUIWindowBuilder
{
public:
    /** Makes the outermost object in a parent, and everything in it. The adapter's Identify names what can
     *  have the focus.
     *  @return the outermost object, null if it could not be made
     */
    using Function_t = TNative* (*)(TParent* pkParent, void* pUserData);

    /** @param pfnBuild not null. @param pUserData passed to it */
    CGUIFunctionBuilder(Function_t pfnBuild, void* pUserData) : m_pfnBuild(pfnBuild), m_pUserData(pUserData)
    {
    }

    void* Build(void* pNativeParent) override
    {
        return m_pfnBuild(static_cast<TParent*>(pNativeParent), m_pUserData);
    }

private:
    Function_t m_pfnBuild;
    void* m_pUserData;
};

/** The base class of an adapter: its mirror, what the user does, and the units of dialog files in pixels. */
class CGUINativeAdapter : protected CGUINativeToolkit
{
public:
    CGUINativeAdapter(const CGUINativeAdapter&) = delete;
    CGUINativeAdapter& operator=(const CGUINativeAdapter&) = delete;

    /** @return the mirror, for builders and for a manager that uses them */
    CGUIMirror& GetMirror() { return m_kMirror; }

    /** Logs an exception of the application, which must not reach the toolkit. */
    static void OnException();

protected:
    /** @param iWidth, iHeight the size of the display in pixels
     *  @param kListener learns what the user does with widgets of dialog files, not owned
     */
    CGUINativeAdapter(const GUIAdapterOptions_t& kOptions, eC_Int iWidth, eC_Int iHeight,
                      CGUIWidgetListener& kListener);

    /** The adapter has called CGUIMirror::DeleteAll in its own destructor. */
    ~CGUINativeAdapter() = default;

    /** @return the width or the height of the display in pixels */
    virtual eC_Int GetPixels(eC_Bool bIsWidth) const = 0;

    /** Measures a text of several lines in pixels. @return the height of a line */
    virtual eC_Int MeasureText(const eC_Char* pcText, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const = 0;

    /** Measures the contents. What can have the focus gets the height of a line as space on both sides. */
    void Measure(const CGUIWidget& kWidget, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const override;

    /** Runs a function. What it throws is logged. */
    template <typename TFunction>
    static void CatchAll(const TFunction& tFunction)
    {
        try
        {
            tFunction();
        }
        catch (...)
        {
            OnException();
        }
    }

    /** A turn of the main loop: callbacks of the framework's timer, values, and what commits. */
    template <typename TFunction>
    static void RunTurn(const TFunction& tCommit)
    {
        CatchAll([] { GETTIMER.ProcessCallbacks(); });
        CatchAll(
            [&tCommit]
            {
                CGUIWidget::UpdateValues();
                tCommit();
            });
    }

    /** Logs that an image names a picture that nobody knows. */
    static void ReportMissingPicture(const eC_Char* pcName);

    /** @return a length in pixels. @param iUnits the length in units @param bIsWidth whether it is horizontal
     */
    eC_Int ToPixels(eC_Int iUnits, eC_Bool bIsWidth) const;
    /** @return the area of a widget in pixels; a thin bar lies in the middle of its line
     *  @param kArea the area in units, of a thin bar that of the whole line
     */
    GUIArea_t ToPixels(const CGUIWidget& kWidget, const GUIArea_t& kArea) const;

    CGUIMirror m_kMirror;     ///< the native objects as the object tree is
    CGUIWidgetInput m_kInput; ///< passes keys and touches to the widgets

private:
    GUIAdapterOptions_t m_kUnits;
};

#endif
