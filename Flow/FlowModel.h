// SPDX-License-Identifier: MIT
#ifndef FLOW_FLOWMODEL_H
#define FLOW_FLOWMODEL_H

/** @file
 *  What a flow file says. Docs/FlowFiles.md describes the files.
 */

#include "Core/GUIDialogManager.h"
#include "Loader/DialogElements.h"
#include "Loader/UTF8Text.h"
#include "Widgets/GUIWidget.h"

#include <memory>
#include <string>
#include <vector>

class CDialogDocument;

/** One word of a condition. */
struct FlowTerm_t
{
    enum EKind : unsigned char
    {
        FLAG,   ///< the flag is set
        DIALOG, ///< the dialog is current
        POPUP,  ///< the popup is listed, shown or waiting
        PAST    ///< the dialog is in the history
    };

    EKind m_eKind;
    eC_Bool m_bIsNegated;
    eC_UInt m_uiFlag;         ///< index, for FLAG
    ObjectHandle_t m_eHandle; ///< otherwise
};

/** All its words must hold. */
using FlowCondition_t = std::vector<FlowTerm_t>;

/** What an action does. */
enum EFlowAction : unsigned char
{
    FLOW_CREATE,
    FLOW_BACK,
    FLOW_BACK_TO,
    FLOW_CLEAR,
    FLOW_SHOW_POPUP,
    FLOW_CLOSE_POPUP,
    FLOW_FOCUS,
    FLOW_HIDE,
    FLOW_DESTROY,
    FLOW_SET,
    FLOW_START,
    FLOW_STOP
};

/** One action with its arguments. An action uses those that it has. */
struct FlowAction_t
{
    EFlowAction m_eKind = FLOW_CREATE;
    FlowCondition_t m_kWhen;
    ObjectHandle_t m_eTarget = NO_HANDLE; ///< dialog, popup or object
    CGUIDialogManager::EOldDialogAction m_eOldDialogAction = CGUIDialogManager::ODA_INVISIBLE;
    eC_Bool m_bDelete = true;    ///< back, back-to, clear: delete what is left, if allowed
    eC_Bool m_bStepwise = false; ///< back-to
    eC_Bool m_bCurrent = true;   ///< clear: the current dialog is removed too
    eC_Bool m_bValue = true;     ///< set
    eC_Bool m_bToggle = false;   ///< set: the other value
    eC_UInt m_uiKeep = 0;        ///< clear
    eC_UInt m_uiIndex = 0;       ///< of the flag or the timer
    TextPosition_t m_kPosition;
};

/** What happens on an occasion. */
struct FlowReaction_t
{
    enum EOccasion : unsigned char
    {
        START,  ///< the device is switched on
        BUTTON, ///< a button, a check box, a list or a text field was activated
        KEY,    ///< a key was pressed, or a signal came
        TIMER   ///< a timer has run out
    };

    EOccasion m_eOccasion = START;
    ObjectHandle_t m_eButton = NO_HANDLE;
    eC_UInt m_uiIndex = 0; ///< of the key or the timer
    FlowCondition_t m_kWhen;
    std::vector<FlowAction_t> m_kActions;
    TextPosition_t m_kPosition;
};

/** A key of the device, or something that the device notices. */
struct FlowKey_t
{
    std::string m_kName;
    std::string m_kLabel;
    std::string m_kKeyboard;
    eC_Bool m_bIsSignal = false; ///< not pressed by the user
    eC_Bool m_bIsInput = false;  ///< goes to the widgets
    EGUIKey m_eInput = GUIKEY_NEXT;
    TextPosition_t m_kPosition;
};

struct FlowFlag_t
{
    std::string m_kName;
    eC_Bool m_bValue = false; ///< at first
};

/** A text that widgets name by its key. */
struct FlowText_t
{
    std::string m_kName;
    std::string m_kText;
};

struct FlowTimer_t
{
    std::string m_kName;
    eC_UInt m_uiTime = 0; ///< milliseconds
    eC_Bool m_bRepeats = false;
    eC_Bool m_bStarts = false; ///< runs from the beginning: a point in time
};

/** The objects of one dialog or popup, from a file of its own or from inside the flow file. */
struct FlowScreen_t
{
    std::string m_kPath;  ///< as it is registered with the manager
    std::string m_kFile;  ///< where errors in it are reported
    std::string m_kError; ///< why it cannot be built; empty: it can
    std::shared_ptr<CDialogDocument> m_pkDocument;
    std::vector<DialogElement_t> m_kElements; ///< inside the flow file: those of the dialog alone
    DialogElements_t GetElements() const;

    const DialogAttribute_t* m_pkAttributes = nullptr;
    eC_UInt m_uiFirst = 0; ///< the document's index of the first element
};

struct FlowDialog_t
{
    ObjectHandle_t m_eID = NO_HANDLE;
    std::string m_kName;
    FlowScreen_t m_kScreen;
    TextPosition_t m_kPosition;
};

struct FlowPopup_t : FlowDialog_t
{
    CGUIDialogManager::PopupPriority_t m_ePriority = CGUIDialogManager::PRIO_MEDIUM;
    eC_UInt m_uiTime = 0;
    eC_Bool m_bDeleteOnClose = true;
};

/** What must be true of the flow. */
struct FlowClaim_t
{
    enum EKind : unsigned char
    {
        NEVER,      ///< no state fulfils m_kWhen
        ALWAYS,     ///< every state that fulfils m_kFrom fulfils m_kWhen
        WITHIN,     ///< from every state that fulfils m_kFrom, m_uiKeys keys lead to one that fulfils m_kWhen
        LEFT_ALONE, ///< a state that fulfils m_kFrom and is left alone comes to one that fulfils m_kWhen
        HARMLESS,   ///< in a state that fulfils m_kFrom, the second press of a key changes nothing
        AT_MOST     ///< no state has more than m_uiMost of something
    };

    /** What AT_MOST counts. */
    enum EAmount : unsigned char
    {
        OBJECTS,
        BYTES,   ///< of heap
        ENTRIES, ///< of the history
        POPUPS   ///< listed
    };

    EKind m_eKind = NEVER;
    std::string m_kText; ///< as reports quote it
    FlowCondition_t m_kFrom;
    FlowCondition_t m_kWhen;
    eC_UInt m_uiKeys = 0;
    ObjectHandle_t m_eButton = NO_HANDLE; ///< HARMLESS: a button that has the focus, pressed
    eC_UInt m_uiKey = 0;                  ///< HARMLESS: the key
    EAmount m_eAmount = OBJECTS;          ///< AT_MOST
    eC_UInt m_uiMost = 0;                 ///< AT_MOST
    TextPosition_t m_kPosition;
};

/** A violation that the flow's author knows of. */
struct FlowExpectation_t
{
    std::string m_kProperty; ///< "P1" to "P12"
    std::string m_kAbout;    ///< words of the violation; empty: all of the property
    std::string m_kReason;
    TextPosition_t m_kPosition;
};

/** A flow. */
struct FlowModel_t
{
    std::string m_kFile; ///< the path as it was given
    std::string m_kName;
    eC_Int m_iWidth = 40;
    eC_Int m_iHeight = 14;
    ObjectHandle_t m_eHome = NO_HANDLE; ///< NO_HANDLE: none was given
    eC_Bool m_bHasTouch = false;        ///< the screen can be touched
    std::vector<FlowKey_t> m_kKeys;     ///< keys first, then signals
    std::vector<FlowFlag_t> m_kFlags;
    std::vector<FlowTimer_t> m_kTimers;
    std::vector<FlowText_t> m_kTexts;
    std::vector<FlowDialog_t> m_kDialogs;
    std::vector<FlowPopup_t> m_kPopups;
    std::vector<FlowReaction_t> m_kReactions; ///< the first one that fits happens
    std::vector<FlowClaim_t> m_kClaims;
    std::vector<FlowExpectation_t> m_kExpectations;
};

constexpr std::size_t cuiMostFlowItems = 64; ///< of keys, flags, timers, popups and claims, each

#endif
