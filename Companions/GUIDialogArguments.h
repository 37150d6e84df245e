// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIDIALOGARGUMENTS_H
#define COMPANIONS_GUIDIALOGARGUMENTS_H

/** @file
 *  Values that a switch hands to a dialog, and that the dialog hands back to its predecessor.
 */

#include "Companions/GUIObservedDialogManager.h"

#include <cstddef>
#include <new>
#include <optional>
#include <type_traits>
#include <utility>

/** Holds the arguments with which dialogs were shown, and the results that they leave for their predecessors.
 *
 *  An argument belongs to one visit of a dialog: to the current dialog, and to its entry when the history
 *  records it. It survives the deletion and rebuilding of the dialog, and is destroyed when the visit is
 * over: when the dialog is left by going back, or its entry is removed. The same dialog may be in the history
 *  several times, each time with another argument.
 *
 *  A result belongs to the predecessor of the dialog that sets it. The predecessor takes it after coming
 *  back, in OnDialogActivation or later. It is destroyed when the predecessor switches on without having
 *  taken it, or is itself gone.
 *
 *  Values may have any type that can be moved. Reading one checks the type, without run-time type
 *  information: each type is known by the address of a byte of its own. (Code in two shared libraries that
 *  hide their symbols has two such bytes, and does not find each other's values.)
 *
 *  Values are kept in places of a fixed size, see CGUIDialogArgumentsOf; no heap memory is used. Create this
 *  object before the listeners that read values, switch or throw in hooks: those that were added earlier run
 *  before the values of a switch are in place. The manager may be destroyed first; nothing can be switched
 *  after that. A hook may call any operation, but must not destroy the object. Moving or destroying a value
 *  must not switch or go back. Logging an ERROR may throw std::bad_alloc.
 */
class CGUIDialogArguments : private CGUIDialogListener
{
public:
    /** A value, or room for one. */
    struct Place_t
    {
        /** What the value is. */
        enum EState : unsigned char
        {
            FREE,      ///< no value
            BUSY,      ///< a value is being created or destroyed
            SWITCHING, ///< the argument of a switch that has not shown the dialog yet
            ARGUMENT,  ///< the argument of the dialog
            RESULT     ///< a result for the dialog
        };

        const void* m_pType = nullptr;                ///< see GetType
        void (*m_pfnDestroy)(void* pValue) = nullptr; ///< destroys the value
        ObjectHandle_t m_eDialogID = NO_HANDLE;       ///< whose value it is
        eC_UInt m_uiLevel = 0;  ///< how many dialogs were below the dialog when it was shown
        EState m_eState = FREE; ///< what the place is used for
    };

    CGUIDialogArguments(const CGUIDialogArguments&) = delete;
    CGUIDialogArguments& operator=(const CGUIDialogArguments&) = delete;

    /** @return the argument of the current dialog, which may be changed and stays until the visit is over;
     *          null if there is none, or one of another type. Logged: ERROR for another type.
     */
    template <typename TValue>
    TValue* GetArgument() const
    {
        return GetAs<TValue>(FindArgument());
    }

    /** For CreateDialogImpl and whoever else builds a dialog that is not current yet.
     *  @return the argument of the most recent visit of a dialog, also of one that a switch in progress will
     *          show; null as above. Logged: as above.
     */
    template <typename TValue>
    TValue* GetArgument(ObjectHandle_t eDialogID) const
    {
        return GetAs<TValue>(FindArgument(eDialogID));
    }

    /** For those who save arguments.
     *  @param uiLevel how many dialogs were below the dialog when it was shown: 0 for the oldest entry of the
     *         history, GetHistoryStackSize for the current dialog
     *  @return the argument of that visit; null as above. Logged: as above.
     */
    template <typename TValue>
    TValue* GetArgument(ObjectHandle_t eDialogID, eC_UInt uiLevel) const
    {
        return GetAs<TValue>(Find(Place_t::ARGUMENT, eDialogID, uiLevel));
    }

    /** Moves the result for the current dialog out, so that it can be taken once.
     *  @return the result; none if there is none, or one of another type, which stays. Logged: ERROR for
     *          another type.
     */
    template <typename TValue>
    std::optional<TValue> TakeResult()
    {
        Place_t* const pkPlace = FindResult();
        TValue* const pkResult = GetAs<TValue>(pkPlace);
        if (pkResult == nullptr)
        {
            return std::nullopt;
        }
        std::optional<TValue> kResult(std::move(*pkResult));
        Free(*pkPlace);
        return kResult;
    }

    /** @return how many values are held */
    eC_UInt GetNOFValues() const;

protected:
    /** Listens to the manager.
     *  @param pkPlaces, uiNOFPlaces the places, not owned; not touched yet
     *  @param puiValues the memory of their values, not owned; not touched yet
     *  @param uiValue how many bytes of it each place has
     */
    CGUIDialogArguments(CGUIObservedDialogManager& kManager, Place_t* pkPlaces, eC_UInt uiNOFPlaces,
                        unsigned char* puiValues, std::size_t uiValue);

    ~CGUIDialogArguments() override;

    /** Stores a value. @return its place, BUSY, or null if all are taken */
    template <typename TValue>
    Place_t* Store(TValue&& tValue)
    {
        using Value_t = std::decay_t<TValue>;
        Place_t* const pkPlace = TakePlace();
        if (pkPlace != nullptr)
        {
            try
            {
                ::new (GetValue(*pkPlace)) Value_t(std::forward<TValue>(tValue));
            }
            catch (...)
            {
                pkPlace->m_eState = Place_t::FREE;
                throw;
            }
            pkPlace->m_pType = GetType<Value_t>();
            pkPlace->m_pfnDestroy = &Destroy<Value_t>;
        }
        return pkPlace;
    }

    /** Switch with an argument that is in its place already; they free the place when they fail.
     *  @{
     */
    CGUIObject* CreateDialog(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction,
                             Place_t* pkArgument);
    eC_Bool AddDialog(CGUIObject& kDialog, CGUIDialogManager::EOldDialogAction eAction, eC_Bool bRecoverFocus,
                      Place_t* pkArgument);
    /** @} */

    /** Makes a value in its place the result for the last dialog of the history. Null: ERROR. @return false
     * then */
    eC_Bool SetResult(Place_t* pkResult);

    /** @return whether the dialog is current that could have a result; destroys the one set before */
    eC_Bool PrepareResult();

    /** @return true until the manager is destroyed */
    eC_Bool HasManager() const { return GetManager() != nullptr; }

    /** Destroys all values. */
    void FreeAll();

private:
    class CSwitch;

    void OnDialogAdded(CGUIObject* pDialog) override;
    void OnDialogActivation(CGUIObject* pDialog) override;
    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override;
    void OnLastDialogDeletion() override;

    /** The address of a byte that belongs to one type. */
    template <typename TValue>
    static const void* GetType()
    {
        // Not constant, because linkers may merge constants.
        static char s_cMark = 0;
        return &s_cMark;
    }

    template <typename TValue>
    static void Destroy(void* pValue)
    {
        static_cast<TValue*>(pValue)->~TValue();
    }

    template <typename TValue>
    TValue* GetAs(Place_t* pkPlace) const
    {
        return IsOf(pkPlace, GetType<TValue>()) ? std::launder(static_cast<TValue*>(GetValue(*pkPlace)))
                                                : nullptr;
    }

    void* GetValue(const Place_t& kPlace) const;
    Place_t* TakePlace() const;
    Place_t* FindArgument() const;
    Place_t* FindArgument(ObjectHandle_t eDialogID) const;
    Place_t* FindResult() const;
    Place_t* Find(Place_t::EState eState, ObjectHandle_t eDialogID, eC_UInt uiLevel) const;
    Place_t* FindHighest(Place_t::EState eState, ObjectHandle_t eDialogID) const;
    static eC_Bool IsOf(const Place_t* pkPlace, const void* pType);
    void Free(Place_t& kPlace);
    void FreeLevels(Place_t::EState eState, eC_UInt uiFirst, eC_UInt uiLast);
    void FreeLevels(eC_UInt uiFirst, eC_UInt uiLast);
    void NoteNewVisit();
    void NoteReturn();

    Place_t* m_pkPlaces;
    eC_UInt m_uiNOFPlaces;
    unsigned char* m_puiValues;
    std::size_t m_uiValue;
    eC_UInt m_uiLevel;           ///< of the dialog that was current when a hook last told
    ObjectHandle_t m_eDialogID;  ///< that dialog
    eC_UInt m_uiNOFSwitches = 0; ///< in progress, one inside another
};

/** A CGUIDialogArguments with its places, and the operations that take values.
 *  @tparam uiMost how many values it holds at the same time: arguments and results of the current dialog and
 *          of the history; at least 1
 *  @tparam uiBytes the size of the largest value
 */
template <eC_UInt uiMost, std::size_t uiBytes>
class CGUIDialogArgumentsOf : public CGUIDialogArguments
{
    static_assert(uiMost > 0 && uiBytes > 0, "room for a value at least");

public:
    /** @param kManager the manager, not owned */
    explicit CGUIDialogArgumentsOf(CGUIObservedDialogManager& kManager)
        : CGUIDialogArguments(kManager, m_akPlaces, uiMost, m_auiValues, cuiValue)
    {
    }

    /** Destroys all values. */
    ~CGUIDialogArgumentsOf() override { FreeAll(); }

    /** Switches with CGUIDialogManager::CreateDialog and hands the dialog an argument. The argument is in
     *  place when the dialog's hooks run. If the switch fails, it is destroyed. Hooks and exceptions are
     * those of CreateDialog, and what moving the value throws, before anything is done. Logged: ERROR if
     * there is no room for the value; what CreateDialog logs.
     *  @param tValue copied or moved
     *  @return the dialog; null as from CreateDialog, and, with nothing changed, if there is no room
     */
    template <typename TValue>
    CGUIObject* CreateDialog(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction, TValue&& tValue)
    {
        CheckValue<std::decay_t<TValue>>();
        return HasManager()
                   ? CGUIDialogArguments::CreateDialog(eID, eAction, Store(std::forward<TValue>(tValue)))
                   : nullptr;
    }

    /** The same with CGUIDialogManager::AddDialog. A dialog without identifier gets its dynamic one first.
     *  Logged: ERROR if there is no room for the value; what AddDialog logs.
     *  @param kDialog attached and shown by the caller. @return false, with nothing changed, if there is no
     *         room
     */
    template <typename TValue>
    eC_Bool AddDialog(CGUIObject& kDialog, CGUIDialogManager::EOldDialogAction eAction, eC_Bool bRecoverFocus,
                      TValue&& tValue)
    {
        CheckValue<std::decay_t<TValue>>();
        return HasManager() && CGUIDialogArguments::AddDialog(kDialog, eAction, bRecoverFocus,
                                                              Store(std::forward<TValue>(tValue)));
    }

    /** Leaves a result for the dialog that Back would show. It replaces one that was set before. Call it
     *  while the dialog that has the result is current, up to the hook that says it is left.
     *  Logged: ERROR if there is no room for the value. Throws what moving the value throws.
     *  @param tValue copied or moved
     *  @return false if there is no such dialog or no room
     */
    template <typename TValue>
    eC_Bool SetResult(TValue&& tValue)
    {
        CheckValue<std::decay_t<TValue>>();
        return PrepareResult() && CGUIDialogArguments::SetResult(Store(std::forward<TValue>(tValue)));
    }

private:
    template <typename TValue>
    static void CheckValue()
    {
        static_assert(sizeof(TValue) <= uiBytes, "the value is larger than the places");
        static_assert(alignof(TValue) <= alignof(std::max_align_t), "the value is over-aligned");
    }

    static constexpr std::size_t cuiAlignment = alignof(std::max_align_t);
    static constexpr std::size_t cuiValue = (uiBytes + cuiAlignment - 1) / cuiAlignment * cuiAlignment;

    Place_t m_akPlaces[uiMost];
    alignas(std::max_align_t) unsigned char m_auiValues[uiMost * cuiValue];
};

#endif
