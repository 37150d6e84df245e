// SPDX-License-Identifier: MIT
#ifndef TESTS_COMPILEDDIALOGS_PROGRAMFIXTURE_H
#define TESTS_COMPILEDDIALOGS_PROGRAMFIXTURE_H

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

/** Runs programs in a directory of their own. */
class CProgramFixture : public testing::Test
{
protected:
    CProgramFixture();
    ~CProgramFixture() override;

    /** Writes a file, and creates the directories that it needs. */
    void Write(const std::string& kFile, const std::string& kText) const;

    std::string Read(const std::string& kFile) const;

    /** Creates a symbolic link. */
    void Link(const std::string& kTarget, const std::string& kLink) const;

    /** @return what a command writes to both of its outputs, followed by its status in brackets */
    std::string RunCommand(const std::string& kCommand) const;

    /** @return the names of the entries of the directory itself */
    std::set<std::string> GetFiles() const;

    /** Expects these entries in the directory itself. */
    void ExpectFiles(const std::set<std::string>& kExpected) const;

    const std::filesystem::path& GetDirectory() const { return m_kDirectory; }

private:
    std::filesystem::path m_kDirectory;
};

/** Runs dialogc. */
class CDialogCompilerTest : public CProgramFixture
{
protected:
    /** @param kArguments as the shell takes them @return as RunCommand does */
    std::string Run(const std::string& kArguments) const;

    /** Expects arguments to be refused with one line, and to leave no output. */
    void ExpectWrong(const std::string& kArguments, const std::string& kMessage) const;

    /** Expects a file "a.xml" to be refused, and the output of an earlier run to be gone.
     *  @param kError where and what, without the full stop
     */
    void ExpectRefused(const std::string& kText, const std::string& kError,
                       const std::string& kOptions = "") const;

    /** Expects a file "a.xml" to be compiled to "Out.h" and "Out.cpp". */
    void ExpectCompiled(const std::string& kText, const std::string& kOptions = "") const;

    /** Compiles a valid file to "<stem>.h" and "<stem>.cpp". */
    void WriteOutput(const std::string& kStem) const;
};

#endif
