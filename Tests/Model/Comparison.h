// SPDX-License-Identifier: MIT
#ifndef TESTS_MODEL_COMPARISON_H
#define TESTS_MODEL_COMPARISON_H

/** @file
 *  Runs the library and the model in parallel and compares them.
 */

#include "Tests/Model/LibrarySystem.h"
#include "Tests/Model/Model.h"
#include "Tests/Model/Operations.h"

#include <map>
#include <string>
#include <vector>

/** Counts how often each thing happened during the comparison. */
class CTally
{
public:
    /** Counts an operation that both systems performed alike.
     *  @param kResult its result, as PerformAndCatch returns it
     *  @param kEvents its hook calls and trace entries
     */
    void Count(const Operation_t& kOperation, const std::string& kResult,
               const std::vector<std::string>& kEvents);

    /** Counts the loads that failed as arranged. */
    void CountFailedLoads(const CModel& kModel);

    /** @return the number of operations performed outside hooks */
    unsigned long GetOperations() const { return m_uiOperations; }

    /** @return one line for everything that can happen: how often, and what */
    std::string Print() const;

    /** @return one line for everything that can happen but has not, empty if there is none */
    std::string PrintMissing() const;

private:
    void CountEvent(const std::string& kEvent);
    unsigned long Get(const std::string& kName) const;

    unsigned long m_uiOperations = 0;
    std::map<std::string, unsigned long> m_kCounts;
};

/** @return the beginning of every sequence: definitions and files for most dialogs and popups, creation hooks
 *         for the others. It does not change the state of the object tree.
 */
std::vector<Operation_t> GetBeginning();

/** Both systems, each with the definitions, files and creation hooks that every sequence begins with. */
class CComparison
{
public:
    /** @param kTally counts what happens; not owned */
    explicit CComparison(CTally& kTally);
    CComparison(const CComparison&) = delete;
    CComparison& operator=(const CComparison&) = delete;
    ~CComparison();

    /** @return false if the operation would never end, or would change the history where that is not allowed
     */
    bool Permits(const Operation_t& kOperation) const { return m_kModel.Permits(kOperation); }

    /** Performs an operation on both systems. Result, hook calls, trace entries and the whole state must be
     *  the same.
     *  @return false if anything differs, now or earlier
     */
    bool Do(const Operation_t& kOperation);

    /** @return the lines of both systems, "- " before one that only the model has, "+ " before one that only
     *         the library has; empty while nothing differs
     */
    const std::string& GetDifference() const { return m_kDifference; }

private:
    CModel m_kModel;
    CLibrarySystem m_kLibrary;
    CTally* m_pkTally = nullptr; ///< null during the common beginning, which is not counted
    std::string m_kDifference;
};

#endif
