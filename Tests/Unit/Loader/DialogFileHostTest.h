// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_LOADER_DIALOGFILEHOSTTEST_H
#define TESTS_UNIT_LOADER_DIALOGFILEHOSTTEST_H

/** @file
 *  What the tests of description files share: a directory for files, a factory, and a recorder of the log.
 */

#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUIFactoryManager.h"
#include "Loader/GUIDialogXMLReader.h"
#include "Scenario/EventLog.h"
#include "Scenario/TraceRecorder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

/** A directory for one test, removed with all files in it. */
class CTemporaryDirectory
{
public:
    CTemporaryDirectory();
    CTemporaryDirectory(const CTemporaryDirectory&) = delete;
    CTemporaryDirectory& operator=(const CTemporaryDirectory&) = delete;
    ~CTemporaryDirectory();

    /** Writes a file, byte for byte. @return its full path */
    std::string Write(const std::string& kName, const std::string& kBytes) const;

    const std::filesystem::path& GetPath() const { return m_kPath; }

private:
    std::filesystem::path m_kPath;
};

/** An object class of an application, with a text and a number from 0 to 99. */
class CTestLabel : public CGUIObject
{
public:
    using CGUIObject::CGUIObject;

    EAttributeResult SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                  eC_String& kExpectedOUT) override;

    const std::string& GetText() const { return m_kText; }
    const std::string& GetWidth() const { return m_kWidth; }

private:
    std::string m_kText;
    std::string m_kWidth;
};

/** Reads files below a temporary directory through the factory, which has its own object classes and "Label"
 *  (CTestLabel). Each test must leave as many objects as it found.
 */
class CDialogFileTest : public testing::Test
{
protected:
    CDialogFileTest();
    ~CDialogFileTest() override;

    void TearDown() override;

    /** Writes a file "dialog.xml" and loads it through the factory. */
    std::unique_ptr<CGUIObject> LoadText(const std::string& kText);

    /** Loads a file through the factory. */
    std::unique_ptr<CGUIObject> LoadFile(const std::string& kPath);

    /** @return the entries logged since the last call, formatted by FormatTraceLine */
    std::vector<std::string> TakeLog();

    /** Expects a file "dialog.xml" to be refused: with null, exactly one log entry, and no object left.
     *  @param kError what the entry says after the path: "line:column: found; expected what"
     */
    void ExpectRefused(const std::string& kText, const std::string& kError);

    /** Expects a file "dialog.xml" to be read without a log entry and to give a tree.
     *  @param kTree the tree as DescribeTree prints it
     */
    void ExpectTree(const std::string& kText, const std::string& kTree);

    CTemporaryDirectory m_kDirectory;
    CEventLog m_kEventLog;
    CTraceRecorder m_kRecorder;
    CGUIDialogXMLReader m_kReader;

private:
    eC_UInt m_uiNOFObjectsBefore;
};

/** @return the object in one line: "Object" or "Composite", the identifier unless it is 0, "invisible",
 *         "focusable", and the children in braces
 */
std::string DescribeTree(const CGUIObject& kObject);

/** @return the lines that a shell command writes to its standard output */
std::vector<std::string> RunShell(const std::string& kCommand);

/** @param kPath the path from the top of the sources @return the whole file */
std::string ReadSourceFile(const std::string& kPath);

/** @return the blocks of Docs/DialogFiles.md in one language */
std::vector<std::string> GetDocumentBlocks(const std::string& kLanguage);

#endif
