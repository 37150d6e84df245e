// SPDX-License-Identifier: MIT
#include "Tests/Adapters/AdapterTest.h"

#include <malloc.h>

#include <cstdlib>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t GetSanitizedHeapUse() __asm__("__sanitizer_get_current_allocated_bytes");
#endif

std::size_t GetHeapUse()
{
#ifdef __SANITIZE_ADDRESS__
    return GetSanitizedHeapUse();
#else
    return mallinfo2().uordblks;
#endif
}

void CUser::OnActivated(CGUIWidget& kWidget)
{
    m_kLog += "activated " + NameOfHandle(kWidget.GetObject().GetID()) + "; ";
    if (m_kOnActivated)
    {
        m_kOnActivated();
    }
}

void CUser::OnChanged(CGUIWidget& kWidget)
{
    m_kLog += "changed " + NameOfHandle(kWidget.GetObject().GetID()) + " " +
              std::to_string(kWidget.GetValue()) + kWidget.GetText() + "; ";
}

std::string CUser::TakeLog()
{
    std::string kLog;
    kLog.swap(m_kLog);
    return kLog;
}

CAdapterTest::CAdapterTest()
{
    RegisterGUIWidgets(CGUIFactoryManager::GetInstance());
}

CGUIScreen* CAdapterTest::AddScreen(ObjectHandle_t eID, const std::vector<ObjectHandle_t>& aeButtons)
{
    auto* pkScreen = new CGUIScreen(&Root(), eID);
    pkScreen->SetLayout(LAYOUT_COLUMN, 4, 30);
    for (const ObjectHandle_t eButton : aeButtons)
    {
        auto* pkButton = new CGUIButton(pkScreen, eButton);
        pkButton->SetSize(100, 30);
        pkButton->SetText(NameOfHandle(eButton).c_str());
    }
    return pkScreen;
}

void CAdapterTest::Show(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction)
{
    EXPECT_NE(nullptr, Dialogs().CreateDialog(eID, eAction));
}

std::string CAdapterTest::TakeErrors()
{
    std::string kErrors;
    for (const std::string& kEvent : TakeEvents())
    {
        kErrors += kEvent.rfind("ERROR", 0) == 0 ? kEvent.substr(0, kEvent.find(" @")) + "\n" : "";
    }
    return kErrors;
}

void CAdapterTest::PlayAtRandom(const char* pcVariable, int iTurns)
{
    const char* pcTurns = std::getenv(pcVariable);
    iTurns = pcTurns != nullptr ? std::atoi(pcTurns) : iTurns;
    CRandom kRandom;
    Dialogs().RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_HIGH, 50, false, "");
    const auto Play = [&](int iEnd)
    {
        for (int iTurn = 0; iTurn < iEnd; ++iTurn)
        {
            AddMissing();
            DoOneThing(kRandom);
            LetTimePass(kRandom);
            m_kUser.TakeLog();
        }
        Settle(kRandom);
    };
    // What the test itself records would count as well.
    CGUITraceSink* const pkSink = CGUITrace::GetInstance().GetSink();
    CGUITrace::GetInstance().SetSink(nullptr);
    // Until the lists and tables have reached their greatest size.
    Play(2000 + iTurns / 4);
    const std::size_t uiBefore = GetHeapUse();
    Play(iTurns);
    EXPECT_GE(uiBefore + 4096, GetHeapUse());
    CGUITrace::GetInstance().SetSink(pkSink);
}

void CAdapterTest::AddMissing()
{
    if (Object(DLG_C) == nullptr)
    {
        AddScreen(DLG_C, {OBJ_6, OBJ_7})->SetInvisible(true);
    }
    if (Object(POP_2) == nullptr)
    {
        auto* pkPopup = new CGUIPopup(&Root(), POP_2);
        pkPopup->SetInvisible(true);
        new CGUIButton(pkPopup, OBJ_8);
    }
}

void CAdapterTest::DoOneThing(CRandom& kRandom)
{
    const ObjectHandle_t aeDialogs[] = {DLG_A, DLG_B, DLG_C};
    switch (kRandom.Below(10))
    {
    case 0:
    case 1:
    case 2:
        Dialogs().CreateDialog(aeDialogs[kRandom.Below(3)],
                               static_cast<CGUIDialogManager::EOldDialogAction>(kRandom.Below(5)));
        break;
    case 3:
    case 4:
        Dialogs().Back(kRandom.Below(2) == 0);
        break;
    case 5:
        Dialogs().ShowPopup(kRandom.Below(2) == 0 ? POP_1 : POP_2);
        break;
    case 6:
        Dialogs().ClosePopup(kRandom.Below(2) == 0 ? POP_1 : POP_2);
        break;
    case 7:
        if (Dialogs().GetHistoryStackSize() > 20)
        {
            Dialogs().ClearDialogHistory(1, true, true);
        }
        break;
    case 8:
        if (kRandom.Below(3) == 0)
        {
            delete Object(aeDialogs[kRandom.Below(3)]);
        }
        break;
    default:
        DoSomething(kRandom);
        break;
    }
}

void CAdapterTest::Settle(CRandom& kRandom)
{
    EndEverything();
    while (Dialogs().ClosePopup(POP_1) || Dialogs().ClosePopup(POP_2))
    {
    }
    Dialogs().ClearDialogHistory(0, true, true);
    for (const ObjectHandle_t eID : {DLG_A, DLG_B, DLG_C, POP_2})
    {
        delete Object(eID);
    }
    for (int iTurn = 0; iTurn < 20; ++iTurn)
    {
        LetTimePass(kRandom);
    }
}
