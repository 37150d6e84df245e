// SPDX-License-Identifier: MIT
#include "Benchmarks/Application.h"

#include "BenchmarkDialogs.h"
#include "Benchmarks/Workload.h"
#include "Core/GUIEventHandler.h"
#include "Loader/GUIDialogROMReader.h"
#include "Loader/GUIDialogXMLReader.h"

GUI_DEFINE_OBJECT_HANDLES(BENCHMARK_HANDLES)

CGUICompositeObject* BuildScreen(CGUICompositeObject* pkParent, ObjectHandle_t eID)
{
    CGUICompositeObject* pkScreen = new CGUICompositeObject(pkParent, eID);
    for (unsigned uiButton = 0; uiButton < cuiButtonsPerScreen; ++uiButton)
    {
        CGUIObject* pkButton = new CGUIObject(pkScreen, GetButtonID(eID, uiButton));
        pkButton->SetFocusable(true);
    }
    for (unsigned uiObject = 1 + cuiButtonsPerScreen; uiObject < cuiObjectsPerScreen; ++uiObject)
    {
        new CGUIObject(pkScreen);
    }
    return pkScreen;
}

CGUIObject* CBenchmarkManager::CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                                eC_Bool& bRecoverFocusOUT) const
{
    static_cast<void>(bAllowDeletionOUT);
    static_cast<void>(bRecoverFocusOUT);
    return BuildScreen(&CGUI::GetInstance(), eID);
}

CGUIObject* CBenchmarkManager::CreatePopupImpl(ObjectHandle_t eID)
{
    return BuildScreen(&CGUI::GetInstance(), eID);
}

CBenchmarkFactory::CBenchmarkFactory(ESource eSource)
{
    CGUIFactoryManager& kFactory = CGUIFactoryManager::CreateInstance();
    if (eSource == ROM)
    {
        m_pkReader = std::make_unique<CGUIDialogROMReader>(ckBenchmarkDialogs);
    }
    else if (eSource == FILES)
    {
        m_pkReader = std::make_unique<CGUIDialogXMLReader>();
    }
    if (m_pkReader != nullptr)
    {
        kFactory.RegisterReaderForFileType("xml", m_pkReader.get());
    }
}

void Focus(ObjectHandle_t eID)
{
    CGUIObject* pkObject = CGUI::GetInstance().GetObjectByID(eID, false);
    Require(pkObject != nullptr && pkObject->RequestFocus());
}

ObjectHandle_t GetFocussedID()
{
    const CGUIObject* pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
    return pkFocussed != nullptr ? pkFocussed->GetID() : NO_HANDLE;
}
