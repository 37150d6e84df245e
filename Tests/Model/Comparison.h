// SPDX-License-Identifier: MIT
#ifndef TESTS_MODEL_COMPARISON_H
#define TESTS_MODEL_COMPARISON_H

/** @file
 *  The library and the model side by side.
 */

#include "Tests/Model/LibrarySystem.h"
#include "Tests/Model/Model.h"
#include "Tests/Model/Operations.h"

#include <map>
#include <string>
#include <vector>

/** How often what happened while sides were compared. */
class CTally
{
public:
    /** Counts an operation that both sides have done alike.
     *  @param kResult its result, as PerformAndCatch gives it
     *  @param kEvents the hook calls and trace entries that it brought
     */
    void Count(const Operation_t& kOperation, const std::string& kResult,
               const std::vector<std::string>& kEvents);

    /** Counts the loads that were made to fail. */
    void CountFailedLoads(const CModel& kModel);

    /** @return the operations done outside hooks */
    unsigned long GetOperations() const { return m_uiOperations; }

    /** @return one line for everything that can happen: how often, and what */
    std::string Print() const;

    /** @return one line for everything that can happen and has not, empty when there is none */
    std::string PrintMissing() const;

private:
    void CountEvent(const std::string& kEvent);
    unsigned long Get(const std::string& kName) const;

    unsigned long m_uiOperations = 0;
    std::map<std::string, unsigned long> m_kCounts;
};

/** @return what every sequence begins with: definitions and files of most dialogs and popups, creation
 *          hooks for the others. Nothing of it changes the state of the object tree.
 */
std::vector<Operation_t> GetBeginning();

/** Both sides, each with the definitions, files and creation hooks that every sequence begins with. */
class CComparison
{
public:
    /** @param kTally counts what happens; not owned */
    explicit CComparison(CTally& kTally);
    CComparison(const CComparison&) = delete;
    CComparison& operator=(const CComparison&) = delete;
    ~CComparison();

    /** @return false when the operation would never end, or would change the history where that is not
     *          allowed
     */
    bool Permits(const Operation_t& kOperation) const { return m_kModel.Permits(kOperation); }

    /** Does an operation on both sides: result, hook calls, trace entries and the whole state must be the
     *  same.
     *  @return false when anything differs, now or before
     */
    bool Do(const Operation_t& kOperation);

    /** @return the lines of both sides, "- " before one that only the model has, "+ " before one that only
     *          the library has; empty while nothing differs
     */
    const std::string& GetDifference() const { return m_kDifference; }

private:
    CModel m_kModel;
    CLibrarySystem m_kLibrary;
    CTally* m_pkTally = nullptr; ///< null as long as the beginning is done, which does not count
    std::string m_kDifference;
};

#endif
