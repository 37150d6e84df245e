// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/InspectionReader.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace
{
using Json_t = nlohmann::json;

constexpr eC_UInt cuiAny = std::numeric_limits<eC_UInt>::max();
constexpr eC_UInt cuiGreatestByte = 255;
constexpr std::size_t cuiMostQuoted = 40;

constexpr const char* cpcTrace = "trace";
constexpr const char* cpcState = "state";
constexpr const char* cpcReply = "reply";
constexpr const char* cpcStart = "start";
constexpr const char* cpcInput = "input";
constexpr const char* cpcTurn = "turn";

/** @return a value for a message; what is long or contains others is not quoted */
std::string Describe(const Json_t& kValue)
{
    if (kValue.is_object())
    {
        return "an object";
    }
    if (kValue.is_array())
    {
        return "a list";
    }
    const std::string kText = kValue.dump(-1, ' ', true);
    return kText.size() <= cuiMostQuoted ? kText : kText.substr(0, cuiMostQuoted) + "...";
}

/** @param kText UTF-8 */
std::string ReplaceControlCharacters(const std::string& kText, eC_Bool bKeepsLineBreaks)
{
    constexpr unsigned char cucDelete = 0x7F;
    constexpr const char* cpcReplacement = "\xEF\xBF\xBD";
    std::string kReplaced;
    for (std::size_t uiByte = 0; uiByte < kText.size(); ++uiByte)
    {
        const auto ucByte = static_cast<unsigned char>(kText[uiByte]);
        const auto ucNext = static_cast<unsigned char>(uiByte + 1 < kText.size() ? kText[uiByte + 1] : '\0');
        // The control characters from U+0080 to U+009F have two bytes.
        const eC_Bool bHasTwo = ucByte == 0xC2 && ucNext < 0xA0;
        const eC_Bool bIsKept = bKeepsLineBreaks && ucByte == '\n';
        if (bHasTwo || ucByte == cucDelete || (ucByte < ' ' && !bIsKept))
        {
            kReplaced += cpcReplacement;
            uiByte += bHasTwo ? 1U : 0U;
        }
        else
        {
            kReplaced += kText[uiByte];
        }
    }
    return kReplaced;
}

/** Takes the members out of an object. It remembers the first that is wrong, and afterwards gives values that
 *  do no harm.
 */
class CMembers
{
public:
    CMembers(const Json_t& kObject, std::string& kError) : m_kObject(kObject), m_kError(kError)
    {
        if (!kObject.is_object())
        {
            Refuse("expected an object, found " + Describe(kObject));
        }
    }

    eC_Bool Has(const char* pcKey) const { return m_kObject.is_object() && m_kObject.contains(pcKey); }

    eC_UInt Number(const char* pcKey, eC_UInt uiGreatest = cuiAny)
    {
        const Json_t* const pkValue = Take(pcKey);
        if (pkValue == nullptr)
        {
            return 0;
        }
        if (!pkValue->is_number_unsigned() || pkValue->get<std::uint64_t>() > uiGreatest)
        {
            Expect(pcKey, "a number from 0 to " + std::to_string(uiGreatest), *pkValue);
            return 0;
        }
        return pkValue->get<eC_UInt>();
    }

    /** A text without control characters, so that no program can write to a terminal what it likes: each
     *  becomes U+FFFD. @param bKeepsLineBreaks of several lines
     */
    std::string Text(const char* pcKey, eC_Bool bKeepsLineBreaks = false)
    {
        const Json_t* const pkValue = Take(pcKey);
        if (pkValue == nullptr)
        {
            return std::string();
        }
        if (!pkValue->is_string())
        {
            Expect(pcKey, "a text", *pkValue);
            return std::string();
        }
        return ReplaceControlCharacters(pkValue->get<std::string>(), bKeepsLineBreaks);
    }

    eC_Bool Flag(const char* pcKey)
    {
        const Json_t* const pkValue = Take(pcKey);
        if (pkValue != nullptr && !pkValue->is_boolean())
        {
            Expect(pcKey, "true or false", *pkValue);
        }
        return pkValue != nullptr && pkValue->is_boolean() && pkValue->get<bool>();
    }

    /** A flag that is there only if it is true. */
    eC_Bool Mark(const char* pcKey)
    {
        if (!Has(pcKey))
        {
            return false;
        }
        if (!Flag(pcKey))
        {
            Expect(pcKey, "true, or no such member", m_kObject[pcKey]);
        }
        return true;
    }

    /** A text that is one of several. @return its place among them */
    template <std::size_t Count>
    std::size_t Choice(const char* pcKey, const char* const (&apcTexts)[Count])
    {
        const std::string kText = Text(pcKey);
        std::string kAll;
        for (std::size_t uiText = 0; uiText < Count; ++uiText)
        {
            if (kText == apcTexts[uiText])
            {
                return uiText;
            }
            kAll += (kAll.empty() ? "" : uiText + 1 < Count ? ", " : " or ") + std::string(apcTexts[uiText]);
        }
        Refuse(pcKey + (": expected " + kAll) + ", found " + Describe(kText));
        return 0;
    }

    /** The name of an action, or the number of one without a name. */
    std::string Action(const char* pcKey)
    {
        static constexpr const char* cpcActions[] = {"ODA_INVISIBLE", "ODA_INVISIBLE_ALL", "ODA_DELETE",
                                                     "ODA_DELETE_ALL", "ODA_NOTHING"};
        if (Has(pcKey) && m_kObject[pcKey].is_number())
        {
            return std::to_string(Number(pcKey, cuiGreatestByte));
        }
        return cpcActions[Choice(pcKey, cpcActions)];
    }

    InspectedHandle_t HandleMembers()
    {
        InspectedHandle_t kHandle;
        const Json_t* const pkNumber = Take("id");
        const eC_Bool bIsNumber =
            pkNumber != nullptr && pkNumber->is_number_integer() &&
            (!pkNumber->is_number_unsigned() || pkNumber->get<std::uint64_t>() <= INT32_MAX) &&
            pkNumber->get<std::int64_t>() >= INT32_MIN;
        if (pkNumber != nullptr && !bIsNumber)
        {
            Expect("id", "a number from -2147483648 to 2147483647", *pkNumber);
        }
        kHandle.m_eID = static_cast<ObjectHandle_t>(bIsNumber ? pkNumber->get<std::int32_t>() : 0);
        kHandle.m_kName = Has("name") ? Text("name") : std::string();
        return kHandle;
    }

    InspectedHandle_t Handle(const char* pcKey)
    {
        const Json_t* const pkValue = Take(pcKey);
        if (pkValue == nullptr)
        {
            return InspectedHandle_t();
        }
        CMembers kMembers(*pkValue, m_kError);
        InspectedHandle_t kHandle = kMembers.HandleMembers();
        kMembers.End();
        return kHandle;
    }

    const Json_t* List(const char* pcKey)
    {
        const Json_t* const pkValue = Take(pcKey);
        if (pkValue != nullptr && !pkValue->is_array())
        {
            Expect(pcKey, "a list", *pkValue);
            return nullptr;
        }
        return pkValue;
    }

    /** Refuses members that nobody has taken. */
    void End()
    {
        if (!m_kError.empty() || m_kTaken.size() == m_kObject.size())
        {
            return;
        }
        for (const auto& kMember : m_kObject.items())
        {
            if (std::find(m_kTaken.begin(), m_kTaken.end(), kMember.key()) == m_kTaken.end())
            {
                Refuse("expected no member " + Describe(kMember.key()));
                return;
            }
        }
    }

    void Refuse(const std::string& kWhy) { m_kError = m_kError.empty() ? kWhy : m_kError; }

private:
    const Json_t* Take(const char* pcKey)
    {
        if (!m_kError.empty())
        {
            return nullptr;
        }
        if (!Has(pcKey))
        {
            Refuse(std::string("expected a member \"") + pcKey + "\", found none");
            return nullptr;
        }
        m_kTaken.emplace_back(pcKey);
        return &m_kObject[pcKey];
    }

    void Expect(const char* pcKey, const std::string& kExpected, const Json_t& kFound)
    {
        Refuse(pcKey + (": expected " + kExpected) + ", found " + Describe(kFound));
    }

    const Json_t& m_kObject;
    std::string& m_kError;
    std::vector<std::string> m_kTaken; ///< the keys
};

// --- Items ---------------------------------------------------------------------------------------------

void ReadDialog(CMembers& kMembers, InspectedItem_t& kItem)
{
    kItem.m_kAfter = kMembers.Action("after");
    kItem.m_bDeletion = kMembers.Flag("deletion");
    kItem.m_bRecovery = kMembers.Flag("recovery");
}

void ReadSettings(CMembers& kMembers, InspectedItem_t& kItem)
{
    kItem.m_uiPriority = kMembers.Number("priority", cuiGreatestByte);
    kItem.m_uiTime = kMembers.Number("time");
    kItem.m_bDeleteOnClose = kMembers.Flag("delete");
}

void ReadCurrent(CMembers& kMembers, eC_UInt, InspectedItem_t& kItem)
{
    kItem.m_kHandle = kMembers.HandleMembers();
    ReadDialog(kMembers, kItem);
}

void ReadEntry(CMembers& kMembers, eC_UInt, InspectedItem_t& kItem)
{
    kItem.m_kHandle = kMembers.HandleMembers();
    ReadDialog(kMembers, kItem);
    kItem.m_kLeft = kMembers.Action("left");
    if (kMembers.Has("focus"))
    {
        kItem.m_kFocus = kMembers.Handle("focus");
    }
}

void ReadDialogDefinition(CMembers& kMembers, eC_UInt, InspectedItem_t& kItem)
{
    kItem.m_kHandle = kMembers.HandleMembers();
    kItem.m_kPath = kMembers.Text("path");
}

void ReadPopupDefinition(CMembers& kMembers, eC_UInt, InspectedItem_t& kItem)
{
    kItem.m_kHandle = kMembers.HandleMembers();
    ReadSettings(kMembers, kItem);
    kItem.m_kPath = kMembers.Text("path");
}

void ReadActive(CMembers& kMembers, eC_UInt uiTime, InspectedItem_t& kItem)
{
    kItem.m_bIsGone = kMembers.Flag("gone");
    if (!kItem.m_bIsGone)
    {
        kItem.m_kHandle = kMembers.HandleMembers();
        kItem.m_bIsShown = kMembers.Flag("shown");
        kItem.m_bIsDetached = kMembers.Flag("detached");
    }
    ReadSettings(kMembers, kItem);
    if (kMembers.Has("left"))
    {
        kItem.m_uiDue = uiTime + kMembers.Number("left");
    }
}

void ReadHandle(CMembers& kMembers, eC_UInt, InspectedItem_t& kItem)
{
    kItem.m_kHandle = kMembers.HandleMembers();
}

void ReadObject(CMembers& kMembers, eC_UInt, InspectedItem_t& kItem)
{
    kItem.m_uiDepth = kMembers.Number("depth");
    kItem.m_kHandle = kMembers.HandleMembers();
    kItem.m_bIsInvisible = kMembers.Mark("invisible");
    kItem.m_bIsFocusable = kMembers.Mark("focusable");
    kItem.m_bHasFocus = kMembers.Mark("focussed");
}

void ReadTimer(CMembers& kMembers, eC_UInt uiTime, InspectedItem_t& kItem)
{
    if (kMembers.Has("popup"))
    {
        kItem.m_kPopup = kMembers.Handle("popup");
    }
    kItem.m_uiInterval = kMembers.Number("interval");
    kItem.m_uiDue = uiTime + kMembers.Number("left");
}

void ReadHook(CMembers& kMembers, eC_UInt, InspectedItem_t& kItem)
{
    kItem.m_kHook = kMembers.Text("hook");
    kItem.m_kHandle = kMembers.HandleMembers();
    kItem.m_uiCalls = kMembers.Number("calls");
    kItem.m_uiTime = kMembers.Number("time");
    kItem.m_uiMost = kMembers.Number("most");
}

void ReadHeap(CMembers& kMembers, eC_UInt, InspectedItem_t& kItem)
{
    kItem.m_uiUsed = kMembers.Number("used");
    kItem.m_uiMost = kMembers.Number("most");
    kItem.m_uiSize = kMembers.Number("size");
}

using ReadItem_t = void (*)(CMembers& kMembers, eC_UInt uiTime, InspectedItem_t& kItem);

/** In the order of EInspectedPart. */
constexpr ReadItem_t capfnReadItems[] = {
    &ReadCurrent, &ReadEntry,  &ReadDialogDefinition, &ReadPopupDefinition, &ReadActive, &ReadHandle,
    &ReadHandle,  &ReadHandle, &ReadObject,           &ReadTimer,           &ReadHook,   &ReadHeap};
static_assert(sizeof(capfnReadItems) / sizeof(capfnReadItems[0]) == cuiInspectionParts);

eC_Bool HasAtMostOne(EInspectedPart ePart)
{
    return ePart == PART_CURRENT || ePart == PART_REMEMBERED || ePart == PART_FOCUS || ePart == PART_HEAP;
}

// --- Lines ---------------------------------------------------------------------------------------------

void ReadTrace(CMembers& kMembers, InspectedLine_t& kLine)
{
    static constexpr const char* cpcLevels[] = {"ERROR", "WARNING", "DEBUG", "INFO", "HAZARD"};
    static constexpr const char* cpcHazards[] = {"same-identifier",       "focusable-without-identifier",
                                                 "created-elsewhere",     "history-changed",
                                                 "popup-without-parent",  "no-focus",
                                                 "going-back-in-circles", "never-registered"};
    kLine.m_kLevel = cpcLevels[kMembers.Choice("level", cpcLevels)];
    kLine.m_kText = kMembers.Text("text", true);
    if (kLine.m_kLevel == "HAZARD")
    {
        kLine.m_kHazard = cpcHazards[kMembers.Choice("hazard", cpcHazards)];
        kLine.m_kAbout = kMembers.Handle("about");
    }
    else if (kMembers.Has("file") || kMembers.Has("line"))
    {
        kLine.m_kFile = kMembers.Text("file");
        kLine.m_uiLine = kMembers.Number("line");
    }
}

void ReadReply(CMembers& kMembers, InspectedLine_t& kLine)
{
    kLine.m_uiLine = kMembers.Number("line");
    kLine.m_bIsError = kMembers.Has("error");
    kLine.m_kText = kMembers.Text(kLine.m_bIsError ? "error" : "result", true);
    kLine.m_bIsCut = kMembers.Mark("cut");
}

EInspectedPart ReadPart(CMembers& kMembers)
{
    const std::string kName = kMembers.Text("part");
    for (eC_UInt uiPart = 0; uiPart < cuiInspectionParts; ++uiPart)
    {
        if (kName == cakInspectionParts[uiPart].m_pcName)
        {
            return static_cast<EInspectedPart>(uiPart);
        }
    }
    kMembers.Refuse("part: expected the name of a part, found " + Describe(kName));
    return PART_CURRENT;
}

void ReadState(CMembers& kMembers, InspectedLine_t& kLine, std::string& kError)
{
    kLine.m_ePart = ReadPart(kMembers);
    kLine.m_uiFrom = kMembers.Number("from");
    kLine.m_bMore = kMembers.Flag("more");
    const Json_t* const pkItems = kMembers.List("items");
    if (pkItems == nullptr)
    {
        return;
    }
    if (HasAtMostOne(kLine.m_ePart) && pkItems->size() > 1)
    {
        kMembers.Refuse("items: expected at most one, found " + std::to_string(pkItems->size()));
    }
    for (const Json_t& kItem : *pkItems)
    {
        CMembers kItemMembers(kItem, kError);
        capfnReadItems[kLine.m_ePart](kItemMembers, kLine.m_uiTime, kLine.m_kItems.emplace_back());
        kItemMembers.End();
        if (!kError.empty())
        {
            return;
        }
    }
}

void ReadMembers(const Json_t& kObject, InspectedLine_t& kLine, std::string& kError)
{
    static constexpr const char* cpcTypes[] = {cpcTrace, cpcState, cpcReply, cpcStart, cpcInput, cpcTurn};
    CMembers kMembers(kObject, kError);
    kLine.m_eType = static_cast<EInspectedLine>(kMembers.Choice("type", cpcTypes));
    kLine.m_uiTime = kMembers.Number("time");
    if (kMembers.Has("dropped"))
    {
        kLine.m_uiDropped = kMembers.Number("dropped");
    }
    switch (kLine.m_eType)
    {
    case LINE_TRACE:
        ReadTrace(kMembers, kLine);
        break;
    case LINE_STATE:
        ReadState(kMembers, kLine, kError);
        break;
    case LINE_REPLY:
        ReadReply(kMembers, kLine);
        break;
    case LINE_START:
        kLine.m_uiMemory = kMembers.Number("memory");
        break;
    case LINE_INPUT:
        kLine.m_kText = kMembers.Text("text");
        break;
    case LINE_TURN:
        break;
    }
    kMembers.End();
}
} // namespace

std::string ReadInspectionLine(const std::string& kText, InspectedLine_t& kLineOUT)
{
    const Json_t kObject = Json_t::parse(kText, nullptr, false);
    if (kObject.is_discarded())
    {
        return "expected an object of JSON on one line, found no JSON";
    }
    std::string kError;
    InspectedLine_t kLine;
    ReadMembers(kObject, kLine, kError);
    if (kError.empty())
    {
        kLineOUT = std::move(kLine);
    }
    return kError;
}

std::string CInspectionReader::Take(const std::string& kBytes)
{
    m_kBytes += kBytes;
    std::size_t uiBegin = 0;
    std::string kError;
    for (std::size_t uiEnd = m_kBytes.find('\n'); uiEnd != std::string::npos && kError.empty();
         uiEnd = m_kBytes.find('\n', uiBegin))
    {
        ++m_uiLines;
        // The rest of a line that was refused as too long has been refused with it.
        kError = m_bIsTooLong ? std::string() : TakeLine(m_kBytes.substr(uiBegin, uiEnd - uiBegin));
        m_bIsTooLong = false;
        uiBegin = uiEnd + 1;
    }
    m_kBytes.erase(0, uiBegin);
    if (kError.empty() && m_kBytes.size() > cuiLongestLine)
    {
        m_kBytes.clear();
        kError = m_bIsTooLong ? std::string()
                              : "line " + std::to_string(m_uiLines + 1) + ": expected a shorter line";
        m_bIsTooLong = true;
    }
    return kError;
}

std::string CInspectionReader::TakeLine(const std::string& kText)
{
    InspectedLine_t kLine;
    std::string kError =
        kText.size() > cuiLongestLine ? "expected a shorter line" : ReadInspectionLine(kText, kLine);
    if (kError.empty() && kLine.m_eType == LINE_STATE)
    {
        kError = TakeState(kLine);
    }
    if (!kError.empty())
    {
        return "line " + std::to_string(m_uiLines) + ": " + kError;
    }
    m_uiTime = kLine.m_uiTime;
    m_uiDropped += kLine.m_uiDropped;
    if (m_pkListener != nullptr)
    {
        m_pkListener->OnLine(kLine);
    }
    return std::string();
}

std::string CInspectionReader::TakeState(const InspectedLine_t& kLine)
{
    std::optional<std::vector<InspectedItem_t>>& kBegun = m_akBegun[kLine.m_ePart];
    std::size_t& uiNext = m_auiNext[kLine.m_ePart];
    if (kLine.m_uiFrom == 0)
    {
        kBegun.emplace();
        uiNext = 0;
    }
    // Who begins to read in the middle of a part learns of it when it is sent again.
    if (!kBegun.has_value())
    {
        return std::string();
    }
    // An item that is too long for the program's memory is left out, so there may be gaps, but no repetition.
    if (kLine.m_uiFrom < uiNext)
    {
        return "from: expected at least " + std::to_string(uiNext) + ", found " +
               std::to_string(kLine.m_uiFrom);
    }
    if (kBegun->size() + kLine.m_kItems.size() > cuiMostItems)
    {
        return "items: expected at most " + std::to_string(cuiMostItems) + " in a part";
    }
    uiNext = kLine.m_uiFrom + kLine.m_kItems.size();
    kBegun->insert(kBegun->end(), kLine.m_kItems.begin(), kLine.m_kItems.end());
    if (!kLine.m_bMore)
    {
        m_kState.SetItems(kLine.m_ePart, std::move(*kBegun));
        kBegun.reset();
    }
    return std::string();
}
