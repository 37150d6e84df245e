// SPDX-License-Identifier: MIT
/** @file
 *  Compares the framework's string with std::string, and its conversions with simple ones that work with code
 *  points.
 */

#include "Core/Utils/eC_String.h"
#include "Tests/Fuzz/FuzzTarget.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace
{
constexpr unsigned int cuiStrings = 3;
constexpr std::size_t cuiLongestText = 4096;
constexpr int ciMostSteps = 200;
const char* const cpcReplacement = "\xEF\xBF\xBD";

// --- Plain conversions --------------------------------------------------------------------------------

bool IsCharacter(std::uint32_t uiCode)
{
    return uiCode < 0xD800 || (uiCode > 0xDFFF && uiCode <= 0x10FFFF);
}

/** @return the number of UTF-8 bytes for a number of up to 21 bits */
std::size_t GetLength(std::uint32_t uiCode)
{
    return uiCode < 0x80 ? 1 : uiCode < 0x800 ? 2 : uiCode < 0x10000 ? 3 : 4;
}

std::string Encode(std::uint32_t uiCode)
{
    std::string kBytes;
    const std::size_t uiLength = GetLength(uiCode);
    for (std::size_t uiByte = 1; uiByte < uiLength; ++uiByte)
    {
        kBytes.insert(kBytes.begin(), static_cast<char>(0x80 + uiCode % 64));
        uiCode /= 64;
    }
    const std::uint32_t auiLeads[] = {0, 0, 0xC0, 0xE0, 0xF0};
    kBytes.insert(kBytes.begin(), static_cast<char>(auiLeads[uiLength] + uiCode));
    return kBytes;
}

/** @return the length of the character that a byte announces, 0 if it announces none */
std::size_t GetAnnouncedLength(unsigned char cLead)
{
    return cLead < 0x80 ? 1 : cLead < 0xC0 ? 0 : cLead < 0xE0 ? 2 : cLead < 0xF0 ? 3 : cLead < 0xF8 ? 4 : 0;
}

/** @return the number that the bytes encode; the bits of missing bytes are all cleared, or all set */
std::uint32_t Decode(const std::string& kBytes, std::size_t uiLength, bool bFill)
{
    const std::uint32_t auiLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    std::uint32_t uiCode = static_cast<unsigned char>(kBytes[0]) & auiLeadBits[uiLength];
    for (std::size_t uiByte = 1; uiByte < uiLength; ++uiByte)
    {
        const std::uint32_t uiMissing = bFill ? 0x3F : 0;
        uiCode = uiCode * 64 +
                 (uiByte < kBytes.size() ? static_cast<unsigned char>(kBytes[uiByte]) & 0x3FU : uiMissing);
    }
    return uiCode;
}

/** @return true if the bytes are a UTF-8 character or the beginning of one */
bool BeginsCharacter(const std::string& kBytes)
{
    const std::size_t uiLength = GetAnnouncedLength(static_cast<unsigned char>(kBytes[0]));
    if (uiLength < kBytes.size())
    {
        return false;
    }
    for (std::size_t uiByte = 1; uiByte < kBytes.size(); ++uiByte)
    {
        if ((static_cast<unsigned char>(kBytes[uiByte]) & 0xC0) != 0x80)
        {
            return false;
        }
    }
    // The range of numbers that begin like this is wider than the gaps, or does not reach across their ends.
    for (std::uint32_t uiCode = Decode(kBytes, uiLength, false); uiCode <= Decode(kBytes, uiLength, true);
         uiCode += 64)
    {
        if (IsCharacter(uiCode) && GetLength(uiCode) == uiLength)
        {
            return true;
        }
    }
    return false;
}

std::string ConvertUTF8(const std::string& kBytes)
{
    std::string kText;
    std::size_t uiNext = 0;
    while (uiNext < kBytes.size())
    {
        std::size_t uiTaken = 0;
        while (uiNext + uiTaken < kBytes.size() && BeginsCharacter(kBytes.substr(uiNext, uiTaken + 1)))
        {
            ++uiTaken;
        }
        const bool bIsWhole =
            uiTaken > 0 && uiTaken == GetAnnouncedLength(static_cast<unsigned char>(kBytes[uiNext]));
        kText += bIsWhole ? kBytes.substr(uiNext, uiTaken) : cpcReplacement;
        uiNext += uiTaken > 0 ? uiTaken : 1;
    }
    return kText;
}

std::string ConvertASCII(const std::string& kBytes)
{
    std::string kText;
    for (const char cByte : kBytes)
    {
        kText += static_cast<unsigned char>(cByte) < 0x80 ? std::string(1, cByte) : cpcReplacement;
    }
    return kText;
}

std::string ConvertUTF16(const std::u16string& kUnits)
{
    std::string kText;
    for (std::size_t uiUnit = 0; uiUnit < kUnits.size(); ++uiUnit)
    {
        const bool bIsHigh = kUnits[uiUnit] >= 0xD800 && kUnits[uiUnit] < 0xDC00;
        if (bIsHigh && uiUnit + 1 < kUnits.size() && kUnits[uiUnit + 1] >= 0xDC00 &&
            kUnits[uiUnit + 1] < 0xE000)
        {
            kText += Encode(0x10000U + (kUnits[uiUnit] - 0xD800U) * 0x400U + kUnits[uiUnit + 1] - 0xDC00U);
            ++uiUnit;
        }
        else
        {
            kText += IsCharacter(kUnits[uiUnit]) ? Encode(kUnits[uiUnit]) : cpcReplacement;
        }
    }
    return kText;
}

// --- Both kinds of string -----------------------------------------------------------------------------

/** A string of the framework and the std::string that it must equal. */
struct Pair_t
{
    eC_String m_kString;
    std::string m_kText;
};

std::string Print(const std::string& kBytes)
{
    std::string kText;
    for (const char cByte : kBytes)
    {
        constexpr const char* cpcDigits = "0123456789ABCDEF";
        const auto uiByte = static_cast<unsigned char>(cByte);
        kText += std::string(" ") + cpcDigits[uiByte / 16] + cpcDigits[uiByte % 16];
    }
    return kText;
}

void Check(const eC_String& kString, const std::string& kText)
{
    const std::string kActual(kString.GetText(), kString.GetLength());
    if (kActual != kText || kString.GetText()[kString.GetLength()] != '\0' ||
        kString.IsEmpty() != kText.empty())
    {
        Fail("expected" + Print(kText) + "\nbut got " + Print(kActual));
    }
}

/** Creates a string from exactly these bytes; nothing after them may be read.
 *  @param bIsMeasured whether the length is given, or found by the terminating zero
 */
Pair_t MakeFromBytes(const std::string& kBytes, eC_String::eStringFormat_t eFormat, bool bIsMeasured)
{
    const std::string kTaken = bIsMeasured ? kBytes : kBytes.substr(0, kBytes.find('\0'));
    std::vector<char> kArray(kTaken.begin(), kTaken.end());
    if (!bIsMeasured || kTaken.empty())
    {
        kArray.push_back('\0');
    }
    const eC_UInt uiLength = bIsMeasured ? static_cast<eC_UInt>(kTaken.size()) : 0;
    return {eC_String(kArray.data(), uiLength, eFormat),
            eFormat == eC_String::eASCII ? ConvertASCII(kTaken) : ConvertUTF8(kTaken)};
}

Pair_t MakeFromUnits(const std::string& kBytes, bool bIsMeasured)
{
    std::u16string kUnits;
    for (std::size_t uiByte = 0; uiByte + 1 < kBytes.size(); uiByte += 2)
    {
        kUnits.push_back(static_cast<char16_t>(static_cast<unsigned char>(kBytes[uiByte]) * 256 +
                                               static_cast<unsigned char>(kBytes[uiByte + 1])));
    }
    const std::u16string kTaken = bIsMeasured ? kUnits : kUnits.substr(0, kUnits.find(u'\0'));
    std::vector<char16_t> kArray(kTaken.begin(), kTaken.end());
    if (!bIsMeasured || kTaken.empty())
    {
        kArray.push_back(0);
    }
    const eC_UInt uiLength = bIsMeasured ? static_cast<eC_UInt>(kTaken.size()) : 0;
    return {eC_String(reinterpret_cast<const char*>(kArray.data()), uiLength, eC_String::eUTF16),
            ConvertUTF16(kTaken)};
}

Pair_t Make(CDecisions& kDecisions)
{
    const unsigned int uiKind = kDecisions.TakeBelow(8);
    const bool bIsMeasured = uiKind % 2 != 0;
    switch (uiKind / 2)
    {
    case 0:
        return MakeFromBytes(kDecisions.TakeText(kDecisions.TakeByte()), eC_String::eASCII, bIsMeasured);
    case 1:
        return MakeFromBytes(kDecisions.TakeText(kDecisions.TakeByte()), eC_String::eUTF8, bIsMeasured);
    case 2:
        return MakeFromUnits(kDecisions.TakeText(kDecisions.TakeByte()), bIsMeasured);
    default:
        break;
    }
    const std::uint32_t uiNumber = kDecisions.TakeNumber();
    const eC_Int iNumber = static_cast<eC_Int>(uiNumber);
    return bIsMeasured ? Pair_t{eC_String(eC_UInt{uiNumber}), std::to_string(uiNumber)}
                       : Pair_t{eC_String(iNumber), std::to_string(iNumber)};
}

/** @return a position in a text, possibly within a character */
std::size_t TakePlace(CDecisions& kDecisions, const std::string& kText)
{
    const std::size_t uiPlace = kDecisions.TakeByte() * std::size_t{16} + kDecisions.TakeByte();
    return uiPlace % (kText.size() + 1);
}

void CheckSums(const Pair_t& kFirst, const Pair_t& kSecond, std::size_t uiPlace)
{
    const char* pcRest = kSecond.m_kString.GetText() + uiPlace;
    const std::string kRest = ConvertUTF8(kSecond.m_kText.c_str() + uiPlace);
    Check(kFirst.m_kString + kSecond.m_kString, kFirst.m_kText + kSecond.m_kText);
    Check(eC_String(kFirst.m_kString) + kSecond.m_kString, kFirst.m_kText + kSecond.m_kText);
    Check(kFirst.m_kString + pcRest, kFirst.m_kText + kRest);
    Check(eC_String(kFirst.m_kString) + pcRest, kFirst.m_kText + kRest);
    Check(pcRest + kFirst.m_kString, kRest + kFirst.m_kText);
    Check(eC_String() + "<" + kFirst.m_kString + "|" + pcRest + kSecond.m_kString + ">",
          "<" + kFirst.m_kText + "|" + kRest + kSecond.m_kText + ">");
    if ((kFirst.m_kString == kSecond.m_kString) != (kFirst.m_kText == kSecond.m_kText) ||
        (kFirst.m_kString != kSecond.m_kString) != (kFirst.m_kText != kSecond.m_kText))
    {
        Fail("not compared by their bytes:" + Print(kFirst.m_kText) + "\nand" + Print(kSecond.m_kText));
    }
}

void Append(Pair_t& kFirst, Pair_t& kSecond)
{
    if (kFirst.m_kText.size() + kSecond.m_kText.size() <= cuiLongestText)
    {
        kFirst.m_kString += kSecond.m_kString;
        kFirst.m_kText += kSecond.m_kText;
    }
}

void AppendRest(Pair_t& kFirst, Pair_t& kSecond, std::size_t uiPlace)
{
    const std::string kRest = ConvertUTF8(kSecond.m_kText.c_str() + uiPlace);
    if (kFirst.m_kText.size() + kRest.size() <= cuiLongestText)
    {
        kFirst.m_kString += kSecond.m_kString.GetText() + uiPlace;
        kFirst.m_kText += kRest;
    }
}

void Move(Pair_t& kFirst, Pair_t& kSecond)
{
    kFirst.m_kString = std::move(kSecond.m_kString);
    if (&kFirst != &kSecond)
    {
        kFirst.m_kText = kSecond.m_kText;
        kSecond.m_kText.clear();
    }
}

void CheckCopies(Pair_t& kPair)
{
    eC_String kCopy(kPair.m_kString);
    Check(kCopy, kPair.m_kText);
    const eC_String kMoved(std::move(kCopy));
    Check(kMoved, kPair.m_kText);
    kPair.m_kString += static_cast<const eC_Char*>(nullptr);
}

void DoStep(std::vector<Pair_t>& kPairs, CDecisions& kDecisions)
{
    const unsigned int uiKind = kDecisions.TakeBelow(7);
    Pair_t& kFirst = kPairs[kDecisions.TakeBelow(cuiStrings)];
    Pair_t& kSecond = kPairs[kDecisions.TakeBelow(cuiStrings)];
    switch (uiKind)
    {
    case 0:
        kFirst = Make(kDecisions);
        break;
    case 1:
        kFirst = kSecond;
        break;
    case 2:
        Move(kFirst, kSecond);
        break;
    case 3:
        Append(kFirst, kSecond);
        break;
    case 4:
        AppendRest(kFirst, kSecond, TakePlace(kDecisions, kSecond.m_kText));
        break;
    case 5:
        CheckSums(kFirst, kSecond, TakePlace(kDecisions, kSecond.m_kText));
        break;
    default:
        CheckCopies(kFirst);
        break;
    }
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pcBytes, std::size_t uiSize)
{
    CDecisions kDecisions(pcBytes, uiSize);
    std::vector<Pair_t> kPairs(cuiStrings);
    for (int iStep = 0; iStep < ciMostSteps && !kDecisions.IsEmpty(); ++iStep)
    {
        DoStep(kPairs, kDecisions);
        for (const Pair_t& kPair : kPairs)
        {
            Check(kPair.m_kString, kPair.m_kText);
        }
    }
    return 0;
}
