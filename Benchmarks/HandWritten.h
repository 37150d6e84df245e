// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_HANDWRITTEN_H
#define BENCHMARKS_HANDWRITTEN_H

/** @file
 *  The floor: the least code for switching screens by hand. It finds objects through an index, hides and
 *  shows them with a flag, and remembers them in a vector. It has no hooks and no trace.
 */

#include "Benchmarks/Application.h"

#include <unordered_map>
#include <vector>

/** A hand-written widget. */
struct HandWrittenObject_t
{
    int m_iID = 0;
    bool m_bIsInvisible = false;
    bool m_bIsFocusable = false;
    HandWrittenObject_t* m_pkParent = nullptr;
    HandWrittenObject_t* m_pkFirstChild = nullptr;
    HandWrittenObject_t* m_pkLastChild = nullptr;
    HandWrittenObject_t* m_pkNextSibling = nullptr;
};

/** Hand-written screens. */
class CHandWrittenScreens
{
public:
    /** What happens to the old screen. */
    enum EOldScreen : unsigned char
    {
        HIDE,
        DESTROY,
        LEAVE
    };

    CHandWrittenScreens() = default;
    CHandWrittenScreens(const CHandWrittenScreens&) = delete;
    CHandWrittenScreens& operator=(const CHandWrittenScreens&) = delete;
    ~CHandWrittenScreens();

    /** Shows a screen; builds it if it does not exist. */
    void SwitchTo(int iID, EOldScreen eOldScreen);

    /** Shows the previous screen, with its focus. */
    void Back(bool bDestroy);

    /** Hides every screen that is still in the history, because one may have been shown meanwhile. */
    void HideRecorded();

    /** Builds a screen of objects, the first of which are buttons. */
    HandWrittenObject_t* Build(int iID, unsigned uiObjects, unsigned uiButtons);

    /** Destroys a screen. */
    void Destroy(int iID) { Destroy(Find(iID)); }

    void Focus(int iID) { m_pkFocussed = Find(iID); }
    int GetFocussedID() const { return m_pkFocussed != nullptr ? m_pkFocussed->m_iID : 0; }
    int GetCurrentID() const { return m_pkCurrent->m_iID; }

private:
    struct Entry_t
    {
        int m_iScreenID;
        EOldScreen m_eAction;
        int m_iFocussedID;
    };

    HandWrittenObject_t* Find(int iID) const;
    HandWrittenObject_t* Obtain(int iID);
    HandWrittenObject_t* AddChild(HandWrittenObject_t& kParent, int iID);
    void Destroy(HandWrittenObject_t* pkScreen);

    std::unordered_map<int, HandWrittenObject_t*> m_kIndex;
    std::vector<Entry_t> m_kHistory;
    HandWrittenObject_t* m_pkCurrent = nullptr;
    HandWrittenObject_t* m_pkFocussed = nullptr;
};

#endif
