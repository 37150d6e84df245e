// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGET_H
#define WIDGETS_GUIWIDGET_H

/** @file
 *  What all widgets have in common: place, size, text, style, and a mark that says it has changed.
 */

#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "Core/Control/GUIObjectState.h"
#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"
#include "Widgets/GUIText.h"
#include "Widgets/GUIWidgetContents.h"

class CGUIWidgetChanges;
class CGUIWidgetVisitor;

/** A place on the display and a size, in units of the application's choice, such as pixels or characters. */
struct GUIArea_t
{
    eC_Int m_iX;      ///< of the left edge
    eC_Int m_iY;      ///< of the upper edge
    eC_Int m_iWidth;  ///< to the right
    eC_Int m_iHeight; ///< downwards
};

/** How a container places its children. */
enum EGUILayout : unsigned char
{
    LAYOUT_ABSOLUTE, ///< each at its own place
    LAYOUT_ROW,      ///< side by side, from left to right
    LAYOUT_COLUMN    ///< one below the other
};

/** The layout of a container. */
struct GUILayout_t
{
    EGUILayout m_eLayout; ///< how the children are placed
    short m_iGap;         ///< between two children of a row or column
    short m_iPadding;     ///< around the children of a row or column
};

/** What a user does to the widget that has the focus. */
enum EGUIKey : unsigned char
{
    GUIKEY_NEXT,      ///< passes the focus on
    GUIKEY_PREVIOUS,  ///< passes the focus back
    GUIKEY_UP,        ///< the previous entry; otherwise as GUIKEY_PREVIOUS. A knob turned left
    GUIKEY_DOWN,      ///< the next entry; otherwise as GUIKEY_NEXT. A knob turned right
    GUIKEY_LEFT,      ///< less, or the cursor to the left; otherwise as GUIKEY_PREVIOUS
    GUIKEY_RIGHT,     ///< more, or the cursor to the right; otherwise as GUIKEY_NEXT
    GUIKEY_ACTIVATE,  ///< presses a button, toggles a check box, confirms an entry or a text
    GUIKEY_BACKSPACE, ///< removes the character before the cursor
    GUIKEY_DELETE,    ///< removes the character after the cursor
    GUIKEY_HOME,      ///< the first entry, the minimum, the beginning of the text
    GUIKEY_END        ///< the last entry, the maximum, the end of the text
};

/** What a widget did with a key, a touch or typed text. */
enum EGUIReaction : unsigned char
{
    REACTION_NONE,     ///< nothing: the widget does not handle it
    REACTION_USED,     ///< handled, but the application sees no change, or the value is at its end
    REACTION_CHANGED,  ///< the value or the text has changed
    REACTION_ACTIVATED ///< it was pressed, or its entry or text was confirmed
};

/** The part of an object that a front end shows.
 *
 *  The tree hands out objects as CGUIObject, and a program may be built without run-time type information.
 *  Every widget therefore enters itself into a search tree, where Find looks it up by its object in
 *  logarithmic time; the root is told apart at once.
 *
 *  Anything that changes what a front end shows marks the widget (see CGUIWidgetChanges); setting a value
 *  again that is already set does not. Marking takes constant time, allocates nothing and throws nothing. It
 *  marks
 *  - the widget itself, when one of its attributes, its text or its value changes, or when it is created,
 *    attached or detached, hidden, or shown or raised by the dialog manager;
 *  - its container as well, when that is a row or a column and its children may have to move;
 *  - all widgets with a text key, when the language changes (SetTranslator, MarkTexts).
 *  It does not mark a widget that becomes focusable, or stops being so, or gets another identifier; a widget
 *  below a plain ancestor (a CGUICompositeObject that is no widget) that is hidden or moved; or a widget that
 *  application code raises with DrawOnTop. Call MarkChanged after doing any of these.
 *
 *  Nothing here logs. There is one task, as for the whole tree.
 */
class CGUIWidget : public CGUIObjectState
{
public:
    static constexpr eC_Int ciNatural = 0; ///< as a size: what the contents need, which the front end knows
    static constexpr eC_Int ciFill = -1;   ///< as a size: what the parent has left over

    CGUIWidget(const CGUIWidget&) = delete;
    CGUIWidget& operator=(const CGUIWidget&) = delete;

    /** @return the widget of an object; null for null, for the root, which is never one, and for any other
     * object that is no widget
     */
    static CGUIWidget* Find(const CGUIObject* pkObject);

    /** @return what Find returns, for those who keep the states of objects */
    static CGUIObjectState* FindState(CGUIObject* pkObject) { return Find(pkObject); }

    /** Sets where texts come from, and marks the widgets that have a text key.
     *  @param pkTranslator not owned, outlives its use; null: no keys are known, and widgets show only their
     *         literal texts
     */
    static void SetTranslator(const CGUITranslator* pkTranslator);

    /** Marks the widgets that have a text key, because the language has changed. Visits every widget once. */
    static void MarkTexts();

    /** Sets where values come from. @param pkValues not owned, outlives its use; null: no values are known */
    static void SetValueSource(const CGUIValueSource* pkValues) { ms_pkValues = pkValues; }

    /** Asks the source for the values of the visible widgets that have one. An application calls this once in
     *  each turn of its main loop, before its front ends look. Widgets whose value has not changed are not
     *  marked.
     */
    static void UpdateValues();

    /** Calls the visitor's function for this class. */
    virtual void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const = 0;

    /** @return the object that is this widget */
    CGUIObject& GetObject() const { return m_kObject; }

    /** @return whether it is under the root, and neither it nor anything above it is invisible */
    eC_Bool IsShown() const;

    /** @return whether it has the focus */
    eC_Bool HasFocus() const;

    /** Sets the place relative to the parent's upper left corner. It matters only if the parent's layout is
     *  absolute.
     *  @param iX, iY units, -32768 to 32767
     */
    void SetPosition(eC_Int iX, eC_Int iY);

    /** Sets the size. @param iWidth, iHeight 1 to 32767 units, ciNatural or ciFill */
    void SetSize(eC_Int iWidth, eC_Int iHeight);

    eC_Int GetX() const { return m_iX; }           ///< @return the place as it was set
    eC_Int GetY() const { return m_iY; }           ///< @return the place as it was set
    eC_Int GetWidth() const { return m_iWidth; }   ///< @return the size as it was set
    eC_Int GetHeight() const { return m_iHeight; } ///< @return the size as it was set

    /** Sets the translated text. @param uiKey its number, cuiNoContent: none */
    void SetTextKey(GUIContentKey_t uiKey);

    /** Sets the text that is not translated. @param pcText zero-terminated UTF-8, is copied; null: none
     *  @return whether the text changed
     *  @throws std::bad_alloc with nothing changed; never for a text that is no longer than an earlier one
     */
    virtual eC_Bool SetText(const eC_Char* pcText);

    /** Sets the value that the widget shows. @param uiValue its number, cuiNoContent: none */
    void SetSource(GUIContentKey_t uiValue) { m_uiSource = uiValue; }

    GUIContentKey_t GetTextKey() const { return m_uiTextKey; } ///< @return the number of the translated text
    GUIContentKey_t GetSource() const { return m_uiSource; }   ///< @return the number of the value

    /** @return the translated text, zero-terminated, empty if there is none; good until the language changes
     */
    const eC_Char* GetCaption() const { return GetTranslation(m_uiTextKey); }

    /** @return the text that is not translated, zero-terminated; good until it is set */
    const eC_Char* GetText() const { return m_kText.GetText(); }

    /** Writes what the widget shows: caption and text, with a blank between them if it has both.
     *  @param pcContentOUT receives it, zero-terminated, cut off after a whole character
     *  @param uiSize bytes of room, at least 1
     *  @return the bytes written, without the zero
     */
    eC_UInt CopyContent(eC_Char* pcContentOUT, eC_UInt uiSize) const;

    /** Sets the name of the widget's look. Front ends know what it means, and ignore names they do not know.
     *  @param pcStyle zero-terminated, is copied; null: none. @throws std::bad_alloc with nothing changed
     */
    void SetStyle(const eC_Char* pcStyle);

    /** @return the name of the look, zero-terminated, empty if there is none */
    const eC_Char* GetStyle() const { return m_kStyle.GetText(); }

    /** Sets value, position or check mark. Does nothing here, since there is none.
     *  @return whether it changed
     */
    virtual eC_Bool SetValue(eC_Int iValue);

    /** @return value, position or check mark; 0 here */
    virtual eC_Int GetValue() const { return 0; }

    /** @return how the children are placed, null if there are none */
    virtual const GUILayout_t* GetLayout() const { return nullptr; }

    /** @return whether it keeps touches from everything that it covers */
    virtual eC_Bool IsWindow() const { return false; }

    /** @return whether it keeps all keys and touches from everything else while it is shown */
    virtual eC_Bool IsModal() const { return false; }

    /** Reacts to a key. GUIKEY_ACTIVATE activates here. @return what it did */
    virtual EGUIReaction OnKey(EGUIKey eKey);

    /** Reacts to typed text. @param pcText zero-terminated UTF-8. @return what it did; nothing here */
    virtual EGUIReaction OnType(const eC_Char* pcText);

    /** Reacts to a touch; here like GUIKEY_ACTIVATE.
     *  @param iX, iY where, from its upper left corner. @param kArea its area
     *  @return what it did
     */
    virtual EGUIReaction OnTouch(eC_Int iX, eC_Int iY, const GUIArea_t& kArea);

    /** Saves what the user has entered. @return as in CGUIObjectState; 0 for a widget in which the user
     *          enters nothing
     */
    eC_UInt SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const override;

    eC_Bool RestoreState(const unsigned char* puiState, eC_UInt uiSize) override;

    /** Marks the widget as changed, for every CGUIWidgetChanges. */
    void MarkChanged();

protected:
    /** @param kObject the object that is this widget */
    explicit CGUIWidget(CGUIObject& kObject);
    ~CGUIWidget();

    /** Takes an attribute, as CGUIObject::SetAttribute does. A class with attributes of its own handles those
     *  and passes on the others.
     */
    virtual EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                                eC_String& kExpectedOUT);

    /** Takes a value from the source: its text here, its number in classes that have one. */
    virtual void TakeValue(const CGUIValueSource& kValues, GUIContentKey_t uiValue);

    /** @return whether any of its contents come from the translator */
    virtual eC_Bool HasKeys() const { return m_uiTextKey != cuiNoContent; }

    /** @return the text of a key, empty if there is none */
    static const eC_Char* GetTranslation(GUIContentKey_t uiKey);

    /** Finds the key of a text. @return false, with nothing changed, if there is no text of that name */
    static eC_Bool FindTranslation(const eC_Char* pcName, GUIContentKey_t& uiKeyOUT);

    /** Marks the widget, and the row or column that contains it. */
    void MarkMoved();

    /** Marks the widget because its contents have changed, and everything that must move if it needs more
     *  space.
     */
    void MarkContent();

    CGUIText m_kText; ///< the text that is not translated

private:
    friend class CGUIWidgetChanges;

    static void MarkTextsBelow(CGUIWidget* pkWidget);
    static void UpdateValuesBelow(const CGUIObject& kObject);
    static eC_UInt GetPriority(const CGUIWidget* pkWidget);
    static CGUIWidget** FindLink(const CGUIObject* pkObject);

    void Enter();
    void Leave();
    void LeaveChanges();
    EAttributeResult SetContentAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                         eC_String& kExpectedOUT);

    // A treap: sorted by the objects' addresses, and from the root down by priorities computed from them.
    static CGUIWidget* ms_pkTop;

    // In the order of their last marks.
    static CGUIWidget* ms_pkOldest;
    static CGUIWidget* ms_pkNewest;

    static const CGUITranslator* ms_pkTranslator;
    static const CGUIValueSource* ms_pkValues;

    CGUIObject& m_kObject;
    CGUIWidget* m_pkBefore; ///< in the treap, the widgets whose objects have lower addresses
    CGUIWidget* m_pkBehind; ///< in the treap, the widgets whose objects have higher addresses
    CGUIWidget* m_pkOlder;
    CGUIWidget* m_pkNewer;
    short m_iX;
    short m_iY;
    short m_iWidth;
    short m_iHeight;
    GUIContentKey_t m_uiTextKey;
    GUIContentKey_t m_uiSource;
    CGUIText m_kStyle;
};

/** A GUI object that is a widget.
 *  @tparam TBase CGUIObject, or CGUICompositeObject for one with children
 */
template <typename TBase>
class CGUIWidgetObject : public TBase, public CGUIWidget
{
public:
    /** @param pkParent the parent to attach to, or null. @param eID the identifier */
    explicit CGUIWidgetObject(CGUICompositeObject* pkParent = nullptr, ObjectHandle_t eID = NO_HANDLE)
        : TBase(pkParent, eID), CGUIWidget(static_cast<CGUIObject&>(*this))
    {
    }

    /** Sets an attribute that all widgets have, otherwise one of the base class. */
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

    /** Moves it, and marks it as changed. */
    void SetParent(CGUICompositeObject* pkParent) override
    {
        MarkMoved();
        TBase::SetParent(pkParent);
        MarkMoved();
    }

    /** Hides or shows it, and marks it as changed if that is new. */
    void SetInvisible(const eC_Bool& bInvisible) override
    {
        const eC_Bool bChanges = bInvisible != TBase::IsInvisible();
        TBase::SetInvisible(bInvisible);
        if (bChanges)
        {
            MarkMoved();
        }
        else if (!bInvisible)
        {
            // The dialog manager also calls this to raise what is visible already.
            MarkChanged();
        }
    }
};

#endif
