// SPDX-License-Identifier: MIT
#include "Companions/GUIRestore.h"

#include "Companions/FlagScope.h"
#include "Companions/TraceText.h"
#include "Core/Control/GUI.h"
#include "Core/Control/GUICompositeObject.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUITimer.h"
#include "Core/GUITrace.h"

// A block, with the least significant byte of each number first:
//
//     4 bytes  the mark, 2 the version, 2 the size of the block
//     4        the sequence number: the newer block has the greater one
//     4        the number of the application, 4 that of the contents
//     1        how many dialogs there are, and for each, the oldest first:
//                  4 identifier, 1 action on its predecessor, 4 focussed object, 2 size of its argument, the
//                  argument
//     1        how many popups there are, and for each: 4 identifier
//     4        the checksum of everything before

namespace
{
constexpr eC_UInt cuiMark = 0x53524547; // "GERS"
constexpr eC_UInt cuiVersion = 1;
constexpr eC_UInt cuiVersionPlace = 4;
constexpr eC_UInt cuiSizePlace = 6;
constexpr eC_UInt cuiSequencePlace = 8;
constexpr eC_UInt cuiApplicationPlace =
    12; ///< from here on the block says the same as long as the state does
constexpr eC_UInt cuiContentsPlace = 16;
constexpr eC_UInt cuiDialogsPlace = 20;
constexpr eC_UInt cuiChecksum = 4; ///< its size
constexpr eC_UInt cuiID = 4;       ///< the size of an identifier

// CreateDynamicObjectID hands out the first identifier after the static ones.
eC_Bool IsDynamic(ObjectHandle_t eID)
{
    constexpr eC_UInt cuiBeforeFirst = 8;
    return static_cast<eC_UInt>(eID) == cuiNOFObjectHandles - cuiBeforeFirst;
}

const eC_Char* GetReason(eC_UInt uiContents)
{
    static const eC_Char* const apcReasons[] = {"is missing", "is damaged", "has another version",
                                                "is of another application", "is of other contents"};
    return apcReasons[uiContents];
}

// The reflected CRC-32 with the polynomial 0x04C11DB7, a bit at a time: a block is small, and a table is not.
eC_UInt GetChecksum(const unsigned char* puiBytes, eC_UInt uiSize)
{
    eC_UInt uiChecksum = 0xFFFFFFFFU;
    for (eC_UInt uiByte = 0; uiByte < uiSize; ++uiByte)
    {
        uiChecksum ^= puiBytes[uiByte];
        for (eC_UInt uiBit = 0; uiBit < 8; ++uiBit)
        {
            uiChecksum = (uiChecksum >> 1U) ^ (0xEDB88320U & (0U - (uiChecksum & 1U)));
        }
    }
    return ~uiChecksum;
}

// The checksum of what a block says, whatever its sequence number.
eC_UInt GetStateChecksum(const unsigned char* puiBlock, eC_UInt uiSize)
{
    return GetChecksum(puiBlock + cuiApplicationPlace, uiSize - cuiApplicationPlace - cuiChecksum);
}

eC_UInt GetNumber(const unsigned char* puiBytes, eC_UInt uiSize)
{
    eC_UInt uiNumber = 0;
    while (uiSize > 0)
    {
        --uiSize;
        uiNumber = uiNumber << 8U | puiBytes[uiSize];
    }
    return uiNumber;
}

eC_Bool IsErased(const unsigned char* puiBytes, eC_UInt uiSize)
{
    eC_UInt uiByte = 0;
    while (uiByte < uiSize && puiBytes[uiByte] == puiBytes[0])
    {
        ++uiByte;
    }
    return uiByte == uiSize;
}
} // namespace

/** Writes numbers into a block. */
class CGUIRestore::CWriter
{
public:
    /** @param uiPlace where to begin */
    explicit CWriter(unsigned char* puiBlock, eC_UInt uiPlace = cuiDialogsPlace)
        : m_puiBlock(puiBlock), m_uiPlace(uiPlace)
    {
    }

    eC_UInt GetSize() const { return m_uiPlace; }
    unsigned char* GetNext() const { return m_puiBlock + m_uiPlace; }
    void Skip(eC_UInt uiSize) { m_uiPlace += uiSize; }

    void Write(eC_UInt uiNumber, eC_UInt uiSize)
    {
        for (; uiSize > 0; --uiSize)
        {
            m_puiBlock[m_uiPlace] = static_cast<unsigned char>(uiNumber);
            uiNumber >>= 8U;
            ++m_uiPlace;
        }
    }

private:
    unsigned char* m_puiBlock;
    eC_UInt m_uiPlace;
};

/** Reads numbers from a block. After its end come zeros. */
class CGUIRestore::CReader
{
public:
    CReader(const unsigned char* puiBytes, eC_UInt uiSize) : m_puiNext(puiBytes), m_uiLeft(uiSize) {}

    eC_UInt Read(eC_UInt uiSize)
    {
        const unsigned char* const puiBytes = Take(uiSize);
        return puiBytes != nullptr ? GetNumber(puiBytes, uiSize) : 0;
    }

    ObjectHandle_t ReadHandle() { return static_cast<ObjectHandle_t>(Read(4)); }

    /** @return that many bytes, or null if there are fewer */
    const unsigned char* Take(eC_UInt uiSize)
    {
        const unsigned char* const puiBytes = uiSize <= m_uiLeft ? m_puiNext : nullptr;
        const eC_UInt uiTaken = uiSize <= m_uiLeft ? uiSize : m_uiLeft;
        m_puiNext += uiTaken;
        m_uiLeft -= uiTaken;
        return puiBytes;
    }

private:
    const unsigned char* m_puiNext;
    eC_UInt m_uiLeft;
};

CGUIRestore::CGUIRestore(CGUIObservedDialogManager& kManager, CGUIRestoreStorage& kStorage,
                         ObjectHandle_t eHome, eC_UInt uiApplication, eC_UInt uiContents,
                         unsigned char* puiBlock, const Limits_t& kLimits)
    : m_kStorage(kStorage),
      m_puiBlock(puiBlock),
      m_kLimits(kLimits),
      m_uiApplication(uiApplication),
      m_uiContents(uiContents),
      m_eHome(eHome)
{
    kManager.AddListener(*this);
}

CGUIRestore::~CGUIRestore() = default;

void CGUIRestore::SetPopups(const ObjectHandle_t* pePopups, eC_UInt uiNOFPopups)
{
    m_pePopups = pePopups;
    m_uiNOFPopups = uiNOFPopups;
}

// --- Saving ------------------------------------------------------------------------------------------

void CGUIRestore::Start(eC_UInt uiDelay)
{
    m_uiDelay = uiDelay;
    SaveLater();
}

void CGUIRestore::Stop()
{
    m_uiDelay = 0;
    GETTIMER.RemoveAnimationCallback(this);
}

void CGUIRestore::OnDialogAdded(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
    SaveLater();
}

void CGUIRestore::OnDialogActivation(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
    SaveLater();
}

void CGUIRestore::OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID)
{
    static_cast<void>(eDeletedDialogID);
    static_cast<void>(eNewDialogID);
    SaveLater();
}

void CGUIRestore::OnPopupActivation(CGUIObject* pPopup)
{
    static_cast<void>(pPopup);
    SaveLater();
}

void CGUIRestore::OnPopupDeactivation(CGUIObject* pPopup)
{
    static_cast<void>(pPopup);
    SaveLater();
}

// A registration with the same interval keeps running, so the first hook since the last block counts.
void CGUIRestore::SaveLater()
{
    if (m_uiDelay != 0 && !m_bIsRestoring)
    {
        GETTIMER.AddAnimationCallback(m_uiDelay, this);
    }
}

void CGUIRestore::DoAnimate(const eC_Value& vTimes)
{
    static_cast<void>(vTimes);
    GETTIMER.RemoveAnimationCallback(this);
    Save();
}

eC_Bool CGUIRestore::Save()
{
    if (GetManager() == nullptr || m_bIsRestoring)
    {
        return true;
    }
    CWriter kWriter(m_puiBlock);
    NoteFocus();
    if (!m_bHasLooked)
    {
        FindNewestBlock();
    }
    WriteDialogs(kWriter);
    WritePopups(kWriter);
    return WriteBlock(kWriter);
}

eC_Bool CGUIRestore::Forget()
{
    if (m_bIsRestoring)
    {
        return false;
    }
    if (!m_bHasLooked)
    {
        FindNewestBlock();
    }
    CWriter kWriter(m_puiBlock);
    kWriter.Write(0, 1);
    kWriter.Write(0, 1);
    return WriteBlock(kWriter);
}

// The focus in the current dialog, as long as it is there: a popup may have it later.
void CGUIRestore::NoteFocus()
{
    const CGUIObject* const pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
    const CGUIObject* const pkDialog = GetManager()->GetCurrentDialog();
    if (pkFocussed != nullptr && pkDialog != nullptr &&
        (pkFocussed == pkDialog || pkFocussed->IsDescendantOf(pkDialog)))
    {
        m_eFocussedDialog = pkDialog->GetID();
        m_eFocussedObject = pkFocussed->GetID();
    }
}

// All dialogs that can be found again after a reset, up to the first that cannot.
eC_UInt CGUIRestore::GetNOFDialogsToSave() const
{
    const eC_UInt uiNOFPast = GetManager()->GetHistoryStackSize();
    const ObjectHandle_t eCurrent = GetManager()->GetCurrentDialogID();
    eC_UInt uiNOFDialogs = 0;
    CGUIObservedDialogManager::PastDialog_t kPast = {};
    while (GetManager()->GetPastDialog(uiNOFPast - 1 - uiNOFDialogs, kPast) && !IsDynamic(kPast.m_eDialogID))
    {
        ++uiNOFDialogs;
    }
    const eC_Bool bIsCurrentToo = uiNOFDialogs == uiNOFPast && eCurrent != NO_HANDLE && !IsDynamic(eCurrent);
    return uiNOFDialogs + (bIsCurrentToo ? 1U : 0U);
}

void CGUIRestore::WriteDialogs(CWriter& kWriter)
{
    const eC_UInt uiNOFDialogs = GetNOFDialogsToSave();
    const eC_UInt uiNOFWritten = uiNOFDialogs < m_kLimits.m_uiDialogs ? uiNOFDialogs : m_kLimits.m_uiDialogs;
    eC_UInt uiRoomForArguments = m_kLimits.m_uiArguments;
    kWriter.Write(uiNOFWritten, 1);
    for (eC_UInt uiLevel = uiNOFDialogs - uiNOFWritten; uiLevel < uiNOFDialogs; ++uiLevel)
    {
        WriteDialog(kWriter, uiLevel, uiRoomForArguments);
    }
}

void CGUIRestore::WriteDialog(CWriter& kWriter, eC_UInt uiLevel, eC_UInt& uiRoomForArguments)
{
    const eC_UInt uiNOFPast = GetManager()->GetHistoryStackSize();
    CGUIObservedDialogManager::PastDialog_t kDialog = {GetManager()->GetCurrentDialogID(), m_eFocussedObject,
                                                       CGUIDialogManager::ODA_NOTHING,
                                                       CGUIDialogManager::ODA_NOTHING};
    const eC_Bool bIsCurrent = !GetManager()->GetPastDialog(uiNOFPast - 1 - uiLevel, kDialog);
    CGUIObservedDialogManager::PastDialog_t kPredecessor = {};
    if (GetManager()->GetPastDialog(uiNOFPast - uiLevel, kPredecessor))
    {
        kDialog.m_eOldDialogAction = kPredecessor.m_eAction;
    }
    const eC_Bool bHasFocus = !bIsCurrent || kDialog.m_eDialogID == m_eFocussedDialog;
    const ObjectHandle_t eFocussed =
        bHasFocus && !IsDynamic(kDialog.m_eFocussedObject) ? kDialog.m_eFocussedObject : NO_HANDLE;
    kWriter.Write(static_cast<eC_UInt>(kDialog.m_eDialogID), cuiID);
    kWriter.Write(kDialog.m_eOldDialogAction, 1);
    kWriter.Write(static_cast<eC_UInt>(eFocussed), cuiID);

    constexpr eC_UInt cuiSize = 2;
    const eC_UInt uiArgument =
        m_pkArguments != nullptr
            ? m_pkArguments->SaveArgument(kDialog.m_eDialogID, uiLevel, kWriter.GetNext() + cuiSize,
                                          uiRoomForArguments)
            : 0;
    const eC_UInt uiWritten = uiArgument <= uiRoomForArguments ? uiArgument : 0;
    kWriter.Write(uiWritten, cuiSize);
    kWriter.Skip(uiWritten);
    uiRoomForArguments -= uiWritten;
}

void CGUIRestore::WritePopups(CWriter& kWriter)
{
    unsigned char* const puiNumber = kWriter.GetNext();
    kWriter.Write(0, 1);
    for (eC_UInt uiPopup = 0; uiPopup < m_uiNOFPopups && *puiNumber < m_kLimits.m_uiPopups; ++uiPopup)
    {
        if (GetManager()->IsPopupInPopupList(m_pePopups[uiPopup]))
        {
            kWriter.Write(static_cast<eC_UInt>(m_pePopups[uiPopup]), cuiID);
            ++*puiNumber;
        }
    }
}

// Completes a block and writes it into the slot that does not have the newest one.
eC_Bool CGUIRestore::WriteBlock(CWriter& kWriter)
{
    const eC_UInt uiSize = kWriter.GetSize() + cuiChecksum;
    CWriter kHeader(m_puiBlock, 0);
    kHeader.Write(cuiMark, 4);
    kHeader.Write(cuiVersion, 2);
    kHeader.Write(uiSize, 2);
    kHeader.Write(m_uiSequence + 1, 4);
    kHeader.Write(m_uiApplication, 4);
    kHeader.Write(m_uiContents, 4);
    kWriter.Write(GetChecksum(m_puiBlock, uiSize - cuiChecksum), cuiChecksum);

    const eC_UInt uiChecksum = GetStateChecksum(m_puiBlock, uiSize);
    if (m_bHasBlock && uiChecksum == m_uiChecksum)
    {
        return true;
    }
    const unsigned char uiSlot = m_uiSlot == 0 ? 1 : 0;
    if (!m_kStorage.WriteSlot(uiSlot, m_puiBlock, uiSize))
    {
        GUILOG(GUI_TRACE_WARNING, "CGUIRestore::WriteBlock: The state cannot be saved.\n");
        return false;
    }
    m_bHasBlock = true;
    m_uiSlot = uiSlot;
    m_uiChecksum = uiChecksum;
    ++m_uiSequence;
    return true;
}

// --- Restoring ---------------------------------------------------------------------------------------

eC_Bool CGUIRestore::Restore()
{
    if (GetManager() == nullptr || m_bIsRestoring)
    {
        return false;
    }
    const EContents eContents = FindBlockToRestore();
    if (eContents == CONTENTS_VALID && ShowState())
    {
        return true;
    }
    if (eContents != CONTENTS_VALID && eContents != CONTENTS_NONE)
    {
        GUILOG(GUI_TRACE_WARNING, eC_String("CGUIRestore::Restore: Nothing is restored, because the block ") +
                                      GetReason(eContents) + ".\n");
    }
    GetManager()->ClearDialogHistory(0, true, true);
    GetManager()->CreateDialog(m_eHome, CGUIDialogManager::ODA_NOTHING);
    return false;
}

// Leaves the block in the memory.
CGUIRestore::EContents CGUIRestore::FindBlockToRestore()
{
    EContents eContents = FindNewestBlock();
    if (eContents == CONTENTS_VALID)
    {
        eContents = ReadBlock(m_uiSlot);
    }
    if (eContents == CONTENTS_VALID && GetNumber(m_puiBlock + cuiApplicationPlace, 4) != m_uiApplication)
    {
        eContents = CONTENTS_APPLICATION;
    }
    if (eContents == CONTENTS_VALID && GetNumber(m_puiBlock + cuiContentsPlace, 4) != m_uiContents)
    {
        eContents = CONTENTS_OTHER;
    }
    return eContents;
}

CGUIRestore::EContents CGUIRestore::FindNewestBlock()
{
    EContents eFound = CONTENTS_NONE;
    m_bHasBlock = false;
    m_bHasLooked = true;
    for (unsigned char uiSlot = 0; uiSlot < 2; ++uiSlot)
    {
        const EContents eContents = ReadBlock(uiSlot);
        eFound = eContents > eFound ? eContents : eFound;
        if (eContents != CONTENTS_VALID)
        {
            continue;
        }
        const eC_UInt uiSequence = GetNumber(m_puiBlock + cuiSequencePlace, 4);
        // The sequence number wraps around.
        if (!m_bHasBlock || static_cast<eC_Int>(uiSequence - m_uiSequence) > 0)
        {
            m_bHasBlock = true;
            m_uiSlot = uiSlot;
            m_uiSequence = uiSequence;
            m_uiChecksum = GetStateChecksum(m_puiBlock, GetNumber(m_puiBlock + cuiSizePlace, 2));
        }
    }
    return eFound;
}

CGUIRestore::EContents CGUIRestore::ReadBlock(eC_UInt uiSlot)
{
    const eC_UInt uiRead = m_kStorage.ReadSlot(uiSlot, m_puiBlock, m_kLimits.GetSize());
    if (IsErased(m_puiBlock, uiRead))
    {
        return CONTENTS_NONE;
    }
    if (uiRead < cuiEmptyBlock || GetNumber(m_puiBlock, 4) != cuiMark)
    {
        return CONTENTS_DAMAGED;
    }
    if (GetNumber(m_puiBlock + cuiVersionPlace, 2) != cuiVersion)
    {
        return CONTENTS_VERSION;
    }
    const eC_UInt uiSize = GetNumber(m_puiBlock + cuiSizePlace, 2);
    const eC_Bool bIsWhole =
        uiSize >= cuiEmptyBlock && uiSize <= uiRead &&
        GetNumber(m_puiBlock + uiSize - cuiChecksum, 4) == GetChecksum(m_puiBlock, uiSize - cuiChecksum);
    return bIsWhole ? CONTENTS_VALID : CONTENTS_DAMAGED;
}

// Shows what the block in the memory says. Returns false if that leads home.
eC_Bool CGUIRestore::ShowState()
{
    const CFlagScope kScope(m_bIsRestoring);
    CReader kReader(m_puiBlock + cuiDialogsPlace,
                    GetNumber(m_puiBlock + cuiSizePlace, 2) - cuiDialogsPlace - cuiChecksum);
    // A dialog that its own switch destroys leaves none current.
    if (ShowDialogs(kReader) == 0 || GetManager()->GetCurrentDialogID() == NO_HANDLE)
    {
        return false;
    }
    ShowPopups(kReader);
    return true;
}

// Returns how many dialogs it has shown. After one that cannot be obtained the others are only read.
eC_UInt CGUIRestore::ShowDialogs(CReader& kReader)
{
    eC_UInt uiNOFShown = 0;
    const eC_UInt uiNOFDialogs = kReader.Read(1);
    for (eC_UInt uiDialog = 0; uiDialog < uiNOFDialogs; ++uiDialog)
    {
        const ObjectHandle_t eID = kReader.ReadHandle();
        const auto eAction = static_cast<CGUIDialogManager::EOldDialogAction>(kReader.Read(1));
        const ObjectHandle_t eFocussed = kReader.ReadHandle();
        const eC_UInt uiArgument = kReader.Read(2);
        const unsigned char* const puiArgument = kReader.Take(uiArgument);
        if (uiNOFShown == uiDialog && ShowDialog(eID, eAction, puiArgument, uiArgument))
        {
            ++uiNOFShown;
            GiveFocus(eFocussed);
        }
    }
    return uiNOFShown;
}

eC_Bool CGUIRestore::ShowDialog(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction,
                                const unsigned char* puiArgument, eC_UInt uiArgument)
{
    const eC_Bool bHasArgument = m_pkArguments != nullptr && puiArgument != nullptr && uiArgument != 0;
    const CGUIObject* const pkDialog =
        bHasArgument ? m_pkArguments->CreateDialog(eID, eAction, puiArgument, uiArgument)
                     : GetManager()->CreateDialog(eID, eAction);
    if (pkDialog == nullptr)
    {
        GUILOG(GUI_TRACE_WARNING,
               TraceText("CGUIRestore::ShowDialog: Dialog with ID ", eID, " cannot be restored.\n"));
    }
    return pkDialog != nullptr;
}

void CGUIRestore::GiveFocus(ObjectHandle_t eID)
{
    CGUIObject* pkObject = nullptr;
    if (eID != NO_HANDLE)
    {
        const CGUIObject* const pkDialog = GetManager()->GetCurrentDialog();
        pkObject = pkDialog != nullptr ? pkDialog->GetObjectByID(eID, false) : nullptr;
        // What had the focus may be outside the dialog.
        pkObject = pkObject != nullptr ? pkObject : CGUI::GetInstance().GetObjectByID(eID, false);
    }
    if (pkObject != nullptr)
    {
        pkObject->RequestFocus();
    }
}

void CGUIRestore::ShowPopups(CReader& kReader)
{
    const eC_UInt uiNOFPopups = kReader.Read(1);
    for (eC_UInt uiPopup = 0; uiPopup < uiNOFPopups; ++uiPopup)
    {
        const ObjectHandle_t eID = kReader.ReadHandle();
        // Only those that are to be restored in this build of the application.
        eC_UInt uiPlace = 0;
        while (uiPlace < m_uiNOFPopups && m_pePopups[uiPlace] != eID)
        {
            ++uiPlace;
        }
        if (uiPlace < m_uiNOFPopups)
        {
            GetManager()->ShowPopup(eID);
        }
    }
}
