// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_WIDGETS_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_WIDGETS_H

/** @file
 *  The application's object classes, for dialogs and popups.
 *
 *  | Element | Class   | Looks like                                   | Attributes beside x, y, text, value |
 *  |---------|---------|----------------------------------------------|-------------------------------------|
 *  | Dialog  | CDialog | full screen with a title, or a smaller window | width, height | | Popup   | CPopup
 * | a box over the dialog                        | width, height, modal                | | Label   | CLabel
 * | a line of text                               |                                     | | Button  | CButton
 * | [ text ], with the focus >[ text ]<          |                                     | | Gauge   | CGauge
 * | ####------ 40%                               | width                               |
 *
 *  x and y are characters from the parent's upper left corner. text is a key of Texts.h, value a name of
 *  Values.h; if both are given, the value comes after the text.
 */

#include "Application/Screen.h"
#include "Application/Texts.h"
#include "Application/Values.h"
#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"

class CGUIFactoryManager;

/** The part of an object that can be drawn.
 *
 *  The tree returns objects as CGUIObject, and programs like this one are built without run-time type
 *  information. Every widget therefore enters itself into a list, which finds it by its object.
 */
class CWidget
{
public:
    CWidget(const CWidget&) = delete;
    CWidget& operator=(const CWidget&) = delete;

    /** @return the widget of an object, or null if the object is not a widget */
    static const CWidget* Find(const CGUIObject* pkObject);

    /** Draws the widget, without its children. @param iX, iY the place of its upper left corner */
    virtual void Paint(CScreen& kScreen, const CValueSource& kValues, eC_Int iX, eC_Int iY) const = 0;

    /** @return true if touches beside it have no effect while it is visible */
    virtual eC_Bool IsModal() const { return false; }

    eC_Int GetX() const { return m_iX; }
    eC_Int GetY() const { return m_iY; }

    void SetPosition(eC_Int iX, eC_Int iY);
    void SetText(ETextKey eText) { m_eText = eText; }
    void SetValue(EValue eValue) { m_eValue = eValue; }

protected:
    explicit CWidget(const CGUIObject& kObject);
    ~CWidget();

    /** Sets an attribute, as CGUIObject::SetAttribute does. A class with more attributes handles its own and
     *  passes the others on.
     */
    virtual EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                                eC_String& kExpectedOUT);

    /** @return text and value, as they are shown */
    eC_String GetContent(const CValueSource& kValues) const;

    EValue GetValue() const { return m_eValue; }
    eC_Bool HasFocus() const;

private:
    static CWidget* ms_pkFirst;

    const CGUIObject& m_kObject;
    CWidget* m_pkPrevious;
    CWidget* m_pkNext;
    eC_Int m_iX;
    eC_Int m_iY;
    ETextKey m_eText;
    EValue m_eValue;
};

/** A GUI object that is a widget.
 *  @tparam TBase CGUIObject, or CGUICompositeObject for one with children
 */
template <typename TBase>
class CWidgetObject : public TBase, public CWidget
{
public:
    CWidgetObject(CGUICompositeObject* pkParent, ObjectHandle_t eID)
        : TBase(pkParent, eID), CWidget(static_cast<const CGUIObject&>(*this))
    {
    }

    EAttributeResult SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                  eC_String& kExpectedOUT) override
    {
        eC_String kNames;
        EAttributeResult eResult = SetWidgetAttribute(pcName, pcValue, kNames);
        if (eResult == ATTRIBUTE_UNKNOWN)
        {
            eResult = TBase::SetAttribute(pcName, pcValue, kExpectedOUT);
            kNames = eResult == ATTRIBUTE_UNKNOWN ? kNames + ", " + kExpectedOUT : kExpectedOUT;
        }
        kExpectedOUT = kNames;
        return eResult;
    }
};

/** A widget with an area and children: the base of dialogs and popups. */
class CWindow : public CWidgetObject<CGUICompositeObject>
{
public:
    using CWidgetObject::CWidgetObject;

    void SetSize(eC_Int iWidth, eC_Int iHeight);

protected:
    EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                        eC_String& kExpectedOUT) override;

    eC_Int GetWidth() const { return m_iWidth; }
    eC_Int GetHeight() const { return m_iHeight; }

private:
    eC_Int m_iWidth = CScreen::ciWidth;
    eC_Int m_iHeight = CScreen::ciHeight;
};

class CDialog : public CWindow
{
public:
    using CWindow::CWindow;

    void Paint(CScreen& kScreen, const CValueSource& kValues, eC_Int iX, eC_Int iY) const override;
};

class CPopup : public CWindow
{
public:
    using CWindow::CWindow;

    void Paint(CScreen& kScreen, const CValueSource& kValues, eC_Int iX, eC_Int iY) const override;
    eC_Bool IsModal() const override { return m_bIsModal; }

protected:
    EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                        eC_String& kExpectedOUT) override;

private:
    eC_Bool m_bIsModal = false;
};

class CLabel : public CWidgetObject<CGUIObject>
{
public:
    using CWidgetObject::CWidgetObject;

    void Paint(CScreen& kScreen, const CValueSource& kValues, eC_Int iX, eC_Int iY) const override;
};

/** The controller decides by the button's identifier what a press does. */
class CButton : public CWidgetObject<CGUIObject>
{
public:
    CButton(CGUICompositeObject* pkParent, ObjectHandle_t eID);

    void Paint(CScreen& kScreen, const CValueSource& kValues, eC_Int iX, eC_Int iY) const override;
};

class CGauge : public CWidgetObject<CGUIObject>
{
public:
    using CWidgetObject::CWidgetObject;

    void SetWidth(eC_Int iWidth) { m_iWidth = iWidth; }

    void Paint(CScreen& kScreen, const CValueSource& kValues, eC_Int iX, eC_Int iY) const override;

protected:
    EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                        eC_String& kExpectedOUT) override;

private:
    eC_Int m_iWidth = 10;
};

/** Registers the classes with the factory, by the names of their elements. */
void RegisterWidgets(CGUIFactoryManager& kFactory);

#endif
