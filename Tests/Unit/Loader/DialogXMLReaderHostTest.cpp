// SPDX-License-Identifier: MIT
#include "Tests/Unit/Loader/DialogFileHostTest.h"

#include "Core/Utils/eC_String.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <stdexcept>

namespace
{
std::string Repeat(const std::string& kText, std::size_t uiTimes)
{
    std::string kResult;
    for (std::size_t uiTime = 0; uiTime < uiTimes; ++uiTime)
    {
        kResult += kText;
    }
    return kResult;
}

/** @return a file with nested elements */
std::string Nest(std::size_t uiLevels)
{
    return Repeat("<Composite>", uiLevels - 1) + "<Object/>" + Repeat("</Composite>", uiLevels - 1);
}

/** An element "Label" with attributes that all differ and that a Label does not know. */
std::string MakeLabelWithAttributes(std::size_t uiNOFAttributes)
{
    std::string kText = "<Label";
    for (std::size_t uiAttribute = 0; uiAttribute < uiNOFAttributes; ++uiAttribute)
    {
        kText += "\na" + std::to_string(uiAttribute) + "=''";
    }
    return kText + "/>";
}

/** Accepts every attribute and every child. */
class CGreedyObject : public CGUICompositeObject
{
public:
    using CGUICompositeObject::CGUICompositeObject;

    EAttributeResult SetAttribute(const eC_Char* pcName, const eC_Char* pcValue, eC_String&) override
    {
        m_kAttributes += std::string(pcName) + "=" + pcValue + ";";
        return ATTRIBUTE_SET;
    }

    const std::string& GetAttributes() const { return m_kAttributes; }

private:
    std::string m_kAttributes;
};

/** Throws when it is constructed. */
class CThrowingObject : public CGUIObject
{
public:
    CThrowingObject(CGUICompositeObject* pkParent, ObjectHandle_t eID) : CGUIObject(pkParent, eID)
    {
        throw std::runtime_error("no such display");
    }
};

/** Permissions do not apply to root. So if the program runs as root, it runs as nobody while this exists. */
class CNoPrivileges
{
public:
    CNoPrivileges() : m_uiUserBefore(geteuid())
    {
        constexpr uid_t cuiNobody = 65534;
        EXPECT_EQ(0, m_uiUserBefore == 0 ? seteuid(cuiNobody) : 0);
    }
    CNoPrivileges(const CNoPrivileges&) = delete;
    CNoPrivileges& operator=(const CNoPrivileges&) = delete;
    ~CNoPrivileges() { EXPECT_EQ(0, seteuid(m_uiUserBefore)); }

private:
    uid_t m_uiUserBefore;
};

/** A socket with a name in the file system. */
class CSocket
{
public:
    explicit CSocket(const std::filesystem::path& kPath) : m_iSocket(socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un kAddress = {};
        kAddress.sun_family = AF_UNIX;
        EXPECT_LT(kPath.native().copy(kAddress.sun_path, sizeof kAddress.sun_path), sizeof kAddress.sun_path);
        EXPECT_EQ(0, bind(m_iSocket, reinterpret_cast<const sockaddr*>(&kAddress), sizeof kAddress));
    }
    CSocket(const CSocket&) = delete;
    CSocket& operator=(const CSocket&) = delete;
    ~CSocket() { close(m_iSocket); }

private:
    int m_iSocket;
};

/** Loads another dialog in its constructor, and is focusable if that worked. */
class CNestingObject : public CGUIObject
{
public:
    CNestingObject(CGUICompositeObject* pkParent, ObjectHandle_t eID) : CGUIObject(pkParent, eID)
    {
        const std::unique_ptr<CGUIObject> kInner(
            CGUIFactoryManager::GetInstance().LoadDialogFromFile("inner.xml"));
        SetFocusable(kInner && DescribeTree(*kInner) == "Composite 7 { Object Object 3 }");
    }
};

class CTestReader : public CGUIDialogReader
{
public:
    CGUIObject* Read(const eC_String& kPath) override
    {
        m_kPath = kPath.GetText();
        return new CGUIObject(nullptr, DLG_G);
    }

    const std::string& GetPath() const { return m_kPath; }

private:
    std::string m_kPath;
};

const CTestLabel& AsLabel(const std::unique_ptr<CGUIObject>& kObject)
{
    return static_cast<const CTestLabel&>(*kObject);
}

class CDialogXMLReaderTest : public CDialogFileTest
{
protected:
    /** @return the text of a Label whose attribute has this value in the file */
    std::string ReadText(const std::string& kQuotedValue)
    {
        const std::unique_ptr<CGUIObject> kLabel = LoadText("<Label text=" + kQuotedValue + "/>");
        EXPECT_EQ(std::vector<std::string>{}, TakeLog());
        return kLabel ? AsLabel(kLabel).GetText() : "nothing";
    }

    /** Expects the error for a file as a whole. */
    void ExpectFileRefused(const std::string& kPath, const std::string& kError)
    {
        EXPECT_EQ(nullptr, LoadFile(kPath));
        EXPECT_EQ(std::vector<std::string>{"ERROR: CGUIDialogXMLReader::Read: " + kPath + ":1:1: " + kError +
                                           ".\\n @Loader/GUIDialogXMLReader.cpp:#"},
                  TakeLog());
    }
};

// What is read

TEST_F(CDialogXMLReaderTest, Read_BareElement_GivesAnonymousVisibleObjectWithoutParent)
{
    ExpectTree("<Object/>", "Object");
    ExpectTree("<Composite></Composite>", "Composite { }");
}

TEST_F(CDialogXMLReaderTest, Read_FrameworkAttributes_AreSet)
{
    ExpectTree("<Object id='DLG_B' invisible='true' focusable='true'/>", "Object 2 invisible focusable");
    ExpectTree("<Object invisible='false' focusable='false'/>", "Object");
}

TEST_F(CDialogXMLReaderTest, Read_Identifier_IsHandleNameOrNumber)
{
    ExpectTree("<Object id='POP_1'/>", "Object 9");
    ExpectTree("<Object id='OBJ_MSGBOX_OK'/>", "Object -5");
    ExpectTree("<Object id='NO_HANDLE'/>", "Object");
    ExpectTree("<Object id='1234'/>", "Object 1234");
    ExpectTree("<Object id='2147483647'/>", "Object 2147483647");
    ExpectTree("<Object id='-2147483648'/>", "Object -2147483648");
}

TEST_F(CDialogXMLReaderTest, Read_Identifier_IsThereBeforeTheOtherAttributes)
{
    ExpectTree("<Object focusable='true' id='DLG_B'/>", "Object 2 focusable");
}

TEST_F(CDialogXMLReaderTest, Read_Children_HaveTheOrderOfTheFile)
{
    ExpectTree(R"(<Composite id="DLG_A">
                    <Object id="1"/>
                    <Composite id="2" invisible="true">
                      <Object id="3"/>
                      <Object id="4"/>
                    </Composite>
                    <Object id="5"/>
                  </Composite>)",
               "Composite 1 { Object 1 Composite 2 invisible { Object 3 Object 4 } Object 5 }");
}

TEST_F(CDialogXMLReaderTest, Read_SameIdentifierTwice_IsAllowed)
{
    ExpectTree("<Composite id='1'><Object id='1'/><Object id='1'/></Composite>",
               "Composite 1 { Object 1 Object 1 }");
}

TEST_F(CDialogXMLReaderTest, Read_Declaration_IsAllowedAtTheBeginning)
{
    ExpectTree("<?xml version=\"1.0\"?><Object/>", "Object");
    ExpectTree("<?xml version='1.0' encoding='UTF-8'?>\n<Object/>", "Object");
    ExpectTree("<?xml version = '1.0' encoding = \"utf-8\" ?><Object/>", "Object");
    ExpectTree("<?xml\tversion='1.0'\n standalone='no'?><Object/>", "Object");
    ExpectTree("<?xml version='1.0' encoding='UTF-8' standalone='yes' ?><Object/>", "Object");
}

TEST_F(CDialogXMLReaderTest, Read_ByteOrderMark_IsAllowed)
{
    ExpectTree("\xEF\xBB\xBF<Object/>", "Object");
    ExpectTree("\xEF\xBB\xBF<?xml version='1.0'?><Object/>", "Object");
}

TEST_F(CDialogXMLReaderTest, Read_CommentsAndInstructions_AreSkippedEverywhereBetweenTags)
{
    ExpectTree("<!-- a -->\n<?b?><Composite><!----><?c d?><Object/><!-- <e> & - - --></Composite><?f ? ?>\n"
               "<!-- g -->\n",
               "Composite { Object }");
}

TEST_F(CDialogXMLReaderTest, Read_InstructionWhoseNameBeginsWithXml_IsSkipped)
{
    ExpectTree("<?xml-model href='a.xsd'?><Object/>", "Object");
    ExpectTree("<?xmlx?><Object/>", "Object");
}

TEST_F(CDialogXMLReaderTest, Read_WhiteSpace_IsAllowedAroundTheNamesInTags)
{
    ExpectTree("\n <Composite\t\n id\r\n=\n'1' \n>\r\n<Object />\t<Object\n/></Composite \n>\n\n",
               "Composite 1 { Object Object }");
}

TEST_F(CDialogXMLReaderTest, Read_AttributesOfAClass_ReachTheObjectInTheirOrder)
{
    CGUIFactoryManager::GetInstance().RegisterObjectClass<CGreedyObject>("Greedy");

    const std::unique_ptr<CGUIObject> kObject =
        LoadText("<Greedy b='2' id='DLG_C' a='' focusable='true' \xC3\xA4-.1='x'/>");

    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ(DLG_C, kObject->GetID());
    EXPECT_EQ("b=2;a=;focusable=true;\xC3\xA4-.1=x;",
              static_cast<const CGreedyObject&>(*kObject).GetAttributes());
}

TEST_F(CDialogXMLReaderTest, Read_ElementName_MayHaveAnyLetters)
{
    CGUIFactoryManager::GetInstance().RegisterObjectClass<CTestLabel>("Kn\xC3\xB6pfchen_2\xC2\xB7-.");
    ExpectTree("<Kn\xC3\xB6pfchen_2\xC2\xB7-.></Kn\xC3\xB6pfchen_2\xC2\xB7-.>", "Object");
}

TEST_F(CDialogXMLReaderTest, Read_ValueInEitherQuotes_MayHoldTheOthers)
{
    EXPECT_EQ("it's > 1", ReadText("\"it's > 1\""));
    EXPECT_EQ("say \"yes\"", ReadText("'say \"yes\"'"));
    EXPECT_EQ("", ReadText("''"));
}

TEST_F(CDialogXMLReaderTest, Read_ReferencesInAValue_AreReplaced)
{
    EXPECT_EQ("<a> & \"b\" 'c'", ReadText("'&lt;a&gt; &amp; &quot;b&quot; &apos;c&apos;'"));
    EXPECT_EQ("A \xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80 \xF4\x8F\xBF\xBD",
              ReadText("'&#65; &#xE4; &#x20ac; &#x1F600; &#x10FFFD;'"));
    EXPECT_EQ("&amp;", ReadText("'&amp;amp;'"));
    EXPECT_EQ("A", ReadText("'&#00000000000000000000065;'"));
}

TEST_F(CDialogXMLReaderTest, Read_WhiteSpaceInAValue_BecomesBlanksUnlessReferredTo)
{
    EXPECT_EQ(" a  b c d ", ReadText("' a\t\nb\r\nc\rd '"));
    EXPECT_EQ("a\nb\tc\rd", ReadText("'a&#10;b&#9;c&#xD;d'"));
}

TEST_F(CDialogXMLReaderTest, Read_TextBeyondASCII_IsKept)
{
    EXPECT_EQ("gr\xC3\xBC\xC3\x9F \xE2\x82\xAC \xF0\x9F\x98\x80 \xEF\xBB\xBF",
              ReadText("'gr\xC3\xBC\xC3\x9F \xE2\x82\xAC \xF0\x9F\x98\x80 \xEF\xBB\xBF'"));
}

TEST_F(CDialogXMLReaderTest, Read_ThirtyTwoLevels_AreTheMost)
{
    const std::string kError = "element nested too deeply; expected at most 32 levels";
    ExpectTree(Nest(32), Repeat("Composite { ", 31) + "Object" + Repeat(" }", 31));
    ExpectRefused(Nest(33), "1:353: " + kError);
    ExpectTree("<Composite>" + Repeat("<Composite></Composite><Composite/>", 40) + "</Composite>",
               "Composite {" + Repeat(" Composite { }", 80) + " }");
}

TEST_F(CDialogXMLReaderTest, Read_HundredThousandLevels_AreRefusedWithoutExhaustingTheStack)
{
    CGUIFactoryManager::GetInstance().RegisterObjectClass<CGUICompositeObject>("C");
    const std::string kError = "1:97: element nested too deeply; expected at most 32 levels";
    ExpectRefused(Repeat("<C>", 100000) + Repeat("</C>", 100000), kError);
    ExpectRefused(Repeat("<C>", 300000), kError);
}

TEST_F(CDialogXMLReaderTest, Read_SixtyFourAttributes_AreTheMost)
{
    CGUIFactoryManager::GetInstance().RegisterObjectClass<CGreedyObject>("Greedy");
    ExpectRefused(MakeLabelWithAttributes(65), "66:1: too many attributes; expected at most 64");
    ExpectRefused(MakeLabelWithAttributes(64),
                  "2:1: unknown attribute 'a0' of 'Label'; expected one of id, text, width, invisible, "
                  "focusable");
}

TEST_F(CDialogXMLReaderTest, Read_FileOfTheGreatestSize_IsRead)
{
    const std::string kElement = "<Object/>";
    ExpectTree(kElement + std::string(std::size_t{1024} * 1024 - kElement.size(), '\n'), "Object");
}

TEST_F(CDialogXMLReaderTest, Read_LargerFile_IsRefused)
{
    const std::string kElement = "<Object/>";
    ExpectRefused(kElement + std::string(std::size_t{1024} * 1024 + 1 - kElement.size(), '\n'),
                  "1:1: file too large; expected at most 1048576 bytes");
}

TEST_F(CDialogXMLReaderTest, Read_ManyObjects_AreAllMade)
{
    const std::unique_ptr<CGUIObject> kObject =
        LoadText("<Composite>" + Repeat("<Label text='one of many'/>\n", 30000) + "</Composite>");
    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
    ASSERT_NE(nullptr, kObject);
    eC_UInt uiNOFChildren = 0;
    const CGUIObject* pkChild = static_cast<const CGUICompositeObject&>(*kObject).GetFirstChild();
    for (; pkChild != nullptr; pkChild = pkChild->GetNextSibling())
    {
        ++uiNOFChildren;
    }
    EXPECT_EQ(30000u, uiNOFChildren);
}

TEST_F(CDialogXMLReaderTest, Read_ManyObjectsBeforeAnError_AreAllDestroyed)
{
    ExpectRefused("<Composite>\n" + Repeat("<Composite><Object/></Composite>\n", 20000) + "<Object x=''/>" +
                      "</Composite>",
                  "20002:9: unknown attribute 'x' of 'Object'; expected one of id, invisible, focusable");
}

// Where files are looked up

TEST_F(CDialogXMLReaderTest, Read_RelativePath_IsLookedUpBelowTheBaseDirectory)
{
    std::filesystem::create_directory(m_kDirectory.GetPath() / "Deep");
    m_kDirectory.Write("Deep/a.xml", "<Object id='5'/>");

    const std::unique_ptr<CGUIObject> kObject = LoadFile("Deep/a.xml");

    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ(5, kObject->GetID());
}

TEST_F(CDialogXMLReaderTest, Read_AbsolutePath_NeedsNoBaseDirectory)
{
    const CTemporaryDirectory kElsewhere;
    const std::unique_ptr<CGUIObject> kObject = LoadFile(kElsewhere.Write("a.xml", "<Object id='6'/>"));

    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ(6, kObject->GetID());
}

TEST_F(CDialogXMLReaderTest, Read_WithoutBaseDirectory_StartsFromTheCurrentDirectory)
{
    m_kDirectory.Write("a.xml", "<Object id='7'/>");
    const std::filesystem::path kBefore = std::filesystem::current_path();
    std::filesystem::current_path(m_kDirectory.GetPath());

    const std::unique_ptr<CGUIObject> kObject(CGUIDialogXMLReader().Read("a.xml"));
    std::filesystem::current_path(kBefore);

    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ(7, kObject->GetID());
}

TEST_F(CDialogXMLReaderTest, Read_TheSameFileTwice_GivesTwoTrees)
{
    const std::unique_ptr<CGUIObject> kFirst = LoadText("<Object id='8'/>");
    const std::unique_ptr<CGUIObject> kSecond = LoadText("<Composite id='9'/>");

    ASSERT_NE(nullptr, kFirst);
    ASSERT_NE(nullptr, kSecond);
    EXPECT_EQ("Object 8", DescribeTree(*kFirst));
    EXPECT_EQ("Composite 9 { }", DescribeTree(*kSecond));
}

// Files that cannot be read

TEST_F(CDialogXMLReaderTest, Read_MissingFile_IsRefused)
{
    ExpectFileRefused("no.xml", "cannot open (No such file or directory); expected a readable file");
    ExpectFileRefused("no/no.xml", "cannot open (No such file or directory); expected a readable file");
}

TEST_F(CDialogXMLReaderTest, Read_NameThatTheFileSystemDoesNotAllow_IsRefused)
{
    ExpectFileRefused(std::string(300, 'n') + ".xml",
                      "cannot open (File name too long); expected a readable file");
}

TEST_F(CDialogXMLReaderTest, Read_Directory_IsRefused)
{
    std::filesystem::create_directory(m_kDirectory.GetPath() / "directory.xml");
    ExpectFileRefused("directory.xml", "not a file; expected a readable file");
}

TEST_F(CDialogXMLReaderTest, Read_Device_IsRefused)
{
    std::filesystem::create_symlink("/dev/zero", m_kDirectory.GetPath() / "device.xml");
    ExpectFileRefused("device.xml", "not a file; expected a readable file");
}

TEST_F(CDialogXMLReaderTest, Read_FIFO_IsRefusedWithoutWaitingForAWriter)
{
    const std::filesystem::path kFIFO = m_kDirectory.GetPath() / "fifo.xml";
    ASSERT_EQ(0, mkfifo(kFIFO.c_str(), S_IRUSR | S_IWUSR));
    std::filesystem::create_symlink("fifo.xml", m_kDirectory.GetPath() / "link.xml");
    ExpectFileRefused("fifo.xml", "not a file; expected a readable file");
    ExpectFileRefused("link.xml", "not a file; expected a readable file");
}

TEST_F(CDialogXMLReaderTest, Read_Socket_IsRefused)
{
    const CSocket kSocket(m_kDirectory.GetPath() / "socket.xml");
    ExpectFileRefused("socket.xml", "not a file; expected a readable file");
}

TEST_F(CDialogXMLReaderTest, Read_SymbolicLinksToAFile_AreFollowed)
{
    m_kDirectory.Write("a.xml", "<Object id='5'/>");
    std::filesystem::create_symlink("a.xml", m_kDirectory.GetPath() / "b.xml");
    std::filesystem::create_symlink("b.xml", m_kDirectory.GetPath() / "c.xml");

    const std::unique_ptr<CGUIObject> kObject = LoadFile("c.xml");

    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ(5, kObject->GetID());
}

TEST_F(CDialogXMLReaderTest, Read_PathWithAZeroByteOrALineBreak_IsRefusedInOneLine)
{
    m_kDirectory.Write("a.xml", "<Object/>");
    m_kDirectory.Write("a\nb.xml", "<Object/>");
    const auto ExpectPathRefused = [this](const std::string& kPath, const std::string& kShown)
    {
        EXPECT_EQ(nullptr, LoadFile(kPath));
        EXPECT_EQ(std::vector<std::string>{"ERROR: CGUIDialogXMLReader::Read: " + kShown +
                                           ":1:1: path with a zero byte or a line break; expected a path of "
                                           "one line.\\n @Loader/GUIDialogXMLReader.cpp:#"},
                  TakeLog());
    };
    ExpectPathRefused(std::string("a.xml\0.xml", 10), "a.xml\\0.xml");
    ExpectPathRefused(std::string("\0a.xml", 6), "\\0a.xml");
    ExpectPathRefused("a\nb.xml", "a\\nb.xml");
    ExpectPathRefused("a\r\n\xC3\xA4.xml", "a\\r\\n\xC3\xA4.xml");
}

TEST_F(CDialogXMLReaderTest, Read_PathWithOtherControlCharacters_IsThatOfAFile)
{
    m_kDirectory.Write("a\tb\x01.xml", "<Object id='5'/>");
    const std::unique_ptr<CGUIObject> kObject = LoadFile("a\tb\x01.xml");
    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ(5, kObject->GetID());
}

TEST_F(CDialogXMLReaderTest, Read_BelowABaseDirectoryWithAZeroByte_IsRefused)
{
    m_kDirectory.Write("a.xml", "<Object/>");
    const std::string kBase = m_kDirectory.GetPath().string() + std::string(1, '\0') + "more";
    CGUIDialogXMLReader kReader(eC_String(kBase.data(), static_cast<eC_UInt>(kBase.size())));

    EXPECT_EQ(nullptr, std::unique_ptr<CGUIObject>(kReader.Read("a.xml")));

    EXPECT_EQ(
        std::vector<std::string>{"ERROR: CGUIDialogXMLReader::Read: a.xml:1:1: path with a zero byte or "
                                 "a line break; expected a path of one line.\\n "
                                 "@Loader/GUIDialogXMLReader.cpp:#"},
        TakeLog());
}

TEST_F(CDialogXMLReaderTest, Read_FileWithoutPermission_IsRefused)
{
    using std::filesystem::perms;
    std::filesystem::permissions(m_kDirectory.Write("a.xml", "<Object/>"), perms::none);
    std::filesystem::permissions(m_kDirectory.GetPath(),
                                 perms::owner_all | perms::group_exec | perms::others_exec);
    const CNoPrivileges kNoPrivileges;
    ExpectFileRefused("a.xml", "cannot open (Permission denied); expected a readable file");
}

TEST_F(CDialogXMLReaderTest, Read_FileInADirectoryWithoutPermission_IsRefused)
{
    using std::filesystem::perms;
    const std::filesystem::path kClosed = m_kDirectory.GetPath() / "Closed";
    std::filesystem::create_directory(kClosed);
    m_kDirectory.Write("Closed/a.xml", "<Object/>");
    std::filesystem::permissions(kClosed, perms::none);
    std::filesystem::permissions(m_kDirectory.GetPath(),
                                 perms::owner_all | perms::group_exec | perms::others_exec);
    {
        const CNoPrivileges kNoPrivileges;
        ExpectFileRefused("Closed/a.xml", "cannot open (Permission denied); expected a readable file");
    }
    std::filesystem::permissions(kClosed, perms::owner_all);
}

TEST_F(CDialogXMLReaderTest, Read_FileThatFailsWhileItIsRead_IsRefused)
{
    // A process's own memory is a file whose first bytes cannot be read.
    std::filesystem::create_symlink("/proc/self/mem", m_kDirectory.GetPath() / "memory.xml");
    ExpectFileRefused("memory.xml", "cannot read (Input/output error); expected a readable file");
}

TEST_F(CDialogXMLReaderTest, Read_EmptyFile_IsRefused)
{
    ExpectRefused("", "1:1: empty file; expected a top element");
}

// Files that are not XML

TEST_F(CDialogXMLReaderTest, Read_FileWithoutElement_IsRefusedAtItsEnd)
{
    ExpectRefused("\xEF\xBB\xBF", "1:1: end of the file; expected a top element");
    ExpectRefused("  \n ", "2:2: end of the file; expected a top element");
    ExpectRefused("<!-- a -->\n", "2:1: end of the file; expected a top element");
    ExpectRefused("<?xml version='1.0'?>", "1:22: end of the file; expected a top element");
}

TEST_F(CDialogXMLReaderTest, Read_MalformedUTF8_IsRefusedAtItsFirstByte)
{
    const std::string kError = "malformed UTF-8; expected text in UTF-8";
    ExpectRefused("<Label text='a\xFF'/>", "1:15: " + kError);
    ExpectRefused("<Label text='\x80'/>", "1:14: " + kError);
    ExpectRefused("<Label text='\xC3'/>", "1:14: " + kError);
    ExpectRefused("<Label text='\xC0\xBC'/>", "1:14: " + kError);
    ExpectRefused("<Label text='\xE0\x9F\xBF'/>", "1:14: " + kError);
    ExpectRefused("<Label text='\xF0\x8F\xBF\xBF'/>", "1:14: " + kError);
    ExpectRefused("<Label text='\xED\xA0\x80'/>", "1:14: " + kError);
    ExpectRefused("<Label text='\xF4\x90\x80\x80'/>", "1:14: " + kError);
    ExpectRefused("<Label text='\xF8\x88\x80\x80\x80'/>", "1:14: " + kError);
    ExpectRefused("<Object/>\n<!-- \xE2\x82", "2:6: " + kError);
}

TEST_F(CDialogXMLReaderTest, Read_OtherEncodings_AreRefusedAtTheBeginning)
{
    const std::string kError = "malformed UTF-8; expected text in UTF-8";
    ExpectRefused(std::string("\xFF\xFE<\0O\0/\0>\0", 10), "1:1: " + kError);
    ExpectRefused(std::string("\xFE\xFF\0<\0O\0/\0>", 10), "1:1: " + kError);
    ExpectRefused(std::string("<\0O\0/\0>\0", 8),
                  "1:2: character U+0000; expected characters that XML allows");
}

TEST_F(CDialogXMLReaderTest, Read_CharacterThatXMLDoesNotAllow_IsRefused)
{
    const std::string kError = "; expected characters that XML allows";
    ExpectRefused(std::string("<Object/>\0", 10), "1:10: character U+0000" + kError);
    ExpectRefused("<Label text='\x01'/>", "1:14: character U+0001" + kError);
    ExpectRefused("<Object/>\x0B", "1:10: character U+000B" + kError);
    ExpectRefused("<!--\x1F-->", "1:5: character U+001F" + kError);
    ExpectRefused("<Label text='\xEF\xBF\xBE'/>", "1:14: character U+FFFE" + kError);
    ExpectRefused("<Label text='\xEF\xBF\xBF'/>", "1:14: character U+FFFF" + kError);
}

TEST_F(CDialogXMLReaderTest, Read_WrongDeclaration_IsRefused)
{
    ExpectRefused("<?xml encoding='UTF-8'?><Object/>", "1:7: 'e'; expected version=\"1.0\"");
    ExpectRefused("<?xml version='1.1'?><Object/>", "1:15: '''; expected \"1.0\"");
    ExpectRefused("<?xml version=\"1.0'?><Object/>", "1:15: '\"'; expected \"1.0\"");
    ExpectRefused("<?xml version=1.0?><Object/>", "1:15: '1'; expected \"1.0\"");
    ExpectRefused("<?xml version=x1.0x?><Object/>", "1:15: 'x'; expected \"1.0\"");
    ExpectRefused("<?xml version '1.0'?><Object/>", "1:15: '''; expected '='");
    ExpectRefused("<?xml version='1.0'encoding='UTF-8'?><Object/>",
                  "1:20: 'e'; expected white space or '?>'");
    ExpectRefused("<?xml version='1.0' encoding='ISO-8859-1'?><Object/>", "1:30: '''; expected \"UTF-8\"");
    ExpectRefused("<?xml version='1.0' standalone='maybe'?><Object/>",
                  "1:32: '''; expected \"yes\" or \"no\"");
    ExpectRefused("<?xml version='1.0' standalone='no' encoding='UTF-8'?><Object/>",
                  "1:37: 'e'; expected '?>'");
    ExpectRefused("<?xml version='1.0' encoding='UTF-8' other='no'?><Object/>", "1:38: 'o'; expected '?>'");
    ExpectRefused("<?xml version='1.0' encoding='utf-8' other='no'?><Object/>", "1:38: 'o'; expected '?>'");
    ExpectRefused("<?xml version='1.0' standalone='yes' other='no'?><Object/>", "1:38: 'o'; expected '?>'");
    ExpectRefused("<?xml version='1.0' other='no'?><Object/>", "1:21: 'o'; expected '?>'");
    ExpectRefused("<?xml version='1.0' ><Object/>", "1:21: '>'; expected '?>'");
    ExpectRefused("<?xml version='1.0", "1:15: '''; expected \"1.0\"");
    ExpectRefused("<?xml ", "1:7: end of the file; expected version=\"1.0\"");
}

TEST_F(CDialogXMLReaderTest, Read_DeclarationElsewhere_IsRefused)
{
    const std::string kError = "XML declaration; expected '<?xml version=\"1.0\"?>' at the beginning only";
    ExpectRefused("\n<?xml version='1.0'?><Object/>", "2:1: " + kError);
    ExpectRefused("<!-- a --><?xml version='1.0'?><Object/>", "1:11: " + kError);
    ExpectRefused("<Composite><?xml version='1.0'?></Composite>", "1:12: " + kError);
    ExpectRefused("<?xml?><Object/>", "1:1: " + kError);
    ExpectRefused("<?XmL version='1.0'?><Object/>", "1:1: " + kError);
}

TEST_F(CDialogXMLReaderTest, Read_DocumentType_IsRefused)
{
    ExpectRefused("<!DOCTYPE Object><Object/>", "1:1: document type declaration; expected a top element");
    ExpectRefused("<?xml version='1.0'?>\n<!DOCTYPE a [<!ENTITY b 'c'>]>\n<Label text='&b;'/>",
                  "2:1: document type declaration; expected a top element");
    ExpectRefused("<Object/><!DOCTYPE Object>", "1:10: '<'; expected the end of the file");
    ExpectRefused("<Composite><!DOCTYPE a></Composite>", "1:13: '!'; expected an element name");
}

TEST_F(CDialogXMLReaderTest, Read_TextOutsideTags_IsRefused)
{
    const std::string kBetween = "text between elements; expected an element or the end tag of 'Composite'";
    ExpectRefused("text", "1:1: text before the top element; expected a top element");
    ExpectRefused("<![CDATA[ ]]><Object/>", "1:1: text before the top element; expected a top element");
    ExpectRefused("<Composite>\n  text</Composite>", "2:3: " + kBetween);
    ExpectRefused("<Composite><Object/>.<Object/></Composite>", "1:21: " + kBetween);
    ExpectRefused("<Composite>&#32;</Composite>", "1:12: " + kBetween);
    ExpectRefused("<Composite> <![CDATA[]]></Composite>", "1:13: " + kBetween);
    ExpectRefused("<Composite>]]></Composite>", "1:12: " + kBetween);
    ExpectRefused("<Composite>\xC2\xA0</Composite>", "1:12: " + kBetween);
    ExpectRefused("<Object/>\n\ntext", "3:1: 't'; expected the end of the file");
    ExpectRefused("<Object/>\xEF\xBB\xBF", "1:10: '\xEF\xBB\xBF'; expected the end of the file");
}

TEST_F(CDialogXMLReaderTest, Read_SecondTopElement_IsRefused)
{
    ExpectRefused("<Object/>\n<Object/>", "2:1: second top element; expected the end of the file");
    ExpectRefused("<Composite></Composite><!-- --><\xC3\xA4/>",
                  "1:32: second top element; expected the end of the file");
    ExpectRefused("<Composite></Composite></Composite>", "1:24: '<'; expected the end of the file");
    ExpectRefused("<Object/><", "1:10: '<'; expected the end of the file");
}

TEST_F(CDialogXMLReaderTest, Read_EndOfFileInsideAnElement_IsRefused)
{
    const std::string kError = "end of the file; expected an element or the end tag of ";
    ExpectRefused("<Composite>", "1:12: " + kError + "'Composite'");
    ExpectRefused("<Composite><Composite></Composite>\n<!-- a -->\n", "3:1: " + kError + "'Composite'");
    ExpectRefused("<Composite", "1:11: end of the file; expected white space, '>' or '/>'");
    ExpectRefused("<Composite\n", "2:1: end of the file; expected an attribute name, '>' or '/>'");
    ExpectRefused("<Composite id", "1:14: end of the file; expected '='");
    ExpectRefused("<Composite id=", "1:15: end of the file; expected a value in quotes");
    ExpectRefused("<Composite id='1", "1:17: end of the file; expected the closing quote of the value");
    ExpectRefused("<Composite><", "1:13: end of the file; expected an element name");
    ExpectRefused("<Composite></", "1:14: end of the file; expected an element name");
    ExpectRefused("<Composite></Composite", "1:23: end of the file; expected '>'");
}

TEST_F(CDialogXMLReaderTest, Read_WrongEndTag_IsRefused)
{
    ExpectRefused("<Composite>\n  <Object>\n  </Composite>",
                  "3:3: end tag of 'Composite'; expected the end tag of 'Object'");
    ExpectRefused("<Composite></composite>",
                  "1:12: end tag of 'composite'; expected the end tag of 'Composite'");
    ExpectRefused("<Composite></Composit>",
                  "1:12: end tag of 'Composit'; expected the end tag of 'Composite'");
    ExpectRefused("<Composite></Composite id='1'>", "1:24: 'i'; expected '>'");
    ExpectRefused("<Composite></ Composite>", "1:14: white space; expected an element name");
    ExpectRefused("<Composite></>", "1:14: '>'; expected an element name");
    ExpectRefused("</Composite>", "1:2: '/'; expected an element name");
}

TEST_F(CDialogXMLReaderTest, Read_WrongName_IsRefused)
{
    ExpectRefused("< Object/>", "1:2: white space; expected an element name");
    ExpectRefused("<\nObject/>", "1:2: white space; expected an element name");
    ExpectRefused("<1Object/>", "1:2: '1'; expected an element name");
    ExpectRefused("<-Object/>", "1:2: '-'; expected an element name");
    ExpectRefused("<\xC3\x97/>", "1:2: '\xC3\x97'; expected an element name");
    ExpectRefused("<Object\xC3\xB7/>", "1:8: '\xC3\xB7'; expected white space, '>' or '/>'");
    ExpectRefused("<Object 1='2'/>", "1:9: '1'; expected an attribute name, '>' or '/>'");
    ExpectRefused("<Object / >", "1:9: '/'; expected an attribute name, '>' or '/>'");
    ExpectRefused("<Object/ >", "1:8: '/'; expected white space, '>' or '/>'");
    ExpectRefused("<Object<Object/>", "1:8: '<'; expected white space, '>' or '/>'");
    ExpectRefused("<Object \"1\"/>", "1:9: '\"'; expected an attribute name, '>' or '/>'");
}

TEST_F(CDialogXMLReaderTest, Read_NameWithNamespace_IsRefused)
{
    ExpectRefused("<gui:Object/>", "1:5: ':'; expected a name without a namespace");
    ExpectRefused("<Object xml:lang='de'/>", "1:12: ':'; expected a name without a namespace");
    ExpectRefused("<Composite></Composite:x>", "1:23: ':'; expected a name without a namespace");
    ExpectRefused("<?a:b?><Object/>", "1:4: ':'; expected a name without a namespace");
    ExpectRefused("<:Object/>", "1:2: ':'; expected an element name");
}

TEST_F(CDialogXMLReaderTest, Read_WrongAttribute_IsRefused)
{
    ExpectRefused("<Object id/>", "1:11: '/'; expected '='");
    ExpectRefused("<Object id 1='2'/>", "1:12: '1'; expected '='");
    ExpectRefused("<Object id=1/>", "1:12: '1'; expected a value in quotes");
    ExpectRefused("<Object id==\"1\"/>", "1:12: '='; expected a value in quotes");
    ExpectRefused("<Object id='1'focusable='true'/>", "1:15: 'f'; expected white space, '>' or '/>'");
    ExpectRefused("<Object id='1\"/>", "1:17: end of the file; expected the closing quote of the value");
    ExpectRefused("<Object id='1'' focusable='true'/>", "1:15: '''; expected white space, '>' or '/>'");
}

TEST_F(CDialogXMLReaderTest, Read_AttributeGivenTwice_IsRefused)
{
    ExpectRefused("<Object id='1'\n        id='1'/>",
                  "2:9: second attribute 'id'; expected each attribute once");
    ExpectRefused("<Label text='' width='1' text=''/>",
                  "1:26: second attribute 'text'; expected each attribute once");
    ExpectTree("<Composite id='1'><Object id='2'/></Composite>", "Composite 1 { Object 2 }");
}

TEST_F(CDialogXMLReaderTest, Read_MarkupInAValue_IsRefused)
{
    ExpectRefused("<Label text='a<b'/>", "1:15: '<' in a value; expected '&lt;' or the closing quote");
    ExpectRefused("<Label text='a>\n<Label text='b'/>",
                  "2:1: '<' in a value; expected '&lt;' or the closing quote");
    ExpectRefused("<Label text='a & b'/>", "1:16: '&' that begins no reference; expected '&amp;'");
    ExpectRefused("<Label text='&'/>", "1:14: '&' that begins no reference; expected '&amp;'");
    ExpectRefused("<Label text='&;'/>", "1:14: '&' that begins no reference; expected '&amp;'");
    ExpectRefused("<Label text='&amp'/>", "1:14: '&' that begins no reference; expected '&amp;'");
    ExpectRefused("<Label text='&a:b;'/>", "1:14: '&' that begins no reference; expected '&amp;'");
    ExpectRefused("<Label text='&amp;&amp", "1:19: '&' that begins no reference; expected '&amp;'");
}

TEST_F(CDialogXMLReaderTest, Read_UnknownEntity_IsRefused)
{
    ExpectRefused("<Label text='a&nbsp;b'/>",
                  "1:15: unknown entity 'nbsp'; expected one of lt, gt, amp, quot, apos");
    ExpectRefused("<Label text='&LT;'/>",
                  "1:14: unknown entity 'LT'; expected one of lt, gt, amp, quot, apos");
}

TEST_F(CDialogXMLReaderTest, Read_WrongCharacterReference_IsRefused)
{
    const std::string kForm = "'&#' that begins no character reference; expected '&#' and decimal digits or "
                              "'&#x' and hexadecimal digits, then ';'";
    ExpectRefused("<Label text='&#;'/>", "1:14: " + kForm);
    ExpectRefused("<Label text='&#x;'/>", "1:14: " + kForm);
    ExpectRefused("<Label text='&#1A;'/>", "1:14: " + kForm);
    ExpectRefused("<Label text='&#xG;'/>", "1:14: " + kForm);
    ExpectRefused("<Label text='&#X41;'/>", "1:14: " + kForm);
    ExpectRefused("<Label text='&#6~;'/>", "1:14: " + kForm);
    ExpectRefused("<Label text='&#x4~;'/>", "1:14: " + kForm);
    ExpectRefused("<Label text='&#65'/>", "1:14: " + kForm);
    ExpectRefused("<Label text='&#", "1:14: " + kForm);
}

TEST_F(CDialogXMLReaderTest, Read_ReferenceToNoCharacter_IsRefused)
{
    const std::string kExpected = "; expected a character that XML allows";
    ExpectRefused("<Label text='&#0;'/>", "1:14: reference to no character '&#0;'" + kExpected);
    ExpectRefused("<Label text='&#x1F;'/>", "1:14: reference to no character '&#x1F;'" + kExpected);
    ExpectRefused("<Label text='&#xD800;'/>", "1:14: reference to no character '&#xD800;'" + kExpected);
    ExpectRefused("<Label text='&#xdfff;'/>", "1:14: reference to no character '&#xdfff;'" + kExpected);
    ExpectRefused("<Label text='&#xFFFE;'/>", "1:14: reference to no character '&#xFFFE;'" + kExpected);
    ExpectRefused("<Label text='&#1114112;'/>", "1:14: reference to no character '&#1114112;'" + kExpected);
    ExpectRefused("<Label text='&#x110000;'/>", "1:14: reference to no character '&#x110000;'" + kExpected);
    ExpectRefused("<Label text='&#4294967361;'/>",
                  "1:14: reference to no character '&#4294967361;'" + kExpected);
    ExpectRefused("<Label text='&#x10000000000000041;'/>",
                  "1:14: reference to no character '&#x10000000000000041;'" + kExpected);
}

TEST_F(CDialogXMLReaderTest, Read_WrongComment_IsRefused)
{
    ExpectRefused("<Object/> <!-- a", "1:11: comment without an end; expected '-->'");
    ExpectRefused("<!-->", "1:1: comment without an end; expected '-->'");
    ExpectRefused("<!--->", "1:1: comment without an end; expected '-->'");
    ExpectRefused("<!-- a -- b --><Object/>", "1:8: '--' in a comment; expected '-->' at its end only");
    ExpectRefused("<!-- a ---><Object/>", "1:8: '--' in a comment; expected '-->' at its end only");
    ExpectRefused("<!- a --><Object/>", "1:2: '!'; expected an element name");
    ExpectRefused("<Object <!-- a -->/>", "1:9: '<'; expected an attribute name, '>' or '/>'");
}

TEST_F(CDialogXMLReaderTest, Read_WrongInstruction_IsRefused)
{
    ExpectRefused("<?a b", "1:1: processing instruction without an end; expected '?>'");
    ExpectRefused("<?a b><Object/>", "1:1: processing instruction without an end; expected '?>'");
    ExpectRefused("<?"
                  "?><Object/>",
                  "1:3: '?'; expected the name of a processing instruction");
    ExpectRefused("<? a?><Object/>", "1:3: white space; expected the name of a processing instruction");
    ExpectRefused("<?a+b?><Object/>", "1:4: '+'; expected white space or '?>'");
}

// Files that do not describe a tree of objects

TEST_F(CDialogXMLReaderTest, Read_UnknownElement_IsRefused)
{
    ExpectRefused("<Dialog/>", "1:1: unknown element 'Dialog'; expected one of Object, Composite, Label");
    ExpectRefused("<Composite>\n  <Object/>\n  <object/>\n</Composite>",
                  "3:3: unknown element 'object'; expected one of Object, Composite, Label");
}

TEST_F(CDialogXMLReaderTest, Read_UnknownAttribute_IsRefused)
{
    ExpectRefused("<Object text='a'/>",
                  "1:9: unknown attribute 'text' of 'Object'; expected one of id, invisible, focusable");
    ExpectRefused("<Composite>\n  <Label text='a' ID='1'/>\n</Composite>",
                  "2:19: unknown attribute 'ID' of 'Label'; expected one of id, text, width, invisible, "
                  "focusable");
    ExpectRefused("<Object xmlns='http://example.org'/>",
                  "1:9: unknown attribute 'xmlns' of 'Object'; expected one of id, invisible, focusable");
}

TEST_F(CDialogXMLReaderTest, Read_BadValue_IsRefusedAtTheValue)
{
    ExpectRefused("<Object invisible='yes'/>",
                  "1:20: bad value 'yes' of attribute 'invisible'; expected true or false");
    ExpectRefused("<Object focusable = ''/>",
                  "1:22: bad value '' of attribute 'focusable'; expected true or false");
    ExpectRefused("<Object\n  focusable=\n    ' true'/>",
                  "3:6: bad value ' true' of attribute 'focusable'; expected true or false");
    ExpectRefused("<Label text='a' width='100'/>",
                  "1:24: bad value '100' of attribute 'width'; expected a number from 0 to 99");
}

TEST_F(CDialogXMLReaderTest, Read_UnknownHandle_IsRefused)
{
    const std::string kExpected =
        "; expected the name of a handle or a number from -2147483648 to 2147483647";
    ExpectRefused("<Object id='DLG_NONE'/>", "1:13: unknown handle 'DLG_NONE'" + kExpected);
    ExpectRefused("<Object id='dlg_a'/>", "1:13: unknown handle 'dlg_a'" + kExpected);
    ExpectRefused("<Object id=''/>", "1:13: unknown handle ''" + kExpected);
    ExpectRefused("<Object id='-'/>", "1:13: unknown handle '-'" + kExpected);
    ExpectRefused("<Object id='-a1'/>", "1:13: unknown handle '-a1'" + kExpected);
    ExpectRefused("<Object id='1~'/>", "1:13: unknown handle '1~'" + kExpected);
    ExpectRefused("<Object id=' 1'/>", "1:13: unknown handle ' 1'" + kExpected);
    ExpectRefused("<Object id='1.5'/>", "1:13: unknown handle '1.5'" + kExpected);
    ExpectRefused("<Composite><Object/><Object id='DLG_A&#10;'/></Composite>",
                  "1:33: unknown handle 'DLG_A?'" + kExpected);
}

TEST_F(CDialogXMLReaderTest, Read_NumberOutOfRange_IsRefused)
{
    const std::string kExpected =
        "; expected the name of a handle or a number from -2147483648 to 2147483647";
    ExpectRefused("<Object id='2147483648'/>", "1:13: number out of range '2147483648'" + kExpected);
    ExpectRefused("<Object id='-2147483649'/>", "1:13: number out of range '-2147483649'" + kExpected);
    ExpectRefused("<Object id='99999999999999999999'/>",
                  "1:13: number out of range '99999999999999999999'" + kExpected);
}

TEST_F(CDialogXMLReaderTest, Read_ChildOfAnObjectThatIsNotComposite_IsRefused)
{
    ExpectRefused("<Composite>\n <Label>\n  <Object/>\n </Label>\n</Composite>",
                  "3:3: element 'Object' inside 'Label'; expected no elements inside an object that is not "
                  "composite");
    ExpectTree("<Object> <!-- nothing --> </Object>", "Object");
}

TEST_F(CDialogXMLReaderTest, Read_ErrorInTheMarkup_ComesBeforeErrorsInTheTree)
{
    ExpectRefused("<Dialog>\n  <Object bad='1'/>\n",
                  "3:1: end of the file; expected an element or the end tag of 'Dialog'");
}

TEST_F(CDialogXMLReaderTest, Read_SeveralErrors_ReportsTheFirst)
{
    ExpectRefused("<Composite>\n<Object a='1' b='2'/><Dialog/>\n</Composite>",
                  "2:9: unknown attribute 'a' of 'Object'; expected one of id, invisible, focusable");
    ExpectRefused("<Composite a=''><Dialog/></Composite>",
                  "1:12: unknown attribute 'a' of 'Composite'; expected one of id, invisible, focusable");
}

// Positions

TEST_F(CDialogXMLReaderTest, Read_Column_CountsCharactersNotBytes)
{
    ExpectRefused("<!-- \xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80 --><Object x=''/>",
                  "1:21: unknown attribute 'x' of 'Object'; expected one of id, invisible, focusable");
    ExpectRefused("\t<Dialog/>", "1:2: unknown element 'Dialog'; expected one of Object, Composite, Label");
}

TEST_F(CDialogXMLReaderTest, Read_ByteOrderMark_TakesNoColumn)
{
    ExpectRefused("\xEF\xBB\xBF<Dialog/>",
                  "1:1: unknown element 'Dialog'; expected one of Object, Composite, Label");
    ExpectRefused("\xEF\xBB\xBF<Object", "1:8: end of the file; expected white space, '>' or '/>'");
}

TEST_F(CDialogXMLReaderTest, Read_LinesEndWithLFOrCRLFOrCR)
{
    const std::string kExpected = "unknown element 'X'; expected one of Object, Composite, Label";
    ExpectRefused("<Composite>\r\n\r\n <X/>\r\n</Composite>\r\n", "3:2: " + kExpected);
    ExpectRefused("<Composite>\n\n <X/>\n</Composite>\n", "3:2: " + kExpected);
    ExpectRefused("<Composite>\r\r <X/>\r</Composite>\r", "3:2: " + kExpected);
    ExpectRefused("<Composite>\n\r <X/>\n</Composite>", "3:2: " + kExpected);
}

TEST_F(CDialogXMLReaderTest, Read_PositionsAfterReferencesInValues_AreThoseOfTheFile)
{
    ExpectRefused("<Composite>\r\n"
                  "  <Label text='&lt;&#x20AC;&amp;\r\n\r\n\xC3\xA4&quot;' width='1' focusable='no'/>\r\n"
                  "</Composite>\r\n",
                  "4:31: bad value 'no' of attribute 'focusable'; expected true or false");
}

// How a message quotes the file

TEST_F(CDialogXMLReaderTest, Read_LongText_IsCutInTheMessage)
{
    const std::string kForty = Repeat("\xC3\xA4", 40);
    ExpectRefused("<" + kForty + "/>",
                  "1:1: unknown element '" + kForty + "'; expected one of Object, Composite, Label");
    ExpectRefused("<" + kForty + "b/>",
                  "1:1: unknown element '" + kForty + "...'; expected one of Object, Composite, Label");
}

TEST_F(CDialogXMLReaderTest, Read_ControlCharacters_DoNotBreakTheMessage)
{
    ExpectRefused("<Object invisible='a&#10;b&#9;c\x7F'/>",
                  "1:20: bad value 'a?b?c?' of attribute 'invisible'; expected true or false");
}

// Object classes and readers of an application

TEST_F(CDialogXMLReaderTest, LoadDialogFromFile_ReaderForFileType_GetsThePath)
{
    CTestReader kReader;
    EXPECT_TRUE(CGUIFactoryManager::GetInstance().RegisterReaderForFileType("table", &kReader));

    const std::unique_ptr<CGUIObject> kObject = LoadFile("a/b.table");

    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ(DLG_G, kObject->GetID());
    EXPECT_EQ("a/b.table", kReader.GetPath());
}

TEST_F(CDialogXMLReaderTest, LoadDialogFromFile_ReaderForPathPrefix_ComesBeforeTheOneForTheFileType)
{
    CTestReader kReader;
    EXPECT_TRUE(CGUIFactoryManager::GetInstance().RegisterReaderForPathPrefix("rom:", &kReader));
    m_kDirectory.Write("a.xml", "<Object id='1'/>");

    const std::unique_ptr<CGUIObject> kFromPrefix = LoadFile("rom:a.xml");
    const std::unique_ptr<CGUIObject> kFromType = LoadFile("a.xml");

    ASSERT_NE(nullptr, kFromPrefix);
    ASSERT_NE(nullptr, kFromType);
    EXPECT_EQ("Object 7", DescribeTree(*kFromPrefix));
    EXPECT_EQ("Object 1", DescribeTree(*kFromType));
    EXPECT_EQ("rom:a.xml", kReader.GetPath());
}

TEST_F(CDialogXMLReaderTest, Read_WhileAnObjectIsMade_ReadsBothDialogs)
{
    CGUIFactoryManager::GetInstance().RegisterObjectClass<CNestingObject>("Nesting");
    m_kDirectory.Write("inner.xml", "<Composite id='7'><Object/><Object id='3'/></Composite>");
    const std::string kTree = "Composite 1 { Object 2 focusable Object 4 focusable Object 5 }";
    ExpectTree("<Composite id='1'><Nesting id='2'/><Nesting id='4'/><Object id='5'/></Composite>", kTree);
    ExpectTree("<Composite id='1'><Nesting id='2'/><Nesting id='4'/><Object id='5'/></Composite>", kTree);
}

TEST_F(CDialogXMLReaderTest, Read_Again_AllocatesNothingMoreForMoreElementsButTheirObjects)
{
    m_kDirectory.Write("less.xml", "<Composite><Object invisible='false'/></Composite>");
    m_kDirectory.Write("more.xml",
                       "<Composite>" + Repeat("<Object invisible='false'/>\n", 300) + "</Composite>");
    EXPECT_NE(nullptr, LoadFile("more.xml"));

    const CAllocationCounter kLess;
    EXPECT_NE(nullptr, LoadFile("less.xml"));
    const std::size_t uiForLess = kLess.GetNumber();
    const CAllocationCounter kMore;
    EXPECT_NE(nullptr, LoadFile("more.xml"));
    EXPECT_EQ(uiForLess + 299, kMore.GetNumber());
}

TEST_F(CDialogXMLReaderTest, Read_CreatorThatReturnsNull_IsAnErrorAtItsElement)
{
    CGUIFactoryManager::GetInstance().RegisterObjectClass(
        "Clock", [](CGUICompositeObject*, ObjectHandle_t) -> CGUIObject* { return nullptr; });
    const std::string kError =
        "element 'Clock' could not be made; expected an object from the creator that is registered for it";
    ExpectRefused("<Clock/>", "1:1: " + kError);
    ExpectRefused("<?a?>\n  <Clock id='1' text='a'><Object/></Clock>", "2:3: " + kError);
    ExpectRefused("<Composite>\n <Object/>\n <Clock/>\n <Object/>\n</Composite>", "3:2: " + kError);
    ExpectRefused("<Composite><Composite><Clock><Composite/></Clock></Composite></Composite>",
                  "1:23: " + kError);
    ExpectRefused("<Composite><Label text='a'/><Clock text='a' invisible='b'/></Composite>",
                  "1:29: " + kError);
}

TEST_F(CDialogXMLReaderTest, Read_ExceptionOfAnObjectClass_PassesAndLeavesNoObject)
{
    CGUIFactoryManager::GetInstance().RegisterObjectClass<CThrowingObject>("Throwing");
    const eC_UInt uiNOFObjects = CGUIObject::GetNOFObjects();

    EXPECT_THROW(LoadText("<Composite><Object/><Throwing/></Composite>"), std::runtime_error);

    EXPECT_EQ(uiNOFObjects, CGUIObject::GetNOFObjects());
    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
}
} // namespace
