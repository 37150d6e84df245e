// SPDX-License-Identifier: MIT
#ifndef TESTS_STATICORDER_STATICOBJECTS_H
#define TESTS_STATICORDER_STATICOBJECTS_H

/** @file
 *  The static objects that both units of these programs have.
 *
 *  Each one is registered with the list of safe pointers or with the timer from its construction to its
 *  destruction, and its destructor requires that the registration still works. If the list or the timer were
 *  constructed later, the registration would be lost; if they were destroyed earlier, it would be gone.
 */

#include "Core/Control/GUI.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUIAnimatable.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUITimer.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "TestSupport/TestAccess.h"

#include <cstdio>
#include <cstdlib>

/** Fails the program unless a condition holds. While static objects are being destroyed, there is no other
 *  way to change the exit status.
 *  @param pcWhat what should hold, in words
 */
inline void Require(eC_Bool bHolds, const char* pcWhat)
{
    if (!bHolds)
    {
        std::fprintf(stderr, "Does not hold: %s\n", pcWhat);
        std::fflush(stderr);
        std::_Exit(EXIT_FAILURE);
    }
}

/** @return the name of the unit whose static objects were constructed first, null until then */
inline const char*& GetFirstUnit()
{
    static const char* pcName = nullptr;
    return pcName;
}

/** Records which unit comes first. */
class CUnitMark
{
public:
    explicit CUnitMark(const char* pcName)
    {
        if (GetFirstUnit() == nullptr)
        {
            GetFirstUnit() = pcName;
        }
    }
};

/** Owns an object that a static safe pointer points to. */
class CPointedAt
{
public:
    explicit CPointedAt(CSafeGUIObjectPtr& kPointer) : m_pkObject(new CGUIObject), m_pkPointer(&kPointer)
    {
        kPointer = m_pkObject;
    }

    CPointedAt(const CPointedAt&) = delete;
    CPointedAt& operator=(const CPointedAt&) = delete;

    ~CPointedAt()
    {
        Require(m_pkPointer->get() == m_pkObject, "a static safe pointer keeps its object");
        delete m_pkObject;
        Require(m_pkPointer->get() == nullptr, "a static safe pointer is reset with its object");
    }

private:
    CGUIObject* m_pkObject;
    CSafeGUIObjectPtr* m_pkPointer;
};

/** Is registered with the timer as long as it exists. */
class CRegisteredAnimatable : public CGUIAnimatable
{
public:
    CRegisteredAnimatable() { GETTIMER.AddAnimationCallback(60000, this); }

    CRegisteredAnimatable(const CRegisteredAnimatable&) = delete;
    CRegisteredAnimatable& operator=(const CRegisteredAnimatable&) = delete;

    ~CRegisteredAnimatable() override
    {
        Require(GETTIMER.IsAnimating(this), "the timer still holds a static animatable");
    }
};

/** A dialog manager that is destroyed while it shows a timed popup. */
class CManagerWithPopup : public CGUIDialogManager
{
public:
    explicit CManagerWithPopup(ObjectHandle_t ePopupID) : m_ePopupID(ePopupID)
    {
        RegisterPopupDefinition(ePopupID, PRIO_HIGH, 60000, false, eC_String());
    }

    CManagerWithPopup(const CManagerWithPopup&) = delete;
    CManagerWithPopup& operator=(const CManagerWithPopup&) = delete;

    ~CManagerWithPopup() override
    {
        auto& kPopups = CGUITestAccess::GetActivePopups(*this);
        Require(kPopups.GetQuantity() == 1, "a static manager still has its popup");
        const PopupDescription& kPopup = CGUITestAccess::GetFront(kPopups)->m_tValue;
        Require(kPopup.IsAnimating(), "the timer still holds the popup of a static manager");
        Require((kPopup.GetObject() != nullptr) == (CGUI::ms_pInstance != nullptr),
                "the popup's object is there as long as the root, and is not pointed to afterwards");
    }

    /** Shows the popup; the root must exist. */
    void Show() { Require(ShowPopup(m_ePopupID) != nullptr, "a static manager shows its popup"); }

private:
    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override { return new CGUIObject(nullptr, eID); }

    ObjectHandle_t m_ePopupID;
};

/** One of each. */
class COneOfEach
{
public:
    explicit COneOfEach(ObjectHandle_t ePopupID) : m_kPointedAt(m_kPointer), m_kManager(ePopupID) {}

    /** Checks the pointer and the animatable.
     *  @param pcWhat what kind of static object this is
     */
    void Check(const char* pcWhat) const
    {
        Require(m_kPointer.get() != nullptr && m_kAnimatable.IsAnimating(), pcWhat);
    }

    /** Shows the manager's popup; the root must exist. */
    void Show() { m_kManager.Show(); }

private:
    CSafeGUIObjectPtr m_kPointer;
    CPointedAt m_kPointedAt;
    CRegisteredAnimatable m_kAnimatable;
    CManagerWithPopup m_kManager;
};

/** Checks the first unit's static objects and shows the popup of its manager. */
void UseFirstUnit();

/** Checks the second unit's static objects and shows the popup of its manager. */
void UseSecondUnit();

/** Checks the static object of a function and shows the popup of its manager. */
void UseFunctionStaticWithRoot();

/** Checks the static objects whose order is unspecified and shows the popups of their managers. */
void UseUnorderedStatics();

#endif
