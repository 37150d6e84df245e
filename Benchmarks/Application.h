// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_APPLICATION_H
#define BENCHMARKS_APPLICATION_H

/** @file
 *  The measured application: its screens, and how it sets up the library.
 */

#include "Benchmarks/Handles.h"
#include "Core/Control/GUI.h"
#include "Core/Control/GUICompositeObject.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUIFactoryManager.h"

#include <memory>

constexpr unsigned cuiObjectsPerScreen = 20;
constexpr unsigned cuiButtonsPerScreen = 5;

/** The button that has the focus on every screen. It is not the one that gets it by default. */
constexpr unsigned cuiFocussedButton = 2;

/** @return the identifier of a screen: 0 for the first one */
constexpr ObjectHandle_t GetScreenID(unsigned uiScreen)
{
    return static_cast<ObjectHandle_t>(1000 + 10 * uiScreen);
}

/** @return the identifier of a button of a screen: 0 for the first one */
constexpr ObjectHandle_t GetButtonID(ObjectHandle_t eScreenID, unsigned uiButton)
{
    return static_cast<ObjectHandle_t>(eScreenID + 1 + static_cast<int>(uiButton));
}

/** @param uiVisit the number of a visit, from 0
 *  @return the number of the screen that is visited then, from 1. Each is visited once and not in the order
 *          in which they were built, as by a user.
 */
constexpr unsigned GetVisitedScreen(unsigned uiVisit, unsigned uiScreens)
{
    // A prime number shares no factor with the number of screens.
    return 1 + uiVisit * 389 % uiScreens;
}

/** Builds a screen of cuiObjectsPerScreen objects: itself, buttons, and labels without identifier.
 *  @param pkParent its parent, or null
 */
CGUICompositeObject* BuildScreen(CGUICompositeObject* pkParent, ObjectHandle_t eID);

/** @return the identifier of a button of a loaded screen, the same on all of them */
constexpr ObjectHandle_t GetLoadedButtonID(unsigned uiButton)
{
    return static_cast<ObjectHandle_t>(BTN_FIRST + static_cast<int>(uiButton));
}

/** Where screens are loaded from. */
enum ESource : unsigned char
{
    CODE, ///< screens are not loaded
    ROM,  ///< the tables of compiled dialogs
    FILES ///< the files in the directory of the program
};

constexpr const eC_Char* cpcScreenFile = "Screen.xml";     ///< cuiObjectsPerScreen objects
constexpr const eC_Char* cpcLargeFile = "LargeScreen.xml"; ///< cuiObjectsOfLargeScreen objects
constexpr unsigned cuiObjectsOfLargeScreen = 1000;
constexpr unsigned cuiButtonsOfLargeScreen = 100;

/** The manager of the application. It builds in code the screens that are not registered. */
class CBenchmarkManager : public CGUIDialogManager
{
public:
    using CGUIDialogManager::UpdateActivePopups;

protected:
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                 eC_Bool& bRecoverFocusOUT) const override;
    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override;
};

/** Creates the factory with its reader, and destroys it at the end. */
class CBenchmarkFactory
{
public:
    explicit CBenchmarkFactory(ESource eSource);
    CBenchmarkFactory(const CBenchmarkFactory&) = delete;
    CBenchmarkFactory& operator=(const CBenchmarkFactory&) = delete;
    ~CBenchmarkFactory() { CGUIFactoryManager::DestroyInstance(); }

private:
    std::unique_ptr<CGUIDialogReader> m_pkReader;
};

/** Root, factory and manager, created as in an application. */
class CBenchmarkApplication
{
public:
    explicit CBenchmarkApplication(ESource eSource = CODE) : m_kFactory(eSource) {}

    CGUI m_kRoot;
    CBenchmarkFactory m_kFactory;
    CBenchmarkManager m_kManager;
};

/** Gives the focus to an object. */
void Focus(ObjectHandle_t eID);

/** @return the identifier of the object that has the focus, or NO_HANDLE */
ObjectHandle_t GetFocussedID();

#endif
