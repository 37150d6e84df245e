// SPDX-License-Identifier: MIT
#include "Loader/GUIDialogROMReader.h"

#include "Core/Control/GUIObject.h"
#include "Core/GUITrace.h"
#include "Loader/DialogFileError.h"
#include "Loader/DialogTreeBuilder.h"

#include <cstddef>
#include <cstring>
#include <memory>

namespace
{
/** Reads the positions of a table one after the other. */
class CPositionReader
{
public:
    explicit CPositionReader(const unsigned char* puiPositions) : m_puiNext(puiPositions) {}

    void Advance()
    {
        const eC_UInt uiLines = ReadNumber();
        const eC_UInt uiColumns = ReadNumber();
        m_kPosition.m_uiLine += uiLines;
        m_kPosition.m_uiColumn = uiLines == 0 ? m_kPosition.m_uiColumn + uiColumns : uiColumns;
    }

    const TextPosition_t& GetPosition() const { return m_kPosition; }

private:
    eC_UInt ReadNumber()
    {
        eC_UInt uiNumber = 0;
        eC_UInt uiBits = 0;
        for (; (*m_puiNext & 0x80U) != 0; ++m_puiNext, uiBits += 7)
        {
            uiNumber |= (*m_puiNext & 0x7FU) << uiBits;
        }
        return uiNumber | static_cast<eC_UInt>(*m_puiNext++) << uiBits;
    }

    const unsigned char* m_puiNext;
    TextPosition_t m_kPosition;
};

/** @return why a path has no table */
DialogFileError_t MakeNoTableError(const eC_String& kPath)
{
    if (!IsPathOfOneLine(kPath))
    {
        return MakePathError();
    }
    return {TextPosition_t(), "no such compiled dialog", "a path that has a table"};
}

/** @return the place of a part of an element in the file */
TextPosition_t Locate(const DialogROMTable_t& kTable, const CDialogTreeBuilder& kBuilder)
{
    const std::ptrdiff_t iElementsBefore = &kBuilder.GetElement() - kTable.m_kElements.m_pkElements;
    const std::ptrdiff_t iAttributesBefore = kBuilder.GetAttribute() - kTable.m_kElements.m_pkAttributes;
    const std::ptrdiff_t iPositionsBefore = iElementsBefore + 2 * iAttributesBefore + kBuilder.GetPart();
    CPositionReader kReader(kTable.m_puiPositions);
    for (std::ptrdiff_t iPosition = 0; iPosition <= iPositionsBefore; ++iPosition)
    {
        kReader.Advance();
    }
    return kReader.GetPosition();
}
} // namespace

CGUIObject* CGUIDialogROMReader::Read(const eC_String& kPath)
{
    const DialogROMTable_t* pkTable = IsPathOfOneLine(kPath) ? FindTable(kPath.GetText()) : nullptr;
    if (pkTable == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR,
               "CGUIDialogROMReader::Read: " + FormatDialogFileError(kPath, MakeNoTableError(kPath)) + ".\n");
        return nullptr;
    }
    CDialogTreeBuilder kBuilder(pkTable->m_kElements);
    std::unique_ptr<CGUIObject> kObject = kBuilder.Build();
    if (!kObject)
    {
        GUILOG(GUI_TRACE_ERROR,
               "CGUIDialogROMReader::Read: " +
                   FormatDialogFileError(kPath, kBuilder.MakeError(Locate(*pkTable, kBuilder))) + ".\n");
    }
    return kObject.release();
}

const DialogROMTable_t* CGUIDialogROMReader::FindTable(const eC_Char* pcPath) const
{
    const DialogROMTable_t* pkFirst = m_kTables.m_pkDialogs;
    eC_UInt uiNOFDialogs = m_kTables.m_uiNOFDialogs;
    while (uiNOFDialogs > 0)
    {
        const DialogROMTable_t* pkMiddle = pkFirst + uiNOFDialogs / 2;
        const int iOrder = std::strcmp(pcPath, pkMiddle->m_pcPath);
        if (iOrder == 0)
        {
            return pkMiddle;
        }
        if (iOrder > 0)
        {
            pkFirst = pkMiddle + 1;
            --uiNOFDialogs;
        }
        uiNOFDialogs /= 2;
    }
    return nullptr;
}
