// SPDX-License-Identifier: MIT
#include "Core/GUIFactoryManager.h"

#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "Scenario/EventLog.h"
#include "Scenario/TraceRecorder.h"
#include "TestSupport/GTest/ExpectText.h"
#include "TestSupport/ObjectCensus.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace
{
/** Records what it was asked to read, and builds one object or none. */
class CRecordingReader : public CGUIDialogReader
{
public:
    explicit CRecordingReader(ObjectHandle_t eID) : m_eID(eID) {}

    CGUIObject* Read(const eC_String& kPath) override
    {
        m_kPath = kPath.GetText();
        return m_eID != NO_HANDLE ? new CGUIObject(nullptr, m_eID) : nullptr;
    }

    std::string m_kPath;

private:
    ObjectHandle_t m_eID;
};

class CMyObject : public CGUIObject
{
public:
    CMyObject(CGUICompositeObject* pkParent, ObjectHandle_t eID) : CGUIObject(pkParent, eID)
    {
        SetFocusable(true);
    }
};

class CFactoryTest : public ::testing::Test
{
protected:
    CFactoryTest()
        : m_kBefore(TakeObjectCensus()),
          m_kTraceRecorder(m_kEvents),
          m_kFactory(CGUIFactoryManager::CreateInstance())
    {
    }

    ~CFactoryTest() override
    {
        CGUIFactoryManager::DestroyInstance();
        EXPECT_EQ("", CompareObjectCensus(m_kBefore, TakeObjectCensus()));
    }

    /** @return the identifier of the loaded object, NO_HANDLE for null */
    ObjectHandle_t Load(const char* pcPath)
    {
        const std::unique_ptr<CGUIObject> pkObject(m_kFactory.LoadDialogFromFile(pcPath));
        return pkObject != nullptr ? pkObject->GetID() : NO_HANDLE;
    }

    ObjectCensus_t m_kBefore;
    CEventLog m_kEvents;
    CTraceRecorder m_kTraceRecorder;
    CGUIFactoryManager& m_kFactory;
    CRecordingReader m_kOne{OBJ_1};
    CRecordingReader m_kTwo{OBJ_2};
    CRecordingReader m_kThree{OBJ_3};
    CRecordingReader m_kFailing{NO_HANDLE};
};

TEST_F(CFactoryTest, CreateInstance_MakesTheInstanceOnce)
{
    EXPECT_EQ(&m_kFactory, CGUIFactoryManager::ms_pInstance);
    EXPECT_EQ(&m_kFactory, &CGUIFactoryManager::GetInstance());
    m_kFactory.RegisterObjectClass<CMyObject>("Mine");

    EXPECT_EQ(&m_kFactory, &CGUIFactoryManager::CreateInstance());

    EXPECT_EQ(eC_String("Object, Composite, Mine"), m_kFactory.GetElementNames());
}

TEST_F(CFactoryTest, DestroyInstance_ForgetsEverythingRegistered)
{
    m_kFactory.RegisterObjectClass<CMyObject>("Mine");
    m_kFactory.RegisterReaderForFileType("txt", &m_kOne);

    CGUIFactoryManager::DestroyInstance();
    EXPECT_EQ(nullptr, CGUIFactoryManager::ms_pInstance);
    CGUIFactoryManager::DestroyInstance();
    EXPECT_EQ(nullptr, CGUIFactoryManager::ms_pInstance);

    CGUIFactoryManager& kNew = CGUIFactoryManager::CreateInstance();
    EXPECT_EQ(eC_String("Object, Composite"), kNew.GetElementNames());
    EXPECT_EQ(nullptr, kNew.LoadDialogFromFile("a.txt"));
}

TEST_F(CFactoryTest, CreateObject_MakesTheFrameworksOwnClasses)
{
    const std::unique_ptr<CGUIObject> pkComposite(m_kFactory.CreateObject("Composite", nullptr, DLG_A));
    ASSERT_NE(nullptr, pkComposite);
    EXPECT_TRUE(pkComposite->IsCompositeObject());
    EXPECT_EQ(DLG_A, pkComposite->GetID());
    EXPECT_EQ(nullptr, pkComposite->GetParent());

    auto* pkParent = static_cast<CGUICompositeObject*>(pkComposite.get());
    const CGUIObject* pkObject = m_kFactory.CreateObject("Object", pkParent, OBJ_1);
    ASSERT_NE(nullptr, pkObject);
    EXPECT_FALSE(pkObject->IsCompositeObject());
    EXPECT_EQ(OBJ_1, pkObject->GetID());
    EXPECT_EQ(pkParent, pkObject->GetParent());
}

TEST_F(CFactoryTest, FindCreator_MakesObjectsOfTheClassOfThatName)
{
    m_kFactory.RegisterObjectClass<CMyObject>("Mine");
    const CGUIFactoryManager::ObjectCreator_t pfnMine = m_kFactory.FindCreator("Mine");
    const CGUIFactoryManager::ObjectCreator_t pfnComposite = m_kFactory.FindCreator("Composite");
    ASSERT_NE(nullptr, pfnMine);
    ASSERT_NE(nullptr, pfnComposite);

    m_kFactory.RegisterObjectClass<CGUIObject>("Later");

    EXPECT_EQ(pfnMine, m_kFactory.FindCreator("Mine"));
    const std::unique_ptr<CGUIObject> pkComposite(pfnComposite(nullptr, DLG_A));
    const CGUIObject* pkMine = pfnMine(static_cast<CGUICompositeObject*>(pkComposite.get()), OBJ_1);
    EXPECT_TRUE(pkMine->IsFocusable());
    EXPECT_EQ(OBJ_1, pkMine->GetID());
    EXPECT_EQ(pkComposite.get(), pkMine->GetParent());
}

TEST_F(CFactoryTest, FindCreator_OfAnUnknownName_GivesNull)
{
    EXPECT_EQ(nullptr, m_kFactory.FindCreator("Mine"));
    EXPECT_EQ(nullptr, m_kFactory.FindCreator("composite"));
    EXPECT_EQ(nullptr, m_kFactory.FindCreator(""));
}

TEST_F(CFactoryTest, CreateObject_OfAnUnknownName_GivesNull)
{
    EXPECT_EQ(nullptr, m_kFactory.CreateObject("object", nullptr, OBJ_1));
    EXPECT_EQ(nullptr, m_kFactory.CreateObject("", nullptr, OBJ_1));
    EXPECT_EQ(nullptr, m_kFactory.CreateObject("Objects", nullptr, OBJ_1));
}

TEST_F(CFactoryTest, RegisterObjectClass_AddsAClassOfTheApplication)
{
    EXPECT_TRUE(m_kFactory.RegisterObjectClass<CMyObject>("Mine"));
    EXPECT_TRUE(
        m_kFactory.RegisterObjectClass("Yours",
                                       [](CGUICompositeObject* pkParent, ObjectHandle_t) -> CGUIObject*
                                       { return new CGUIObject(pkParent, OBJ_9); }));

    const std::unique_ptr<CGUIObject> pkMine(m_kFactory.CreateObject("Mine", nullptr, OBJ_4));
    ASSERT_NE(nullptr, pkMine);
    EXPECT_TRUE(pkMine->IsFocusable());
    EXPECT_EQ(OBJ_4, pkMine->GetID());
    const std::unique_ptr<CGUIObject> pkYours(m_kFactory.CreateObject("Yours", nullptr, OBJ_4));
    ASSERT_NE(nullptr, pkYours);
    EXPECT_EQ(OBJ_9, pkYours->GetID());
    EXPECT_EQ(eC_String("Object, Composite, Mine, Yours"), m_kFactory.GetElementNames());
}

TEST_F(CFactoryTest, RegisterObjectClass_OfANameThatIsTaken_ChangesNothing)
{
    EXPECT_FALSE(m_kFactory.RegisterObjectClass<CMyObject>("Object"));

    const std::unique_ptr<CGUIObject> pkObject(m_kFactory.CreateObject("Object", nullptr, OBJ_4));
    EXPECT_FALSE(pkObject->IsFocusable());
    EXPECT_EQ(eC_String("Object, Composite"), m_kFactory.GetElementNames());
}

TEST_F(CFactoryTest, LoadDialogFromFile_ChoosesTheReaderByFileType)
{
    EXPECT_TRUE(m_kFactory.RegisterReaderForFileType("xml", &m_kOne));
    EXPECT_TRUE(m_kFactory.RegisterReaderForFileType("bin", &m_kTwo));

    EXPECT_EQ(OBJ_1, Load("dialogs/home.xml"));
    EXPECT_EQ("dialogs/home.xml", m_kOne.m_kPath);
    EXPECT_EQ(OBJ_2, Load("home.xml.bin"));
    EXPECT_EQ("home.xml.bin", m_kTwo.m_kPath);
    EXPECT_TRUE(m_kEvents.Take().empty());
}

TEST_F(CFactoryTest, LoadDialogFromFile_NeedsTheDotAndTheCaseOfTheFileType)
{
    m_kFactory.RegisterReaderForFileType("xml", &m_kOne);

    EXPECT_EQ(NO_HANDLE, Load("homexml"));
    EXPECT_EQ(NO_HANDLE, Load("home.XML"));
    EXPECT_EQ(NO_HANDLE, Load("home.xml "));
    EXPECT_EQ(NO_HANDLE, Load("xml"));
    EXPECT_EQ(OBJ_1, Load(".xml"));
}

TEST_F(CFactoryTest, LoadDialogFromFile_TriesPrefixesBeforeFileTypesTheLongestFirst)
{
    m_kFactory.RegisterReaderForFileType("verylongtype", &m_kOne);
    m_kFactory.RegisterReaderForPathPrefix("rom:", &m_kTwo);
    m_kFactory.RegisterReaderForPathPrefix("rom:a", &m_kThree);

    EXPECT_EQ(OBJ_2, Load("rom:home.verylongtype"));
    EXPECT_EQ(OBJ_3, Load("rom:about.verylongtype"));
    EXPECT_EQ(OBJ_1, Load("xrom:about.verylongtype"));
    EXPECT_EQ(OBJ_2, Load("rom:"));
}

TEST_F(CFactoryTest, LoadDialogFromFile_TriesPrefixesFirstWhateverTheOrderOfRegistration)
{
    m_kFactory.RegisterReaderForPathPrefix("rom:a", &m_kThree);
    m_kFactory.RegisterReaderForPathPrefix("rom:", &m_kTwo);
    m_kFactory.RegisterReaderForFileType("verylongtype", &m_kOne);

    EXPECT_EQ(OBJ_3, Load("rom:about.verylongtype"));
    EXPECT_EQ(OBJ_2, Load("rom:home.verylongtype"));
}

TEST_F(CFactoryTest, LoadDialogFromFile_TriesTheLongestFileTypeFirstWhateverTheOrderOfRegistration)
{
    m_kFactory.RegisterReaderForFileType("dialog.xml", &m_kThree);
    m_kFactory.RegisterReaderForFileType("xml", &m_kTwo);
    m_kFactory.RegisterReaderForFileType("popup.xml", &m_kOne);

    EXPECT_EQ(OBJ_3, Load("home.dialog.xml"));
    EXPECT_EQ(OBJ_2, Load("home.xml"));
    EXPECT_EQ(OBJ_1, Load("home.popup.xml"));
}

TEST_F(CFactoryTest, LoadDialogFromFile_OfAPathShorterThanWhatIsRegistered_ComparesNothingBesideThePath)
{
    // Longer than what a string keeps in itself, so that the sanitizers see where a path begins and ends.
    const std::string kPath(100, 'a');
    const std::string kLonger(1000, 'a');
    m_kFactory.RegisterReaderForFileType(kLonger.c_str(), &m_kOne);
    m_kFactory.RegisterReaderForPathPrefix(kLonger.c_str(), &m_kTwo);
    m_kFactory.RegisterReaderForFileType("xml", &m_kThree);

    EXPECT_EQ(OBJ_3, Load((kPath + ".xml").c_str()));
}

TEST_F(CFactoryTest, RegisterReader_OfATypeOrPrefixThatIsTaken_ChangesNothing)
{
    EXPECT_TRUE(m_kFactory.RegisterReaderForFileType("xml", &m_kOne));
    EXPECT_TRUE(m_kFactory.RegisterReaderForPathPrefix("rom:", &m_kOne));

    EXPECT_FALSE(m_kFactory.RegisterReaderForFileType("xml", &m_kTwo));
    EXPECT_FALSE(m_kFactory.RegisterReaderForPathPrefix("rom:", &m_kTwo));

    EXPECT_EQ(OBJ_1, Load("a.xml"));
    EXPECT_EQ(OBJ_1, Load("rom:a"));
}

TEST_F(CFactoryTest, RegisterReader_KeepsTypesAndPrefixesOfTheSameTextApart)
{
    EXPECT_TRUE(m_kFactory.RegisterReaderForFileType("xml", &m_kOne));
    EXPECT_TRUE(m_kFactory.RegisterReaderForPathPrefix(".xml", &m_kTwo));

    EXPECT_EQ(OBJ_1, Load("a.xml"));
    EXPECT_EQ(OBJ_2, Load(".xml"));
}

TEST_F(CFactoryTest, LoadDialogFromFile_WithoutAReader_LogsOneErrorThatSaysWhatToRegister)
{
    EXPECT_EQ(nullptr, m_kFactory.LoadDialogFromFile("dialogs/home.xml"));

    EXPECT_TEXT(R"(
        ERROR: CGUIFactoryManager::LoadDialogFromFile: dialogs/home.xml:1:1: no reader is registered for this path; expected a file type or a path prefix given to RegisterReaderForFileType or RegisterReaderForPathPrefix.\n @Source/Core/GUIFactoryManager.cpp:#
    )",
                JoinLines(m_kEvents.Take()));
}

TEST_F(CFactoryTest, LoadDialogFromFile_PassesTheReadersNullOn)
{
    m_kFactory.RegisterReaderForFileType("xml", &m_kFailing);

    EXPECT_EQ(nullptr, m_kFactory.LoadDialogFromFile("home.xml"));

    EXPECT_EQ("home.xml", m_kFailing.m_kPath);
    EXPECT_TRUE(m_kEvents.Take().empty());
}
} // namespace
