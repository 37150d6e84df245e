// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_WORKLOAD_H
#define BENCHMARKS_WORKLOAD_H

/** @file
 *  What is measured: work with the library, and the least hand-written code that does the same.
 */

#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/** Work that can be repeated. Its constructor prepares everything that shall not be measured. */
class CWorkload
{
public:
    virtual ~CWorkload() = default;

    /** Does the work and restores the initial state. @param uiTimes how often */
    virtual void Repeat(unsigned uiTimes) = 0;
};

/** Work that the function Do of a class does. */
template <typename TWork>
class CRepeatedWork : public CWorkload
{
public:
    /** Creates the object that does the work. */
    template <typename... TArguments>
    explicit CRepeatedWork(TArguments... tArguments) : m_kWork(tArguments...)
    {
    }

    void Repeat(unsigned uiTimes) override
    {
        for (; uiTimes > 0; --uiTimes)
        {
            m_kWork.Do();
        }
    }

private:
    TWork m_kWork;
};

/** Prepares a workload. */
using WorkloadMaker_t = std::function<std::unique_ptr<CWorkload>()>;

/** @return a function that prepares the work of TWork with these arguments */
template <typename TWork, typename... TArguments>
WorkloadMaker_t MakerOf(TArguments... tArguments)
{
    return
        [=]() -> std::unique_ptr<CWorkload> { return std::make_unique<CRepeatedWork<TWork>>(tArguments...); };
}

/** How the trace takes part in the work. */
enum ETraceUse : unsigned char
{
    LOGS_NOTHING, ///< measured once
    LOGS,         ///< measured with the trace off, into the ring and to no sink
    LOGS_ONLY     ///< nothing can be measured with the trace off
};

/** Work and its floor. */
struct Comparison_t
{
    std::string m_kName;          ///< work/variant/size
    ETraceUse m_eTraceUse;        ///< whether the work logs
    unsigned m_uiSteps;           ///< the number of operations each time the work is done
    WorkloadMaker_t m_kMake;      ///< prepares the work
    WorkloadMaker_t m_kMakeFloor; ///< prepares the floor

    /** How often the work is done when its instructions are counted: 0 for never. Work that is not the same
     *  every time needs a full cycle.
     */
    unsigned m_uiCountedTimes = 16;

    /** false: the work and its floor both need the one root, so they cannot be measured in turn. */
    bool m_bIsTimed = true;
};

using Comparisons_t = std::vector<Comparison_t>;

/** @return everything that is measured */
Comparisons_t GetComparisons();

/** Ends the program if the measured work did not do what it should. */
inline void Require(bool bIsTrue)
{
    if (!bIsTrue)
    {
        std::abort();
    }
}

/** Keeps the compiler from removing the computation of a value. */
template <typename T>
void Keep(const T& tValue)
{
    asm volatile("" : : "r,m"(tValue) : "memory");
}

void AddSwitchComparisons(Comparisons_t& kComparisons);
void AddTreeComparisons(Comparisons_t& kComparisons);
void AddPopupComparisons(Comparisons_t& kComparisons);
void AddLoadComparisons(Comparisons_t& kComparisons);
void AddTraceComparisons(Comparisons_t& kComparisons);
void AddListComparisons(Comparisons_t& kComparisons);
void AddCompanionComparisons(Comparisons_t& kComparisons);
void AddMirrorComparisons(Comparisons_t& kComparisons);

#endif
