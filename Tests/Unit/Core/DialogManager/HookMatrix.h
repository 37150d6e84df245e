#ifndef TESTS_UNIT_CORE_DIALOGMANAGER_HOOKMATRIX_H
#define TESTS_UNIT_CORE_DIALOGMANAGER_HOOKMATRIX_H

/** @file
 *  What becomes of each operation of the dialog manager when one of its hooks does something: for every
 *  place from which an operation calls a hook (a row of GetHookPlaces) and everything that is done there (a
 *  row of GetHookActs) one cell, with an expected outcome in one line of text.
 *
 *  Beside the hooks, a trace sink and what an application overrides in its objects run inside operations too;
 *  they have places as well.
 *
 *  The expected outcomes are in HookMatrixExpected<hook>.cpp. ./run hooks --update writes those files and
 *  the tables in Docs/HookMatrix.md anew; the difference is to be read before it is kept.
 */

#include "TestSupport/GTest/GUITestFixture.h"
#include "TestSupport/ReactingObject.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <string>
#include <vector>

/** A framework with dialogs and popups, in which one cell is played. */
class CHookStage : public CGUITest
{
public:
    CHookStage();
    ~CHookStage() override;

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

    /** Takes the file of a dialog away; from now on CreateDialogImpl builds the dialog. */
    void BuildInHook(ObjectHandle_t eDialogID);

    /** Takes the file of a dialog away, and nothing else gives it. */
    void MakeUnobtainable(ObjectHandle_t eDialogID);

    /** Sets what runs when an object does something. */
    void SetReaction(CReactingObject::Reaction_t kReaction) { m_kReaction = std::move(kReaction); }

    /** @return a new object, of the kind that all dialogs and popups of definitions are of */
    CReactingObject* Make(ObjectHandle_t eID, CGUICompositeObject* pkParent = nullptr)
    {
        return new CReactingObject(pkParent, eID, m_kReaction);
    }

    /** Destroys the object at the end, unless it hangs in a tree or is gone by then. */
    CGUIObject* Adopt(CGUIObject* pkObject);

    /** @return what the recorded hook calls and errors were, in one line */
    std::string TakeHistoryOfCalls();

    /** @return the state, as items that end in "; " */
    std::string PrintItems();

    /** Expects that nothing leaks, that lists and index are in order, and that the manager can be used. */
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

/** Who runs inside operations beside the hooks; the hooks have the numbers of EHook. */
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

/** The hooks have a file of outcomes each, all others share the next one. */
constexpr eC_UInt cuiNOFHookGroups = cuiNOFHooks + 1;

/** One place at which an operation calls a hook, or something else. */
struct HookPlace_t
{
    eC_UInt m_uiCaller; ///< an EHook or EHookCaller
    EHookOccasion m_eOccasion;
    const char* m_pcName;
    eC_UInt m_uiCall; ///< which call during the operation, 1 for the first
    void (*m_pPrepare)(CHookStage&);
    std::string (*m_pOperate)(CHookStage&); ///< gives the operation's result
    const char* m_pcEntry = "";             ///< for a sink: what the message contains

    /** @return which file of outcomes it is in */
    eC_UInt GetGroup() const { return m_uiCaller < cuiNOFHooks ? m_uiCaller : cuiNOFHooks; }
};

/** What kind of thing is done inside a hook. */
enum EHookActKind : unsigned char
{
    ACT_NOTHING,
    ACT_CHANGES_HISTORY, ///< calls an operation of the manager that changes history or current dialog
    ACT_CALLS,           ///< calls another operation of the manager
    ACT_ACTS,            ///< does what applications do, or several things
    ACT_THROWS
};

/** Something that is done inside a hook. */
struct HookAct_t
{
    const char* m_pcName;
    EHookActKind m_eKind;
    std::string (*m_pAct)(CHookStage&, CGUIObject*); ///< gets what the hook is about; gives the act's result
};

/** @return all places, hook by hook */
const std::vector<HookPlace_t>& GetHookPlaces();

/** @return all acts; the first one does nothing */
const std::vector<HookAct_t>& GetHookActs();

/** What became of one cell. */
struct HookOutcome_t
{
    std::string m_kInner; ///< result of the act
    std::string m_kOuter; ///< result of the operation
    std::string m_kCalls; ///< hook calls and errors, those inside the act in braces
    std::string m_kState; ///< items
};

/** @return false for an exception in a destructor, which would end the program */
bool CanHappen(const HookPlace_t& kPlace, const HookAct_t& kAct);

/** Plays a cell on a new stage, and expects that it leaves everything in order. */
HookOutcome_t PlayHookCell(const HookPlace_t& kPlace, const HookAct_t& kAct);

/** @return the first line of a place */
std::string PrintHookHeadline(const HookPlace_t& kPlace);

/** @return the line of a cell: what differs from the outcome of doing nothing, "=" where nothing does */
std::string PrintHookLine(const HookAct_t& kAct, const HookOutcome_t& kOutcome,
                          const HookOutcome_t& kNothing);

/** @return the line of a cell whose operation does not end */
std::string PrintEndlessHookLine(const HookAct_t& kAct);

/** @return the expected lines of a place, headline first; none when there are none yet */
std::vector<std::string> GetExpectedHookLines(const HookPlace_t& kPlace);

/** @return the lines of a place as they are now. The cells that are expected not to end are not played. */
std::vector<std::string> PlayHookPlace(const HookPlace_t& kPlace);

#endif
