// SPDX-License-Identifier: MIT
#ifndef TESTS_ADAPTERS_ADAPTERTEST_H
#define TESTS_ADAPTERS_ADAPTERTEST_H

/** @file
 *  What the tests of all adapters share: a user, dialogs, and random switches.
 */

#include "Adapters/Mirror/GUIMirroredManager.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Widgets/GUIWidgetInput.h"
#include "Widgets/GUIWidgets.h"

#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

/** @return the bytes that the program has allocated */
std::size_t GetHeapUse();

/** Records what the user does, and does what the test wants then. */
class CUser : public CGUIWidgetListener
{
public:
    void OnActivated(CGUIWidget& kWidget) override;
    void OnChanged(CGUIWidget& kWidget) override;

    /** @return what the user has done since the last call */
    std::string TakeLog();

    std::function<void()> m_kOnActivated;

private:
    std::string m_kLog;
};

/** Numbers that are the same in each run. */
class CRandom
{
public:
    /** @return a number from 0 up to, but not including, the end */
    unsigned Below(unsigned uiEnd) { return static_cast<unsigned>(m_kEngine() % uiEnd); }

private:
    std::mt19937 m_kEngine{1};
};

/** A manager whose dialogs a toolkit shows. */
class CAdapterTest : public CGUITest
{
protected:
    CAdapterTest();

    CGUIMirroredManager& Dialogs() { return *m_pkDialogs; }

    /** @return a new screen with a column of buttons */
    CGUIScreen* AddScreen(ObjectHandle_t eID, const std::vector<ObjectHandle_t>& aeButtons);
    void Show(ObjectHandle_t eID,
              CGUIDialogManager::EOldDialogAction eAction = CGUIDialogManager::ODA_INVISIBLE);
    std::string FocusName() const { return NameOfObject(Focus()); }

    /** @return the errors since the last call without their places, each with a line break after it */
    std::string TakeErrors();

    /** Switches between the dialogs DLG_A and DLG_B, which have builders, and DLG_C, which has none, and
     * shows the popups POP_1, which has a builder, and POP_2, all at random. In between, things are deleted,
     * and the toolkit does what it does. In the end the heap has not grown.
     *  @param pcVariable the environment variable with the number of turns
     *  @param iTurns that number if there is none
     */
    void PlayAtRandom(const char* pcVariable, int iTurns);

    /** Lets the toolkit do something that is its own. */
    virtual void DoSomething(CRandom&) {}

    /** Ends what the toolkit does over a longer time. */
    virtual void EndEverything() {}

    /** Lets a turn of the main loop or a little more pass, or less. */
    virtual void LetTimePass(CRandom&) {}

    CUser m_kUser;
    std::unique_ptr<CGUIMirroredManager> m_pkDialogs;

private:
    void AddMissing();
    void DoOneThing(CRandom& kRandom);
    void Settle(CRandom& kRandom);
};

#endif
