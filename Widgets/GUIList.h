// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUILIST_H
#define WIDGETS_GUILIST_H

/** @file
 *  A list of entries, one of which is selected.
 */

#include "Widgets/GUIWidget.h"

/** The entries of a list, supplied by an application. */
class CGUIListEntries
{
public:
    /** @return the number of entries */
    virtual eC_UInt GetNOFEntries() const = 0;

    /** @param uiEntry less than GetNOFEntries
     *  @return the text of an entry, zero-terminated UTF-8; good until the next call
     */
    virtual const eC_Char* GetEntry(eC_UInt uiEntry) const = 0;

protected:
    ~CGUIListEntries() = default;
};

/** Entries one below the other; the value is the number of the selected one, from 0. The entries come from
 *  the dialog file, or from the application through SetEntries.
 */
class CGUIList : public CGUIWidgetObject<CGUIObject>
{
public:
    /** Creates an empty list that accepts the focus.
     *  @param pkParent the parent to attach to, or null. @param eID the identifier
     */
    explicit CGUIList(CGUICompositeObject* pkParent = nullptr, ObjectHandle_t eID = NO_HANDLE);

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;

    /** Takes the entries from the application instead of the dialog file.
     *  @param pkEntries not owned, outlives the list; null: the entries of the dialog file again
     */
    void SetEntries(const CGUIListEntries* pkEntries);

    /** @return the number of entries */
    eC_UInt GetNOFEntries() const;

    /** @param uiEntry less than GetNOFEntries
     *  @return the text of an entry, zero-terminated; good until the next call
     */
    const eC_Char* GetEntry(eC_UInt uiEntry) const;

    /** @return the height of an entry in units; 1 by default */
    eC_Int GetRowHeight() const { return m_iRowHeight; }

    /** Sets the height of an entry. @param iRowHeight 1 to 32767 units */
    void SetRowHeight(eC_Int iRowHeight);

    /** @param iHeight the height of the list on the display
     *  @return the number of the first visible entry, chosen so that the selected one is visible
     */
    eC_UInt GetFirstShown(eC_Int iHeight) const;

    /** Selects an entry. @param iValue its number; a number out of range is kept until there is such an entry
     *  @return whether the selection changed
     */
    eC_Bool SetValue(eC_Int iValue) override;

    /** @return the number of the selected entry; the last one if there are fewer, 0 if there are none */
    eC_Int GetValue() const override;

    EGUIReaction OnKey(EGUIKey eKey) override;
    EGUIReaction OnTouch(eC_Int iX, eC_Int iY, const GUIArea_t& kArea) override;
    eC_UInt SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const override;
    eC_Bool RestoreState(const unsigned char* puiState, eC_UInt uiSize) override;

protected:
    EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                        eC_String& kExpectedOUT) override;
    void TakeValue(const CGUIValueSource& kValues, GUIContentKey_t uiValue) override;
    eC_Bool HasKeys() const override { return m_bAreKeys || CGUIWidgetObject::HasKeys(); }

private:
    EGUIReaction Select(eC_Int iValue);
    const eC_Char* FindName(eC_UInt uiEntry) const;
    static eC_Bool AreAllKeys(const eC_Char* pcNames);
    void SetNames(const eC_Char* pcNames, eC_Bool bAreKeys);

    const CGUIListEntries* m_pkEntries = nullptr;
    CGUIText m_kNames; ///< from the dialog file, each followed by a zero
    eC_UInt m_uiNOFNames = 0;
    eC_Int m_iValue = 0;
    eC_Int m_iRowHeight = 1;
    eC_Bool m_bAreKeys = false; ///< the names are keys of texts
};

#endif
