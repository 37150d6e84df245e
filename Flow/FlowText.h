// SPDX-License-Identifier: MIT
#ifndef FLOW_FLOWTEXT_H
#define FLOW_FLOWTEXT_H

/** @file
 *  The elements and attributes of a flow file, with the errors in them.
 */

#include "Flow/FlowModel.h"
#include "Loader/DialogDocument.h"
#include "Loader/DialogFileError.h"

#include <initializer_list>
#include <string>
#include <vector>

/** Thrown for the first mistake in a flow file. */
struct FlowMistake_t
{
    DialogFileError_t m_kError;
};

/** A word and what it stands for. */
template <typename TValue>
struct FlowWord_t
{
    const eC_Char* m_pcText;
    TValue m_tValue;
};

/** One element of a flow file. It reads its attributes and says where they are wrong. */
class CFlowElement
{
public:
    /** @param kDocument outlives the element. @param uiIndex which of its elements */
    CFlowElement(const CDialogDocument& kDocument, eC_UInt uiIndex);

    eC_Bool Is(const eC_Char* pcName) const;
    const eC_Char* GetName() const { return m_pkElement->m_pcName; }
    eC_UInt GetIndex() const { return m_uiIndex; }
    TextPosition_t GetPosition() const { return m_kDocument.LocateElement(*m_pkElement); }

    /** @return the elements directly inside this one */
    std::vector<CFlowElement> GetChildren() const;

    /** @return the index of the first element after this one and all inside it */
    eC_UInt GetEnd() const;

    /** @return the index of its first attribute among those of the document */
    eC_UInt GetFirstAttribute() const { return m_uiFirstAttribute; }

    /** Refuses every attribute that is not in the list. */
    void Allow(std::initializer_list<const eC_Char*> kNames) const;

    /** Refuses elements inside this one. */
    void AllowNoChildren() const;

    /** @return the attribute, or null */
    const DialogAttribute_t* Find(const eC_Char* pcName) const;

    /** Finds an attribute that must be there. @param pcExpected what it is */
    const DialogAttribute_t& Get(const eC_Char* pcName, const eC_Char* pcExpected) const;

    std::string GetText(const eC_Char* pcName) const; ///< empty if it is not there
    eC_Bool GetFlag(const eC_Char* pcName, eC_Bool bDefault) const;
    eC_UInt GetNumber(const eC_Char* pcName, eC_UInt uiLeast, eC_UInt uiMost, eC_UInt uiDefault) const;

    /** @return what a word stands for; the default if the attribute is not there */
    template <typename TValue>
    TValue GetWord(const eC_Char* pcName, std::initializer_list<FlowWord_t<TValue>> kWords,
                   TValue tDefault) const
    {
        const DialogAttribute_t* pkAttribute = Find(pcName);
        if (pkAttribute == nullptr)
        {
            return tDefault;
        }
        std::string kExpected;
        for (const FlowWord_t<TValue>& kWord : kWords)
        {
            if (std::string(kWord.m_pcText) == pkAttribute->m_pcValue)
            {
                return kWord.m_tValue;
            }
            kExpected += (kExpected.empty() ? "one of " : ", ") + std::string(kWord.m_pcText);
        }
        FailAt(*pkAttribute, kExpected);
    }

    /** Reports an attribute's value. */
    [[noreturn]] void FailAt(const DialogAttribute_t& kAttribute, const std::string& kExpected) const;

    /** Reports a part of an attribute's value. @param uiOffset in bytes, of values without references */
    [[noreturn]] void FailAt(const DialogAttribute_t& kAttribute, std::size_t uiOffset,
                             const std::string& kFound, const std::string& kExpected) const;

    /** Reports the element. */
    [[noreturn]] void Fail(const std::string& kFound, const std::string& kExpected) const;

private:
    DialogElements_t GetAll() const { return m_kDocument.GetElements(); }

    const CDialogDocument& m_kDocument;
    eC_UInt m_uiIndex;
    const DialogElement_t* m_pkElement;
    eC_UInt m_uiFirstAttribute = 0;
};

#endif
