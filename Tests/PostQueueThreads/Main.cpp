// SPDX-License-Identifier: MIT
// Eight threads send a million numbered calls through a queue that is much too small for them, and retry
// whatever is refused. Every call must run exactly once, the calls of each thread in order, and the queue
// must count as many refusals as the senders.

#include "Companions/GUIPostQueue.h"

#include <atomic>
#include <cstdint>
#include <cstdio>
#include <thread>
#include <vector>

namespace
{
constexpr eC_Int ciNOFSenders = 8;
constexpr eC_Int ciCallsPerSender = 125000;

/** What the receiver got from each sender. */
struct Received_t
{
    eC_Int m_aiNext[ciNOFSenders] = {}; ///< the next number expected
    eC_Int m_iNOFFaults = 0;            ///< calls that were repeated or came after a missing one
    std::thread::id m_eThread = std::this_thread::get_id();
};

void Receive(void* pReceived, eC_Int iSender, eC_Int iNumber)
{
    Received_t& kReceived = *static_cast<Received_t*>(pReceived);
    const bool bIsRight =
        iNumber == kReceived.m_aiNext[iSender] && kReceived.m_eThread == std::this_thread::get_id();
    kReceived.m_iNOFFaults += bIsRight ? 0 : 1;
    kReceived.m_aiNext[iSender] = iNumber + 1;
}

/** @return how many calls were refused on the way */
std::uint32_t SendAll(CGUIPostQueue& kQueue, Received_t& kReceived, eC_Int iSender)
{
    std::uint32_t uiNOFRefused = 0;
    for (eC_Int iNumber = 0; iNumber < ciCallsPerSender; ++iNumber)
    {
        while (!kQueue.Send(&Receive, &kReceived, iSender, iNumber))
        {
            ++uiNOFRefused;
            std::this_thread::yield();
        }
    }
    return uiNOFRefused;
}
} // namespace

int main()
{
    CGUIPostQueueOf<64> kQueue;
    Received_t kReceived;
    std::atomic<std::uint32_t> uiNOFRefused{0};
    std::vector<std::thread> kSenders;
    for (eC_Int iSender = 0; iSender < ciNOFSenders; ++iSender)
    {
        kSenders.emplace_back([&, iSender] { uiNOFRefused += SendAll(kQueue, kReceived, iSender); });
    }
    const eC_UInt uiExpected = static_cast<eC_UInt>(ciNOFSenders * ciCallsPerSender);
    eC_UInt uiNOFRun = 0;
    while (uiNOFRun < uiExpected)
    {
        const eC_UInt uiNow = kQueue.Process(16);
        uiNOFRun += uiNow;
        if (uiNow == 0)
        {
            std::this_thread::yield();
        }
    }
    for (std::thread& kSender : kSenders)
    {
        kSender.join();
    }

    const bool bAllIsWell = kReceived.m_iNOFFaults == 0 && kQueue.IsEmpty() && uiNOFRun == uiExpected &&
                            kQueue.GetNOFRefused() == uiNOFRefused;
    std::printf("%u calls of %d threads ran once and in order, %u were refused and sent again; %d faults\n",
                uiNOFRun, ciNOFSenders, kQueue.GetNOFRefused(), kReceived.m_iNOFFaults);
    return bAllIsWell ? 0 : 1;
}
