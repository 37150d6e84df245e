#ifndef TESTS_MUTATION_SAMPLE_SAMPLE_H
#define TESTS_MUTATION_SAMPLE_SAMPLE_H

/** @file
 *  Something to mutate, with one of everything that is mutated.
 */

#include <cassert>

/** Stands in for the log. */
extern const char* g_pcLogged;

#define GUI_TRACE_ERROR "ERROR: "
#define GUI_TRACE_WARNING "WARNING: "
#define GUI_TRACE_DEBUG "DEBUG: "
#define GUILOG(pcLevel, pcMessage) Log(pcLevel, pcMessage)

void Log(const char* pcLevel, const char* pcMessage);

enum Colour_t
{
    RED = 0,
    GREEN = 1
};

class CRange
{
public:
    static constexpr int ciStart = 5;

    constexpr CRange(int iFrom, int iTo) : m_iFrom(iFrom), m_iTo(iTo), m_iCalls(0) {}

    bool Contains(int iNumber)
    {
        ++m_iCalls;
        return m_iFrom <= iNumber && iNumber < m_iTo;
    }

    /** Which of its two statements comes first makes no difference. */
    void Clear()
    {
        m_iFrom = 0;
        m_iTo = 0;
    }

    int m_iFrom;
    int m_iTo;
    int m_iCalls;
};

template <typename T>
class CStack
{
public:
    ~CStack()
    {
        while (m_pTop != nullptr)
        {
            Drop();
        }
    }

    void Push(const T& tValue)
    {
        m_pTop = new Node{tValue, m_pTop};
        assert(m_pTop != nullptr);
    }

    void Drop()
    {
        Node* pTop = m_pTop;
        m_pTop = pTop->m_pNext;
        delete pTop;
    }

    T* Top() { return m_pTop != nullptr ? &m_pTop->m_tValue : nullptr; }

private:
    struct Node
    {
        T m_tValue;
        Node* m_pNext;
    };

    Node* m_pTop = nullptr;
};

int SumUpTo(int iLast);
int Difference(int iFrom, int iTo);
const char* NameOf(Colour_t eColour);
int NobodyTestsThis(int iNumber);

#endif
