// SPDX-License-Identifier: MIT
#include "Tests/Model/SharedText.h"

#include <algorithm>
#include <cstring>
#include <new>

#include <sys/mman.h>

CSharedText::CSharedText()
{
    void* pMemory =
        mmap(nullptr, sizeof(Memory_t), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (pMemory == MAP_FAILED)
    {
        throw std::bad_alloc();
    }
    m_pkMemory = static_cast<Memory_t*>(pMemory);
}

CSharedText::~CSharedText()
{
    munmap(m_pkMemory, sizeof(Memory_t));
}

void CSharedText::Append(const std::string& kText)
{
    const std::size_t uiLength = std::min(kText.size(), cuiCapacity - m_pkMemory->m_uiLength);
    std::memcpy(m_pkMemory->m_acText + m_pkMemory->m_uiLength, kText.data(), uiLength);
    m_pkMemory->m_uiLength += uiLength;
}
