// SPDX-License-Identifier: MIT
#ifndef TESTS_HOOKMATRIX_HOOKMATRIX_H
#define TESTS_HOOKMATRIX_HOOKMATRIX_H

/** @file
 *  What each operation of the dialog manager does when one of its hooks does something. Every place where an
 *  operation calls a hook (a row of GetHookPlaces) with everything done inside that hook (a row of
 *  GetInnerActions) is one cell, and its outcome is one line of text.
 *
 *  Besides the hooks, a trace sink and what an application overrides in its objects run inside operations,
 *  so they have places too.
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

/** The dialogs and popups with which one cell is played. */
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

    /** Removes the file of a dialog; nothing else provides it. */
    void MakeUnobtainable(ObjectHandle_t eDialogID);

    /** Sets what runs when an object does something. */
    void SetReaction(CReactingObject::Reaction_t kReaction) { m_kReaction = std::move(kReaction); }

    /** @return a new object, of the kind that all dialogs and popups of definitions are of */
    CReactingObject* Make(ObjectHandle_t eID, CGUICompositeObject* pkParent = nullptr)
    {
        return new CReactingObject(pkParent, eID, m_kReaction);
    }

    /** Destroys the object at the end, unless it has a parent or is gone by then. */
    CGUIObject* Adopt(CGUIObject* pkObject);

    /** @return what the recorded hook calls and errors were, in one line */
    std::string TakeHistoryOfCalls();

    /** @return the state, as items that end in "; " */
    std::string PrintItems();

    /** Expects that nothing leaks, that lists and index are consistent, and that the manager is usable. */
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

/** During what kind of operation a hook is called. */
enum EHookOccasion : unsigned char
{
    OCCASION_SWITCHING,
    OCCASION_GOING_BACK,
    OCCASION_POPUPS
};

/** What else runs inside operations; the hooks have the numbers of EHook. */
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
    std::string (*m_pOperate)(CHookMatrixFixture&); ///< gives the operation's result
    const char* m_pcEntry = "";                     ///< for a sink: what the message contains

    /** @return which file of outcomes it is in */
    eC_UInt GetGroup() const { return m_uiCaller < cuiNOFHooks ? m_uiCaller : cuiNOFHooks; }
};

/** What kind of thing is done inside a hook. */
enum EInnerActionKind : unsigned char
{
    INNER_NOTHING,
    INNER_CHANGES_HISTORY, ///< calls an operation of the manager that changes history or current dialog
    INNER_CALLS,           ///< calls another operation of the manager
    INNER_OTHER,           ///< does what applications do, or several things
    INNER_THROWS
};

/** Something that is done inside a hook. */
struct InnerAction_t
{
    const char* m_pcName;
    EInnerActionKind m_eKind;
    std::string (*m_pPerform)(CHookMatrixFixture&, CGUIObject*); ///< gets the hook's object, gives a result
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

/** @return false for an exception in a destructor, which would end the program */
bool CanHappen(const HookPlace_t& kPlace, const InnerAction_t& kInner);

/** Plays a cell with a new manager, and expects that it leaves everything in order. */
HookOutcome_t PlayHookCell(const HookPlace_t& kPlace, const InnerAction_t& kInner);

/** @return the first line of a place */
std::string PrintHookHeadline(const HookPlace_t& kPlace);

/** @return the line of a cell: what differs from the outcome of doing nothing, "=" where nothing does */
std::string PrintHookLine(const InnerAction_t& kInner, const HookOutcome_t& kOutcome,
                          const HookOutcome_t& kNothing);

/** @return the line of a cell whose operation does not end */
std::string PrintEndlessHookLine(const InnerAction_t& kInner);

/** @return the recorded lines of a place, headline first; empty when none are recorded yet */
std::vector<std::string> GetExpectedHookLines(const HookPlace_t& kPlace);

/** @return the lines of a place as they are now. What is recorded as not ending is not played, nor a place
 *          without a record.
 */
std::vector<std::string> PlayHookPlace(const HookPlace_t& kPlace);

#endif
