// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_ADAPTERS_MIRRORTEST_H
#define TESTS_UNIT_ADAPTERS_MIRRORTEST_H

/** @file
 *  A toolkit of native objects that only exist for tests.
 */

#include "Adapters/Mirror/GUIMirror.h"
#include "Adapters/Mirror/GUIMirroredManager.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Tests/Unit/Widgets/WidgetsTest.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/** A native object: it owns its children, the last one on top. */
struct CFakeNative
{
    CFakeNative* m_pkParent = nullptr;
    std::vector<CFakeNative*> m_apkChildren;
    CGUIMirrored* m_pkMirrored = nullptr;
    std::string m_kName;
    std::string m_kText;
    GUIArea_t m_kArea = {0, 0, 0, 0};
    eC_Bool m_bIsShown = true;
};

/** Keeps native objects, checks how it is called, and records the calls. */
class CFakeToolkit : public CGUINativeToolkit
{
public:
    ~CFakeToolkit()
    {
        EXPECT_TRUE(m_kDisplay.m_apkChildren.empty());
        EXPECT_EQ(0, m_iNOFNatives);
    }

    CGUIMirror* m_pkMirror = nullptr;
    CFakeNative m_kDisplay; ///< the parent of the windows
    std::string m_kCalls;   ///< since the last look
    eC_Int m_iNOFNatives = 0;
    CFakeNative* m_pkModal = nullptr;
    CFakeNative* m_pkWindow = nullptr;
    CFakeNative* m_pkFocussed = nullptr;
    ObjectHandle_t m_eUnknown = NO_HANDLE; ///< the identifier of what it cannot make
    eC_Bool m_bIsQuiet = false;            ///< records nothing, and so allocates nothing
    eC_Bool m_bMayChange = false;          ///< whether a commit is running
    std::function<void(const std::string&)> m_kOnCall;

    std::string TakeCalls()
    {
        std::string kCalls;
        kCalls.swap(m_kCalls);
        return kCalls;
    }

    /** Makes a native object on top of its siblings. */
    CFakeNative* Add(CFakeNative& kParent, const std::string& kName)
    {
        auto* pkNative = new CFakeNative;
        ++m_iNOFNatives;
        pkNative->m_pkParent = &kParent;
        pkNative->m_kName = kName;
        kParent.m_apkChildren.push_back(pkNative);
        return pkNative;
    }

    /** Deletes a native object with its children, and tells the mirror of each one as toolkits do. */
    void Destroy(CFakeNative* pkNative)
    {
        if (pkNative->m_pkMirrored != nullptr && pkNative->m_pkMirrored->GetNative() == pkNative)
        {
            m_pkMirror->OnNativeDeleted(*pkNative->m_pkMirrored);
        }
        while (!pkNative->m_apkChildren.empty())
        {
            Destroy(pkNative->m_apkChildren.front());
        }
        auto& kSiblings = pkNative->m_pkParent->m_apkChildren;
        kSiblings.erase(std::find(kSiblings.begin(), kSiblings.end(), pkNative));
        --m_iNOFNatives;
        delete pkNative;
    }

    /** @return the shown native objects, bottom first: name, text, area if asked for, and children */
    std::string Picture(eC_Bool bWithAreas = false) const { return PictureOf(m_kDisplay, bWithAreas); }

    void Measure(const CGUIWidget& kWidget, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const override
    {
        eC_Char acText[64];
        iWidthOUT = static_cast<eC_Int>(kWidget.CopyContent(acText, sizeof(acText)));
        iHeightOUT = 1;
    }

    void* Create(CGUIMirrored& kMirrored) override
    {
        const CGUIObject& kObject = kMirrored.GetWidget()->GetObject();
        Called("create", kMirrored);
        if (kObject.GetID() == m_eUnknown && m_eUnknown != NO_HANDLE)
        {
            return nullptr;
        }
        CGUIMirrored* pkParent = kMirrored.GetParent();
        CFakeNative* pkNative = Add(pkParent != nullptr ? Native(*pkParent) : m_kDisplay, Name(kMirrored));
        pkNative->m_pkMirrored = &kMirrored;
        pkNative->m_bIsShown = !kMirrored.IsWindow();
        return pkNative;
    }

    void* Build(CGUIMirrored& kWindow, CGUIWindowBuilder& kBuilder) override
    {
        m_kCalls += "build " + Name(kWindow) + "; ";
        auto* pkNative = static_cast<CFakeNative*>(kBuilder.Build(&m_kDisplay));
        if (pkNative != nullptr)
        {
            pkNative->m_bIsShown = false;
            pkNative->m_pkMirrored = &kWindow;
        }
        return pkNative;
    }

    void Update(CGUIMirrored& kMirrored, const GUIArea_t& kArea) override
    {
        eC_Char acText[64];
        Called("update", kMirrored);
        kMirrored.GetWidget()->CopyContent(acText, sizeof(acText));
        Native(kMirrored).m_kText = acText;
        Native(kMirrored).m_kArea = kArea;
    }

    void SetShown(CGUIMirrored& kMirrored, eC_Bool bIsShown) override
    {
        EXPECT_NE(bIsShown, Native(kMirrored).m_bIsShown);
        Native(kMirrored).m_bIsShown = bIsShown;
        Called(bIsShown ? "show" : "hide", kMirrored);
    }

    void PutBelow(CGUIMirrored& kMirrored, CGUIMirrored* pkAbove) override
    {
        CFakeNative* pkNative = &Native(kMirrored);
        auto& kSiblings = pkNative->m_pkParent->m_apkChildren;
        kSiblings.erase(std::find(kSiblings.begin(), kSiblings.end(), pkNative));
        auto kPlace = pkAbove == nullptr ? kSiblings.end()
                                         : std::find(kSiblings.begin(), kSiblings.end(), &Native(*pkAbove));
        EXPECT_TRUE(pkAbove == nullptr || kPlace != kSiblings.end());
        kSiblings.insert(kPlace, pkNative);
        Called("put", kMirrored);
    }

    void Delete(CGUIMirrored& kMirrored) override
    {
        Called("delete", kMirrored);
        Destroy(&Native(kMirrored));
    }

    void SetInput(CGUIMirrored* pkModal, CGUIMirrored* pkWindow, CGUIMirrored* pkFocussed) override
    {
        m_pkModal = pkModal != nullptr ? &Native(*pkModal) : nullptr;
        m_pkWindow = pkWindow != nullptr ? &Native(*pkWindow) : nullptr;
        m_pkFocussed = pkFocussed != nullptr ? &Native(*pkFocussed) : nullptr;
        EXPECT_TRUE(m_bMayChange);
        if (!m_bIsQuiet)
        {
            m_kCalls += "input " + InputText() + "; ";
        }
    }

    /** @return modal window, window that gets the keys, and native focus */
    std::string InputText() const
    {
        return NameOf(m_pkModal) + " " + NameOf(m_pkWindow) + " " + NameOf(m_pkFocussed);
    }

    static CFakeNative& Native(const CGUIMirrored& kMirrored)
    {
        return *static_cast<CFakeNative*>(kMirrored.GetNative());
    }

private:
    static std::string NameOf(const CFakeNative* pkNative)
    {
        return pkNative != nullptr ? pkNative->m_kName : "-";
    }

    static std::string Name(const CGUIMirrored& kMirrored)
    {
        return kMirrored.GetWidget() != nullptr ? NameOfHandle(kMirrored.GetWidget()->GetObject().GetID())
                                                : "gone";
    }

    static std::string PictureOf(const CFakeNative& kParent, eC_Bool bWithAreas)
    {
        std::string kPicture;
        for (const CFakeNative* pkChild : kParent.m_apkChildren)
        {
            if (!pkChild->m_bIsShown)
            {
                continue;
            }
            const GUIArea_t& kArea = pkChild->m_kArea;
            const std::string kPlace = std::to_string(kArea.m_iX) + "," + std::to_string(kArea.m_iY) + " " +
                                       std::to_string(kArea.m_iWidth) + "x" + std::to_string(kArea.m_iHeight);
            const std::string kBelow = PictureOf(*pkChild, bWithAreas);
            kPicture += (kPicture.empty() ? "" : " ") + pkChild->m_kName +
                        (pkChild->m_kText.empty() ? "" : "'" + pkChild->m_kText + "'") +
                        (bWithAreas ? "@" + kPlace : "") + (kBelow.empty() ? "" : "(" + kBelow + ")");
        }
        return kPicture;
    }

    void Called(const eC_Char* pcCall, const CGUIMirrored& kMirrored)
    {
        if (m_bIsQuiet)
        {
            return;
        }
        const std::string kText = std::string(pcCall) + " " + Name(kMirrored);
        EXPECT_TRUE(m_bMayChange) << kText;
        m_kCalls += kText + "; ";
        if (m_kOnCall)
        {
            m_kOnCall(kText);
        }
    }
};

/** Builds a window whose parts have the given identifiers. */
class CFakeBuilder final : public CGUIWindowBuilder
{
public:
    CFakeBuilder(CFakeToolkit& kToolkit, std::string kName, std::vector<ObjectHandle_t> aeParts)
        : m_kToolkit(kToolkit), m_kName(std::move(kName)), m_aeParts(std::move(aeParts))
    {
    }

    void* Build(void* pNativeParent) override
    {
        CFakeNative* pkWindow = m_kToolkit.Add(*static_cast<CFakeNative*>(pNativeParent), m_kName);
        for (const ObjectHandle_t ePart : m_aeParts)
        {
            CFakeNative* pkPart = m_kToolkit.Add(*pkWindow, NameOfHandle(ePart));
            pkPart->m_pkMirrored = m_kToolkit.m_pkMirror->AddPart(pkPart, ePart);
        }
        if (m_kInside)
        {
            m_kInside();
        }
        if (m_bFails)
        {
            m_kToolkit.Destroy(pkWindow);
            return nullptr;
        }
        return pkWindow;
    }

    eC_Bool m_bFails = false;
    std::function<void()> m_kInside;

private:
    CFakeToolkit& m_kToolkit;
    std::string m_kName;
    std::vector<ObjectHandle_t> m_aeParts;
};

/** A mirror of a display of 40 by 12 units, and a manager whose dialogs may come from builders. */
class CMirrorTest : public CWidgetsTest
{
protected:
    CMirrorTest()
        : m_pkMirror(new CGUIMirror(m_kToolkit, 40, 12)), m_pkMirrored(new CGUIMirroredManager(*m_pkMirror))
    {
        m_kToolkit.m_pkMirror = m_pkMirror.get();
    }

    ~CMirrorTest() override
    {
        m_pkMirrored.reset();
        m_kToolkit.m_bMayChange = true;
        m_kToolkit.m_kOnCall = nullptr;
        m_pkMirror.reset();
    }

    CGUIMirroredManager& Dialogs() { return *m_pkMirrored; }
    CGUIMirror& Mirror() { return *m_pkMirror; }

    void Commit()
    {
        m_kToolkit.m_bMayChange = true;
        m_pkMirror->Commit();
        m_kToolkit.m_bMayChange = false;
    }

    /** Commits, and forgets what was called and logged. */
    void CommitQuietly()
    {
        Commit();
        m_kToolkit.TakeCalls();
        ClearEvents();
    }

    /** @return a new screen with a button for each identifier */
    CGUIScreen* AddScreen(ObjectHandle_t eID, const std::vector<ObjectHandle_t>& aeButtons)
    {
        auto* pkScreen = new CGUIScreen(&Root(), eID);
        for (const ObjectHandle_t eButton : aeButtons)
        {
            new CGUIButton(pkScreen, eButton);
        }
        return pkScreen;
    }

    /** @return the entries since the last call without their places, each with a line break after it
     *  @param kLevel only those of this level
     */
    std::string TakeLog(const std::string& kLevel = "")
    {
        std::string kLog;
        for (const std::string& kEvent : TakeEvents())
        {
            kLog += kEvent.rfind(kLevel, 0) == 0 ? kEvent.substr(0, kEvent.find(" @")) + "\n" : "";
        }
        return kLog;
    }

    std::string TakeErrors() { return TakeLog("ERROR"); }

    void Show(ObjectHandle_t eID,
              CGUIDialogManager::EOldDialogAction eAction = CGUIDialogManager::ODA_INVISIBLE)
    {
        EXPECT_NE(nullptr, Dialogs().CreateDialog(eID, eAction));
    }

    CFakeNative* NativeOf(ObjectHandle_t eID)
    {
        const CGUIMirrored* pkMirrored = Mirror().Find(Object(eID));
        return pkMirrored != nullptr ? static_cast<CFakeNative*>(pkMirrored->GetNative()) : nullptr;
    }

    CFakeToolkit m_kToolkit;
    std::unique_ptr<CGUIMirror> m_pkMirror;
    std::unique_ptr<CGUIMirroredManager> m_pkMirrored;
};

#endif
