// SPDX-License-Identifier: MIT
#ifndef INSPECTION_HAZARDWATCH_H
#define INSPECTION_HAZARDWATCH_H

/** @file
 *  Warns, while an application runs, of what is about to go wrong.
 */

#include "Core/GUITrace.h"
#include "Inspection/GUIInspector.h"

/** What may go wrong, to be combined with |. */
enum EHazard : unsigned int
{
    HAZARD_SAME_IDENTIFIER = 1U << 0U,       ///< two objects under the root have the same identifier
    HAZARD_FOCUSABLE_WITHOUT_ID = 1U << 1U,  ///< a focusable object has no identifier
    HAZARD_CREATED_ELSEWHERE = 1U << 2U,     ///< what CreateDialogImpl made is not where it is looked for
    HAZARD_HISTORY_CHANGED = 1U << 3U,       ///< a hook changed the history while going back
    HAZARD_POPUP_WITHOUT_PARENT = 1U << 4U,  ///< a listed popup has no parent
    HAZARD_NO_FOCUS = 1U << 5U,              ///< there is a dialog, but no object has the focus
    HAZARD_GOING_BACK_IN_CIRCLES = 1U << 6U, ///< going back stepwise returns to an equal state
    HAZARD_NEVER_REGISTERED = 1U << 7U,      ///< an identifier was requested that no definition has
    HAZARD_ALL = (HAZARD_NEVER_REGISTERED << 1U) - 1U
};

/** @return the hazard's name: "same-identifier" */
const eC_Char* GetHazardName(EHazard eHazard);

/** @return what it means and what to do about it, in a sentence */
const eC_Char* GetHazardSentence(EHazard eHazard);

/** One hazard, as it is reported. */
struct HazardReport_t
{
    EHazard m_eHazard; ///< which one
    /** The dialog, popup or object in question. For an object without identifier, the nearest ancestor that
     *  has one.
     */
    ObjectHandle_t m_eID;
    const eC_Char* m_pcName;     ///< GetHazardName
    const eC_Char* m_pcSentence; ///< GetHazardSentence
};

/** Receives hazard reports. */
class CHazardListener
{
public:
    virtual ~CHazardListener() = default;

    /** Called once for each hazard. */
    virtual void OnHazard(const HazardReport_t& kReport) = 0;
};

/** Watches for hazards. It watches for none until the application selects some, and watching changes nothing.
 *
 *  - HAZARD_SAME_IDENTIFIER, HAZARD_FOCUSABLE_WITHOUT_ID, HAZARD_POPUP_WITHOUT_PARENT and HAZARD_NO_FOCUS are
 *    lasting conditions. Check looks for them. Each is reported once when it begins, for the first object
 *    affected, and again when another one is.
 *  - HAZARD_NEVER_REGISTERED is recognised from the ERROR entries of CreateDialog and ShowPopup in the trace.
 *    It needs a trace level that includes them.
 *  - HAZARD_CREATED_ELSEWHERE, HAZARD_HISTORY_CHANGED and HAZARD_GOING_BACK_IN_CIRCLES need a manager that is
 *    a CInspectedManager.
 *
 *  While it exists, it replaces the trace's sink and passes every entry on to the previous one.
 */
class CHazardWatch : public CGUITraceSink
{
public:
    /** @param kInspector, kListener not owned; they outlive the watch */
    CHazardWatch(const CGUIInspector& kInspector, CHazardListener& kListener);

    CHazardWatch(const CHazardWatch&) = delete;
    CHazardWatch& operator=(const CHazardWatch&) = delete;

    /** Restores the trace's previous sink. */
    ~CHazardWatch() override;

    /** Selects what to watch for. @param uiHazards hazards; 0 for none, as at first */
    void Watch(eC_UInt uiHazards) { m_uiWatched = uiHazards; }

    /** @return true if this hazard is being watched for */
    eC_Bool IsWatching(EHazard eHazard) const { return (m_uiWatched & eHazard) != 0; }

    /** Looks for lasting hazards. Call it once in every turn of the main loop. */
    void Check();

    /** Reports a hazard to the listener if it is being watched for. */
    void Report(EHazard eHazard, ObjectHandle_t eID);

    /** @return what it reads the state with */
    const CGUIInspector& GetInspector() const { return m_kInspector; }

    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String& kLine) override;

private:
    static constexpr eC_UInt cuiLasting = 4;

    void CheckLasting(eC_UInt uiPlace, EHazard eHazard, eC_Bool bIsThere, ObjectHandle_t eID);
    void CheckMessage(const eC_Char* pcMessage);

    const CGUIInspector& m_kInspector;
    CHazardListener& m_kListener;
    CGUITraceSink* m_pkNextSink;
    eC_UInt m_uiWatched = 0;
    eC_UInt m_uiThere = 0;                   ///< the lasting hazards that were found at the last look
    ObjectHandle_t m_aeIDs[cuiLasting] = {}; ///< and the objects they were found for
};

#endif
