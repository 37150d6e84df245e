// SPDX-License-Identifier: MIT
#include "Core/GUIFactoryManager.h"

#include "Core/Control/GUICompositeObject.h"
#include "Core/GUITrace.h"

#include <cstring>

CGUIFactoryManager* CGUIFactoryManager::ms_pInstance = nullptr;

namespace
{
eC_Bool HasPrefix(const eC_String& kText, const eC_String& kPrefix)
{
    return kText.GetLength() >= kPrefix.GetLength() &&
           std::memcmp(kText.GetText(), kPrefix.GetText(), kPrefix.GetLength()) == 0;
}

eC_Bool HasSuffix(const eC_String& kText, const eC_String& kSuffix)
{
    return kText.GetLength() >= kSuffix.GetLength() &&
           std::memcmp(kText.GetText() + kText.GetLength() - kSuffix.GetLength(), kSuffix.GetText(),
                       kSuffix.GetLength()) == 0;
}
} // namespace

CGUIFactoryManager& CGUIFactoryManager::CreateInstance()
{
    if (ms_pInstance == nullptr)
    {
        ms_pInstance = new CGUIFactoryManager();
    }
    ms_pInstance->m_bGoesWithRoot = false;
    return *ms_pInstance;
}

void CGUIFactoryManager::DestroyInstance()
{
    delete ms_pInstance;
    ms_pInstance = nullptr;
}

void CGUIFactoryManager::CreateForRoot()
{
    if (ms_pInstance == nullptr)
    {
        CreateInstance().m_bGoesWithRoot = true;
    }
}

void CGUIFactoryManager::DestroyWithRoot()
{
    if (ms_pInstance != nullptr && ms_pInstance->m_bGoesWithRoot)
    {
        DestroyInstance();
    }
}

CGUIFactoryManager::CGUIFactoryManager() : m_bGoesWithRoot(false)
{
    RegisterObjectClass<CGUIObject>("Object");
    RegisterObjectClass<CGUICompositeObject>("Composite");
}

eC_Bool CGUIFactoryManager::RegisterObjectClass(const eC_Char* pcElementName, ObjectCreator_t pfnCreate)
{
    if (FindCreator(pcElementName) != nullptr)
    {
        return false;
    }
    ObjectClass_t kClass;
    kClass.m_pcElementName = pcElementName;
    kClass.m_pfnCreate = pfnCreate;
    m_kObjectClasses.AddAtEnd(kClass);
    return true;
}

CGUIObject* CGUIFactoryManager::CreateObject(const eC_Char* pcElementName, CGUICompositeObject* pkParent,
                                             ObjectHandle_t eID) const
{
    const ObjectCreator_t pfnCreate = FindCreator(pcElementName);
    return pfnCreate != nullptr ? pfnCreate(pkParent, eID) : nullptr;
}

eC_String CGUIFactoryManager::GetElementNames() const
{
    eC_String kNames;
    for (auto kIterator = m_kObjectClasses.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        kNames += kNames.IsEmpty() ? "" : ", ";
        kNames += (*kIterator).m_pcElementName;
    }
    return kNames;
}

eC_Bool CGUIFactoryManager::RegisterReaderForFileType(const eC_String& kFileType, CGUIDialogReader* pkReader)
{
    return RegisterReader("." + kFileType, false, pkReader);
}

eC_Bool CGUIFactoryManager::RegisterReaderForPathPrefix(const eC_String& kPrefix, CGUIDialogReader* pkReader)
{
    return RegisterReader(kPrefix, true, pkReader);
}

CGUIObject* CGUIFactoryManager::LoadDialogFromFile(const eC_String& kPath)
{
    CGUIDialogReader* pkReader = FindReader(kPath);
    if (pkReader == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR,
               "CGUIFactoryManager::LoadDialogFromFile: " + kPath +
                   ":1:1: no reader is registered for this path; expected a file type or a path prefix "
                   "given to RegisterReaderForFileType or RegisterReaderForPathPrefix.\n");
        return nullptr;
    }
    return pkReader->Read(kPath);
}

CGUIFactoryManager::ObjectCreator_t CGUIFactoryManager::FindCreator(const eC_Char* pcElementName) const
{
    for (auto kIterator = m_kObjectClasses.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        if (std::strcmp((*kIterator).m_pcElementName, pcElementName) == 0)
        {
            return (*kIterator).m_pfnCreate;
        }
    }
    return nullptr;
}

eC_Bool CGUIFactoryManager::RegisterReader(const eC_String& kText, eC_Bool bIsPrefix,
                                           CGUIDialogReader* pkReader)
{
    for (auto kIterator = m_kReaders.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        if ((*kIterator).m_bIsPrefix == bIsPrefix && (*kIterator).m_kText == kText)
        {
            return false;
        }
    }
    RegisteredReader_t kReader;
    kReader.m_kText = kText;
    kReader.m_bIsPrefix = bIsPrefix;
    kReader.m_pkReader = pkReader;
    m_kReaders.AddAtEnd(kReader);
    return true;
}

CGUIDialogReader* CGUIFactoryManager::FindReader(const eC_String& kPath) const
{
    const RegisteredReader_t* pkBest = nullptr;
    for (auto kIterator = m_kReaders.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        const RegisteredReader_t& kReader = *kIterator;
        const eC_Bool bMatches =
            kReader.m_bIsPrefix ? HasPrefix(kPath, kReader.m_kText) : HasSuffix(kPath, kReader.m_kText);
        const eC_Bool bIsBetter = pkBest == nullptr || (kReader.m_bIsPrefix && !pkBest->m_bIsPrefix) ||
                                  (kReader.m_bIsPrefix == pkBest->m_bIsPrefix &&
                                   kReader.m_kText.GetLength() > pkBest->m_kText.GetLength());
        if (bMatches && bIsBetter)
        {
            pkBest = &kReader;
        }
    }
    return pkBest != nullptr ? pkBest->m_pkReader : nullptr;
}
