// SPDX-License-Identifier: MIT
#include "Benchmarks/Measure.h"

#include "Benchmarks/Allocations.h"
#include "Benchmarks/InstructionCounter.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <limits>

namespace
{
constexpr double cdLongNanoseconds = 1e6;
constexpr double cdBatchNanoseconds = 20e3;
constexpr unsigned cuiBatchSteps = 1000;
constexpr double cdComparisonNanoseconds = 400e6;
constexpr double cdMinBatches = 1;
constexpr double cdMaxBatches = 1001;

double Read(clockid_t iClock)
{
    timespec kTime{};
    clock_gettime(iClock, &kTime);
    return static_cast<double>(kTime.tv_sec) * 1e9 + static_cast<double>(kTime.tv_nsec);
}

/** Measures a time in nanoseconds. Short times are rarely interrupted, so elapsed time is exact. Long ones
 *  are interrupted when the machine has other work, which processor time leaves out.
 */
class CStopWatch
{
public:
    CStopWatch() : m_dProcessor(Read(CLOCK_THREAD_CPUTIME_ID)), m_dWall(Read(CLOCK_MONOTONIC)) {}

    double GetNanoseconds() const
    {
        const double dWall = Read(CLOCK_MONOTONIC) - m_dWall;
        return dWall < cdLongNanoseconds ? dWall : Read(CLOCK_THREAD_CPUTIME_ID) - m_dProcessor;
    }

private:
    double m_dProcessor;
    double m_dWall;
};

/** The work or its floor, prepared and warm. */
class CSide
{
public:
    CSide(const WorkloadMaker_t& kMake, unsigned uiSteps) : m_pkWorkload(kMake()), m_uiSteps(uiSteps)
    {
        // The faster of two, so that an interruption does not count as work.
        while (!IsBatch() && (MeasureBatch() < cdBatchNanoseconds || MeasureBatch() < cdBatchNanoseconds))
        {
            m_uiTimes *= 2;
        }
        const std::uint64_t uiAllocations = GetNOFAllocations();
        const std::uint64_t uiInstructions = m_kCounter.Read();
        m_dBatchNanoseconds = MeasureBatch();
        m_dInstructions = PerOperation(static_cast<double>(m_kCounter.Read() - uiInstructions));
        m_dAllocations = PerOperation(static_cast<double>(GetNOFAllocations() - uiAllocations));
    }

    void RunBatch() { m_dFastest = std::min(m_dFastest, PerOperation(MeasureBatch())); }

    double GetBatchNanoseconds() const { return m_dBatchNanoseconds; }
    double GetFastest() const { return m_dFastest; }
    double GetAllocations() const { return m_dAllocations; }
    double GetInstructions() const { return m_dInstructions; }
    bool HasInstructions() const { return m_kCounter.IsAvailable(); }

private:
    double MeasureBatch()
    {
        const CStopWatch kStopWatch;
        m_pkWorkload->Repeat(m_uiTimes);
        return kStopWatch.GetNanoseconds();
    }

    /** Work of many steps is repeated so rarely that the other work has the caches in between. */
    bool IsBatch() const { return m_uiSteps > 1 && m_uiTimes * m_uiSteps >= cuiBatchSteps; }

    double PerOperation(double dPerBatch) const { return dPerBatch / m_uiTimes / m_uiSteps; }

    CInstructionCounter m_kCounter;
    std::unique_ptr<CWorkload> m_pkWorkload;
    unsigned m_uiSteps;
    unsigned m_uiTimes = 1;
    double m_dBatchNanoseconds = 0;
    double m_dAllocations = 0;
    double m_dInstructions = 0;
    double m_dFastest = std::numeric_limits<double>::max();
};

void Measure(benchmark::State& kState, const Measured_t& kMeasured)
{
    const Comparison_t& kComparison = kMeasured.m_kComparison;
    SetTrace(kMeasured.m_kSetting);
    CSide kFloor(kComparison.m_kMakeFloor, kComparison.m_uiSteps);
    CSide kWork(kComparison.m_kMake, kComparison.m_uiSteps);
    const double dPairs =
        cdComparisonNanoseconds / (kFloor.GetBatchNanoseconds() + kWork.GetBatchNanoseconds());
    const unsigned uiPairs = static_cast<unsigned>(std::clamp(dPairs, cdMinBatches, cdMaxBatches));
    while (kState.KeepRunning())
    {
        for (unsigned uiPair = 0; uiPair < uiPairs; ++uiPair)
        {
            kFloor.RunBatch();
            kWork.RunBatch();
        }
        kState.SetIterationTime(kWork.GetFastest() * 1e-9);
    }
    kState.counters["floor"] = kFloor.GetFastest();
    kState.counters["ratio"] = kWork.GetFastest() / kFloor.GetFastest();
    kState.counters["allocations"] = kWork.GetAllocations();
    kState.counters["floor_allocations"] = kFloor.GetAllocations();
    if (kWork.HasInstructions())
    {
        kState.counters["instructions"] = kWork.GetInstructions();
    }
}
} // namespace

int MeasureAll(int iArguments, char** ppcArguments, const std::vector<Measured_t>& kMeasured)
{
    benchmark::Initialize(&iArguments, ppcArguments);
    if (benchmark::ReportUnrecognizedArguments(iArguments, ppcArguments))
    {
        return EXIT_FAILURE;
    }
    // Files to load are beside the program.
    std::filesystem::current_path(std::filesystem::absolute(ppcArguments[0]).parent_path());
    for (const Measured_t& kWork : kMeasured)
    {
        const std::string kName = kWork.m_kSetting.m_pcName + ("/" + kWork.m_kComparison.m_kName);
        benchmark::RegisterBenchmark(kName.c_str(),
                                     [&kWork](benchmark::State& kState) { Measure(kState, kWork); })
            ->Iterations(1)
            ->UseManualTime();
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
