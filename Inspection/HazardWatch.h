// SPDX-License-Identifier: MIT
#ifndef INSPECTION_HAZARDWATCH_H
#define INSPECTION_HAZARDWATCH_H

/** @file
 *  Tells, while an application runs, what is about to go wrong.
 */

#include "Core/GUITrace.h"
#include "Inspection/GUIInspector.h"

/** What may go wrong, to be combined with |. */
enum EHazard : unsigned int
{
    HAZARD_SAME_IDENTIFIER = 1U << 0U,       ///< two objects under the root have one identifier
    HAZARD_FOCUSABLE_WITHOUT_ID = 1U << 1U,  ///< a focusable object has no identifier
    HAZARD_CREATED_ELSEWHERE = 1U << 2U,     ///< what CreateDialogImpl made is not where it is looked for
    HAZARD_HISTORY_CHANGED = 1U << 3U,       ///< a hook changed the history on the way back
    HAZARD_POPUP_WITHOUT_PARENT = 1U << 4U,  ///< a listed popup has no parent
    HAZARD_NO_FOCUS = 1U << 5U,              ///< there is a dialog, and nobody has the focus
    HAZARD_GOING_BACK_IN_CIRCLES = 1U << 6U, ///< a stepwise go-back comes back to an equal state
    HAZARD_NEVER_REGISTERED = 1U << 7U,      ///< an identifier was asked for that no definition has
    HAZARD_ALL = (HAZARD_NEVER_REGISTERED << 1U) - 1U
};

/** @return the hazard's name: "same-identifier" */
const eC_Char* GetHazardName(EHazard eHazard);

/** @return what it means and what to do about it, in a sentence */
const eC_Char* GetHazardSentence(EHazard eHazard);

/** One hazard, as it is told. */
struct HazardReport_t
{
    EHazard m_eHazard;
    /** The dialog, popup or object that it is about: for an object without identifier the nearest one above
     * it that has one.
     */
    ObjectHandle_t m_eID;
    const eC_Char* m_pcName;     ///< GetHazardName
    const eC_Char* m_pcSentence; ///< GetHazardSentence
};

/** Is told of hazards. */
class CHazardListener
{
public:
    virtual ~CHazardListener() = default;

    /** Is called once for each. */
    virtual void OnHazard(const HazardReport_t& kReport) = 0;
};

/** Watches for hazards. None is watched for until the application says so, and watching changes nothing.
 *
 *  - HAZARD_SAME_IDENTIFIER, HAZARD_FOCUSABLE_WITHOUT_ID, HAZARD_POPUP_WITHOUT_PARENT and HAZARD_NO_FOCUS
 * last: Check looks for them, and they are told once when they begin, for the first object that has them, and
 * again when they concern another one.
 *  - HAZARD_NEVER_REGISTERED is seen in the trace: in the ERROR entries of CreateDialog and ShowPopup. It
 * needs a trace level that has them.
 *  - HAZARD_CREATED_ELSEWHERE, HAZARD_HISTORY_CHANGED and HAZARD_GOING_BACK_IN_CIRCLES need a manager that is
 * a CInspectedManager.
 *
 *  While it lives it stands in front of the trace's sink and passes every entry on.
 */
class CHazardWatch : public CGUITraceSink
{
public:
    /** @param kInspector, kListener not owned; they outlive the watch */
    CHazardWatch(const CGUIInspector& kInspector, CHazardListener& kListener);

    CHazardWatch(const CHazardWatch&) = delete;
    CHazardWatch& operator=(const CHazardWatch&) = delete;

    /** Gives the trace the sink back that it had. */
    ~CHazardWatch() override;

    /** Sets what is watched for. @param uiHazards hazards; 0 for none, as at the beginning */
    void Watch(eC_UInt uiHazards) { m_uiWatched = uiHazards; }

    /** @return true when a hazard is watched for */
    eC_Bool IsWatching(EHazard eHazard) const { return (m_uiWatched & eHazard) != 0; }

    /** Looks for what lasts. To be called once in every turn of the main loop. */
    void Check();

    /** Tells the listener of a hazard, if it is watched for. */
    void Report(EHazard eHazard, ObjectHandle_t eID);

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
    eC_UInt m_uiThere = 0;                   ///< which of those that last were there at the last look
    ObjectHandle_t m_aeIDs[cuiLasting] = {}; ///< and what they concerned
};

#endif
