// SPDX-License-Identifier: MIT
#ifndef TESTS_MODEL_OPERATIONS_H
#define TESTS_MODEL_OPERATIONS_H

/** @file
 *  The operations that both the library and the model perform.
 */

#include <iosfwd>
#include <string>
#include <vector>

/** One object of a tree to be built for a test. */
struct ShapeNode_t
{
    int m_iDepth; ///< 0 for the top; the parent is the last earlier node with a depth one less
    int m_iID;
    bool m_bIsComposite;
    bool m_bIsFocusable;
    bool m_bIsInvisible;
};

/** A tree; its nodes are created in order. */
using Shape_t = std::vector<ShapeNode_t>;

/** @return the trees that files, creation hooks and the application build */
const std::vector<Shape_t>& GetShapes();

/** What can happen. The comments give the four arguments; each is taken modulo the number of choices. */
enum EOperation : unsigned char
{
    OP_CREATE_DIALOG,      ///< dialog, action
    OP_ADD_DIALOG,         ///< object or none, action, whether to restore the focus
    OP_BACK,               ///< whether to delete
    OP_BACK_TO_DIALOG,     ///< dialog, whether to delete, whether stepwise
    OP_CLEAR_HISTORY,      ///< how many to keep, whether to delete, whether the current one too
    OP_SHOW_POPUP,         ///< popup
    OP_CLOSE_POPUP,        ///< popup
    OP_REGISTER_DIALOG,    ///< dialog, path
    OP_UNREGISTER_DIALOG,  ///< dialog
    OP_REGISTER_POPUP,     ///< popup, priority, time and whether to delete, path
    OP_UNREGISTER_POPUP,   ///< popup
    OP_UPDATE_TIME,        ///< popup, time
    OP_QUERY,              ///< identifier, path
    OP_FIND_PATH,          ///< path
    OP_DYNAMIC_ID,         ///< -
    OP_PRINT_HISTORY,      ///< -
    OP_ARBITRATE,          ///< -
    OP_OBTAIN,             ///< dialog, both flags
    OP_LOAD,               ///< identifier
    OP_BUILD,              ///< shape, identifier, parent or none
    OP_DELETE,             ///< object
    OP_FOCUS,              ///< object
    OP_FOCUS_ANY,          ///< object
    OP_SET_INVISIBLE,      ///< object, flag
    OP_SET_FOCUSABLE,      ///< object, flag
    OP_SET_PARENT,         ///< object, parent or none
    OP_SET_ID,             ///< object, identifier
    OP_RAISE,              ///< object
    OP_ADVANCE,            ///< time
    OP_BE_LATE,            ///< time
    OP_SET_FILE,           ///< path, shape or none
    OP_SET_DIALOG_CREATOR, ///< dialog, shape, kind, flags
    OP_SET_POPUP_CREATOR,  ///< popup, shape, kind
    OP_VETO,               ///< dialog, flag
    OP_FAIL_LOAD,          ///< which of the next loads, how
    OP_FAIL_HOOK,          ///< which of the next hooks, how
    OP_IN_HOOK,            ///< lets the inner operation happen inside the hook, once
    OP_THROW_IN_HOOK,      ///< how
    OP_COUNT
};

/** An operation with its arguments, as drawn at random. */
struct Operation_t
{
    EOperation m_eOperation = OP_QUERY;
    EOperation m_eInner = OP_QUERY; ///< what happens inside the hook
    unsigned int m_uiHook = 0;
    unsigned int m_uiFirst = 0;
    unsigned int m_uiSecond = 0;
    unsigned int m_uiThird = 0;
    unsigned int m_uiFourth = 0;
};

/** @return the name of the operation, for example "CreateDialog" */
const char* NameOfOperation(EOperation eOperation);

/** @return true for operations of the manager and on objects. Inside a hook, nothing moves the clock or
 *         prepares later operations.
 */
bool CanHappenInHook(EOperation eOperation);

/** @return the operation as text */
std::string PrintOperation(const Operation_t& kOperation);

/** Writes the operation as PrintOperation forms it, for reports of failures. */
void showValue(const Operation_t& kOperation, std::ostream& kStream);

/** How a creation hook creates its object. */
enum ECreation : unsigned char
{
    CREATION_UNDER_ROOT,  ///< attached to the root, with the identifier asked for
    CREATION_DETACHED,    ///< without a parent, with the identifier asked for
    CREATION_WITH_OWN_ID, ///< attached to the root, with the identifier of its shape
    CREATION_NULL,        ///< returns null
    CREATION_COUNT
};

/** The library or the model. All values are numbers; objects are numbered in the order of their creation (the
 *  root is 0), -1 means none. Every result is a text, empty for operations without one.
 */
class CDialogSystem
{
public:
    virtual ~CDialogSystem() = default;

    virtual std::string CreateDialog(int iID, int iAction) = 0;
    virtual std::string AddDialog(int iObject, int iAction, bool bRecoverFocus) = 0;
    virtual std::string Back(bool bDelete) = 0;
    virtual std::string BackToDialog(int iID, bool bDelete, bool bStepwise) = 0;
    virtual std::string ClearDialogHistory(unsigned int uiKeep, bool bDelete, bool bDeleteCurrent) = 0;
    virtual std::string ShowPopup(int iID) = 0;
    virtual std::string ClosePopup(int iID) = 0;
    virtual std::string RegisterDialog(int iID, const std::string& kPath) = 0;
    virtual std::string UnregisterDialog(int iID) = 0;
    virtual std::string RegisterPopup(int iID, int iPriority, unsigned int uiTime, bool bDeleteOnClose,
                                      const std::string& kPath) = 0;
    virtual std::string UnregisterPopup(int iID) = 0;
    virtual std::string UpdateTime(int iID, unsigned int uiTime) = 0;
    virtual std::string Query(int iID) = 0;
    virtual std::string FindPath(const std::string& kPath) = 0;
    virtual std::string CreateDynamicID() = 0;
    virtual std::string PrintHistory() = 0;
    virtual std::string Arbitrate() = 0;
    virtual std::string Obtain(int iID, bool bAllowDeletion, bool bRecoverFocus) = 0;
    virtual std::string Load(int iID) = 0;

    /** @param iParent an object, or -1; an object that is no composite stands for the root */
    virtual std::string Build(const Shape_t& kShape, int iID, int iParent) = 0;
    virtual std::string Delete(int iObject) = 0;
    virtual std::string Focus(int iObject) = 0;
    virtual std::string FocusAny(int iObject) = 0;
    virtual std::string SetInvisible(int iObject, bool bInvisible) = 0;
    virtual std::string SetFocusable(int iObject, bool bFocusable) = 0;

    /** Does nothing if the parent is no composite, is the object itself or is below it. */
    virtual std::string SetParent(int iObject, int iParent) = 0;
    virtual std::string SetID(int iObject, int iID) = 0;
    virtual std::string Raise(int iObject) = 0;
    virtual std::string Advance(unsigned int uiTime) = 0;
    virtual std::string BeLate(unsigned int uiTime) = 0;

    /** @param iShape the number of a shape, or -1 for no such file */
    virtual std::string SetFile(const std::string& kPath, int iShape) = 0;
    virtual std::string SetDialogCreator(int iID, int iShape, ECreation eCreation, bool bAllowDeletion,
                                         bool bRecoverFocus) = 0;
    virtual std::string SetPopupCreator(int iID, int iShape, ECreation eCreation) = 0;
    virtual std::string Veto(int iID, bool bVeto) = 0;

    /** @param iHow 0: null, 1: int, 2: exception */
    virtual std::string FailLoad(unsigned int uiLoad, int iHow) = 0;
    virtual std::string FailHook(unsigned int uiCall, int iHow) = 0;
    virtual std::string ThrowInHook(int iHook, int iHow) = 0;
    virtual std::string DoInHook(int iHook, const Operation_t& kInner) = 0;

    /** @return the living objects, the root first */
    virtual std::vector<int> GetObjects() const = 0;

    /** @return the whole state: as the state printer prints it, then a line for each living object */
    virtual std::string GetState() = 0;

    /** @return the hook calls and trace entries in order; then forgets them */
    virtual std::vector<std::string> TakeEvents() = 0;
};

/** Performs an operation.
 *  @return the text of its result; exceptions pass through
 */
std::string Perform(CDialogSystem& kSystem, const Operation_t& kOperation);

/** Performs an operation.
 *  @return the text of its result, "throws ..." for an exception
 */
std::string PerformAndCatch(CDialogSystem& kSystem, const Operation_t& kOperation);

/** @return true for operations that change the history */
bool ChangesHistory(EOperation eOperation);

#endif
