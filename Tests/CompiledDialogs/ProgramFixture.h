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

    /** Writes a file, and makes the directories that it needs. */
    void Write(const std::string& kFile, const std::string& kText) const;

    std::string Read(const std::string& kFile) const;

    /** Makes a symbolic link. */
    void Link(const std::string& kTarget, const std::string& kLink) const;

    /** @return what a command writes to both of its outputs, and behind it its status in brackets */
    std::string RunCommand(const std::string& kCommand) const;

    /** @return the names of what lies in the directory itself */
    std::set<std::string> GetFiles() const;

    /** Expects the names of what lies in the directory itself. */
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

    /** Expects that arguments are refused with one line, and that no output is left of them. */
    void ExpectWrong(const std::string& kArguments, const std::string& kMessage) const;

    /** Expects that a file "a.xml" is refused, and that what an earlier run wrote is gone.
     *  @param kError where and what, without the full stop
     */
    void ExpectRefused(const std::string& kText, const std::string& kError,
                       const std::string& kOptions = "") const;

    /** Expects that a file "a.xml" is compiled to "Out.h" and "Out.cpp". */
    void ExpectCompiled(const std::string& kText, const std::string& kOptions = "") const;

    /** Compiles a good file to "<stem>.h" and "<stem>.cpp". */
    void WriteOutput(const std::string& kStem) const;
};

#endif
