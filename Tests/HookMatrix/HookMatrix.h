// SPDX-License-Identifier: MIT
#ifndef TESTS_HOOKMATRIX_HOOKMATRIX_H
#define TESTS_HOOKMATRIX_HOOKMATRIX_H

/** @file
 *  What each operation of the dialog manager does when one of its hooks does something. A place (a row of
 *  GetHookPlaces) is where an operation calls a hook; an inner action (a row of GetInnerActions) is done
 *  inside that hook. Each pair of them is one cell, and its outcome is one line of text.
 *
 *  Besides hooks, a trace sink and the functions that an application overrides in its objects run inside
 *  operations, so they have places too.
 *
 *  The expected outcomes are in Outcomes/<hook>.txt: for each place its headline and one line per inner
 *  action. ./run hooks --update rewrites those files and the tables in Docs/HookMatrix.md; read the
 *  difference before you keep it.
 */

#include "TestSupport/GTest/GUITestFixture.h"
#include "TestSupport/ReactingObject.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <string>
#include <vector>

/** The dialogs and popups with which each cell is played. */
class CHookMatrixFixture : public CGUITest
{
public:
    CHookMatrixFixture();
    ~CHookMatrixFixture() override;

    using CGUITest::Attach;
    using CGUITest::Clock;
    using CGUITest::CodeFactory;
    using CGUITest::DefineDialog;
    using CGUITest::DefinePopup;
    using CGUITest::Events;
    using CGUITest::Manager;
    using CGUITest::Object;
    using CGUITest::PathOf;
    using CGUITest::Root;

    /** Removes the file of a dialog; from now on CreateDialogImpl builds the dialog. */
    void BuildInHook(ObjectHandle_t eDialogID);

    /** Removes the file of a dialog, so that nothing provides it. */
    void MakeUnobtainable(ObjectHandle_t eDialogID);

    /** Sets the function that runs when an object calls back. */
    void SetReaction(CReactingObject::Reaction_t kReaction) { m_kReaction = std::move(kReaction); }

    /** @return a new object, of the same kind as all dialogs and popups from definitions */
    CReactingObject* Make(ObjectHandle_t eID, CGUICompositeObject* pkParent = nullptr)
    {
        return new CReactingObject(pkParent, eID, m_kReaction);
    }

    /** Destroys the object at the end, unless it has a parent or no longer exists then. */
    CGUIObject* Adopt(CGUIObject* pkObject);

    /** @return the recorded hook calls and errors, in one line */
    std::string TakeHistoryOfCalls();

    /** @return the state, as items that end in "; " */
    std::string PrintItems();

    /** Expects no leaks, consistent lists and index, and a usable manager. */
    void ExpectInOrder(const std::string& kWhere);

private:
    void TestBody() override {}

    void LoadReacting(ObjectHandle_t eID, ObjectHandle_t eChild);
    void ExpectNothingLost(const std::string& kWhere);
    void ExpectUsable(const std::string& kWhere);
    void ExpectArbitrated(const std::string& kWhere);

    CReactingObject::Reaction_t m_kReaction;
    std::string m_kDefinitions;
    std::vector<CSafeGUIObjectPtr> m_kAdopted;
};

/** The kind of operation during which a hook is called. */
enum EHookOccasion : unsigned char
{
    OCCASION_SWITCHING,
    OCCASION_GOING_BACK,
    OCCASION_POPUPS
};

/** What else runs inside operations. Hooks have the numbers of EHook. */
enum EHookCaller : unsigned char
{
    CALLER_SINK = cuiNOFHooks,
    CALLER_SET_INVISIBLE,
    CALLER_SET_PARENT,
    CALLER_FOCUS_ANY,
    CALLER_DESTRUCTOR,
    CALLER_COUNT
};

/** @return "OnDialogAdded", "sink" */
const char* NameOfCaller(eC_UInt uiCaller);

/** Each hook has a file of outcomes; all other callers share one. */
constexpr eC_UInt cuiNOFHookGroups = cuiNOFHooks + 1;

/** @return the name of a file of outcomes, and of a table in the document */
std::string NameOfGroup(eC_UInt uiGroup);

/** One place at which an operation calls a hook, or something else. */
struct HookPlace_t
{
    eC_UInt m_uiCaller; ///< an EHook or EHookCaller
    EHookOccasion m_eOccasion;
    const char* m_pcName;
    eC_UInt m_uiCall; ///< which call during the operation, 1 for the first
    void (*m_pPrepare)(CHookMatrixFixture&);
    std::string (*m_pOperate)(CHookMatrixFixture&); ///< returns the operation's result
    const char* m_pcEntry = "";                     ///< for a sink: part of the message

    /** @return the number of its file of outcomes */
    eC_UInt GetGroup() const { return m_uiCaller < cuiNOFHooks ? m_uiCaller : cuiNOFHooks; }
};

/** Kinds of inner actions. */
enum EInnerActionKind : unsigned char
{
    INNER_NOTHING,
    INNER_CHANGES_HISTORY, ///< calls an operation of the manager that changes history or current dialog
    INNER_CALLS,           ///< calls another operation of the manager
    INNER_OTHER,           ///< does something else that applications do, or several things
    INNER_THROWS
};

/** An action inside a hook. */
struct InnerAction_t
{
    const char* m_pcName;
    EInnerActionKind m_eKind;
    std::string (*m_pPerform)(CHookMatrixFixture&, CGUIObject*); ///< takes the hook's object, gives a result
};

/** @return all places, hook by hook */
const std::vector<HookPlace_t>& GetHookPlaces();

/** @return all inner actions; the first one does nothing */
const std::vector<InnerAction_t>& GetInnerActions();

/** What happened in one cell. */
struct HookOutcome_t
{
    std::string m_kInner; ///< result of the inner action
    std::string m_kOuter; ///< result of the operation
    std::string m_kCalls; ///< hook calls and errors, those of the inner action in braces
    std::string m_kState; ///< items
};

/** @return false for an exception from a destructor, which would end the program */
bool CanHappen(const HookPlace_t& kPlace, const InnerAction_t& kInner);

/** Plays a cell with a new manager, and expects everything to be in order afterwards. */
HookOutcome_t PlayHookCell(const HookPlace_t& kPlace, const InnerAction_t& kInner);

/** @return the first line of a place */
std::string PrintHookHeadline(const HookPlace_t& kPlace);

/** @return the line of a cell: the differences from the outcome of doing nothing, "=" where there are none */
std::string PrintHookLine(const InnerAction_t& kInner, const HookOutcome_t& kOutcome,
                          const HookOutcome_t& kNothing);

/** @return the line of a cell whose operation never ends */
std::string PrintEndlessHookLine(const InnerAction_t& kInner);

/** @return the recorded lines of a place, headline first; empty when none are recorded yet */
std::vector<std::string> GetExpectedHookLines(const HookPlace_t& kPlace);

/** @return the current lines of a place. A cell that is recorded as never ending is not played, nor is a
 *         place without a record.
 */
std::vector<std::string> PlayHookPlace(const HookPlace_t& kPlace);

#endif
