// SPDX-License-Identifier: MIT
#include "Core/Utils/eC_String.h"

#include "Core/Utils/eC_SpareBlocks.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <utility>

namespace
{
using Byte_t = unsigned char;

constexpr std::uint32_t cuiReplacementCharacter = 0xFFFD;
// Twice a length of so many bits still fits in eC_UInt.
constexpr eC_UInt cuiLengthBits = 30;
constexpr std::size_t cuiMostDigits = 10; // of a number of 32 bits

/** The rest of a text to be read, as bytes. */
struct Input_t
{
    const eC_Char* m_pcNext;
    const eC_Char* m_pcEnd;

    std::size_t GetSize() const { return static_cast<std::size_t>(m_pcEnd - m_pcNext); }
    Byte_t GetByte() const { return static_cast<Byte_t>(*m_pcNext); }
};

/** Counts the bytes of a text, and writes them if it has a target. */
class COutput
{
public:
    explicit COutput(eC_Char* pcTarget) : m_pcTarget(pcTarget) {}

    void Write(const eC_Char* pcBytes, std::size_t uiLength)
    {
        if (m_pcTarget != nullptr)
        {
            std::memcpy(m_pcTarget + m_uiLength, pcBytes, uiLength);
        }
        m_uiLength += uiLength;
    }

    void WriteCharacter(std::uint32_t uiCharacter)
    {
        if (uiCharacter < 0x80)
        {
            WriteByte(uiCharacter);
            return;
        }
        if (uiCharacter < 0x800)
        {
            WriteByte(0xC0 | (uiCharacter >> 6));
        }
        else
        {
            if (uiCharacter < 0x10000)
            {
                WriteByte(0xE0 | (uiCharacter >> 12));
            }
            else
            {
                WriteByte(0xF0 | (uiCharacter >> 18));
                WriteByte(0x80 | ((uiCharacter >> 12) & 0x3F));
            }
            WriteByte(0x80 | ((uiCharacter >> 6) & 0x3F));
        }
        WriteByte(0x80 | (uiCharacter & 0x3F));
    }

    std::uint64_t GetLength() const { return m_uiLength; }

private:
    void WriteByte(std::uint32_t uiByte)
    {
        const eC_Char cByte = static_cast<eC_Char>(uiByte);
        Write(&cByte, 1);
    }

    eC_Char* m_pcTarget;
    std::uint64_t m_uiLength = 0;
};

eC_Bool IsASCIIWord(const eC_Char* pcBytes)
{
    std::uintptr_t uiWord = 0;
    std::memcpy(&uiWord, pcBytes, sizeof(uiWord));
    return (uiWord & (UINTPTR_MAX / 0xFF * 0x80)) == 0;
}

/** @return how many bytes at the front are ASCII, found a machine word at a time */
std::size_t CountASCII(const Input_t& kInput)
{
    constexpr std::size_t cuiWord = sizeof(std::uintptr_t);
    const eC_Char* pcNext = kInput.m_pcNext;
    if (kInput.GetSize() >= cuiWord)
    {
        const eC_Char* const pcLastWord = kInput.m_pcEnd - cuiWord;
        while (pcNext < pcLastWord && IsASCIIWord(pcNext))
        {
            pcNext += cuiWord;
        }
        if (pcNext >= pcLastWord && IsASCIIWord(pcLastWord))
        {
            return kInput.GetSize();
        }
    }
    while (pcNext != kInput.m_pcEnd && static_cast<Byte_t>(*pcNext) < 0x80)
    {
        ++pcNext;
    }
    return static_cast<std::size_t>(pcNext - kInput.m_pcNext);
}

/** Reads one character, or a malformed sequence, at the front of the input, which is not ASCII. */
std::uint32_t ReadUTF8(Input_t& kInput)
{
    const Byte_t uiLead = kInput.GetByte();
    ++kInput.m_pcNext;
    if (uiLead < 0xC2 || uiLead > 0xF4)
    {
        return cuiReplacementCharacter;
    }

    // The second byte alone tells overlong forms, surrogates and characters above U+10FFFF.
    Byte_t uiLowest = 0x80;
    Byte_t uiHighest = 0xBF;
    switch (uiLead)
    {
    case 0xE0:
        uiLowest = 0xA0;
        break;
    case 0xED:
        uiHighest = 0x9F;
        break;
    case 0xF0:
        uiLowest = 0x90;
        break;
    case 0xF4:
        uiHighest = 0x8F;
        break;
    default:
        break;
    }

    const int iFollowing = uiLead < 0xE0 ? 1 : (uiLead < 0xF0 ? 2 : 3);
    std::uint32_t uiCharacter = uiLead & (0x3Fu >> iFollowing);
    for (int i = 0; i < iFollowing; ++i)
    {
        if (kInput.GetSize() == 0 || kInput.GetByte() < uiLowest || kInput.GetByte() > uiHighest)
        {
            return cuiReplacementCharacter;
        }
        uiCharacter = (uiCharacter << 6) | (kInput.GetByte() & 0x3Fu);
        ++kInput.m_pcNext;
        uiLowest = 0x80;
        uiHighest = 0xBF;
    }
    return uiCharacter;
}

std::uint16_t GetUTF16Unit(const eC_Char* pcUnit)
{
    std::uint16_t uiUnit = 0;
    std::memcpy(&uiUnit, pcUnit, sizeof(uiUnit));
    return uiUnit;
}

/** Reads one character or one surrogate without its partner. */
std::uint32_t ReadUTF16(Input_t& kInput)
{
    const std::uint32_t uiUnit = GetUTF16Unit(kInput.m_pcNext);
    kInput.m_pcNext += sizeof(std::uint16_t);
    if (uiUnit < 0xD800 || uiUnit > 0xDFFF)
    {
        return uiUnit;
    }

    if (uiUnit > 0xDBFF || kInput.GetSize() == 0)
    {
        return cuiReplacementCharacter;
    }
    const std::uint32_t uiPartner = GetUTF16Unit(kInput.m_pcNext);
    if (uiPartner < 0xDC00 || uiPartner > 0xDFFF)
    {
        return cuiReplacementCharacter;
    }
    kInput.m_pcNext += sizeof(std::uint16_t);
    return 0x10000 + ((uiUnit - 0xD800) << 10) + (uiPartner - 0xDC00);
}

void ConvertUTF16(Input_t kInput, COutput& kOutput)
{
    while (kInput.GetSize() > 0)
    {
        kOutput.WriteCharacter(ReadUTF16(kInput));
    }
}

void ConvertBytes(Input_t kInput, eC_String::eStringFormat_t eFormat, COutput& kOutput)
{
    while (kInput.GetSize() > 0)
    {
        const std::size_t uiASCII = CountASCII(kInput);
        kOutput.Write(kInput.m_pcNext, uiASCII);
        kInput.m_pcNext += uiASCII;

        if (kInput.GetSize() > 0 && eFormat == eC_String::eUTF8)
        {
            kOutput.WriteCharacter(ReadUTF8(kInput));
        }
        else if (kInput.GetSize() > 0)
        {
            kOutput.WriteCharacter(cuiReplacementCharacter);
            ++kInput.m_pcNext;
        }
    }
}

/** Writes units as UTF-8.
 *  @param pcTarget the target; null: only counts
 *  @return the number of bytes
 */
std::uint64_t Convert(const eC_Char* pcUnits, eC_UInt uiUnits, eC_String::eStringFormat_t eFormat,
                      eC_Char* pcTarget)
{
    COutput kOutput(pcTarget);
    if (eFormat == eC_String::eUTF16)
    {
        const std::size_t uiSize = std::size_t{uiUnits} * sizeof(std::uint16_t);
        ConvertUTF16({pcUnits, pcUnits + uiSize}, kOutput);
    }
    else
    {
        ConvertBytes({pcUnits, pcUnits + uiUnits}, eFormat, kOutput);
    }
    return kOutput.GetLength();
}

/** @return the length of a text after bytes are added */
eC_UInt GetSum(eC_UInt uiLength, std::uint64_t uiAdded)
{
    const std::uint64_t uiSum = uiLength + uiAdded;
    if (uiSum >> cuiLengthBits != 0)
    {
        throw std::bad_alloc();
    }
    return static_cast<eC_UInt>(uiSum);
}

/** @return the number of units before the terminating zero */
eC_UInt GetUnitsBeforeZero(const eC_Char* pcText, eC_String::eStringFormat_t eFormat)
{
    if (eFormat != eC_String::eUTF16)
    {
        return GetSum(0, std::strlen(pcText));
    }

    std::size_t uiUnits = 0;
    while (GetUTF16Unit(pcText + uiUnits * sizeof(std::uint16_t)) != 0)
    {
        ++uiUnits;
    }
    return GetSum(0, uiUnits);
}
} // namespace

eC_String::eC_String() noexcept : m_pcText(m_acShort), m_uiLength(0)
{
    m_acShort[0] = '\0';
}

eC_String::eC_String(const eC_Char* pcText, eC_UInt uiLength, eStringFormat_t eFormat) : eC_String()
{
    if (pcText != nullptr)
    {
        Append(pcText, uiLength == 0 ? GetUnitsBeforeZero(pcText, eFormat) : uiLength, eFormat);
    }
}

eC_String::eC_String(const eC_Int& iNumber) : eC_String()
{
    // Negated as unsigned, because the lowest number has no positive counterpart.
    const eC_UInt uiNumber = static_cast<eC_UInt>(iNumber);
    if (iNumber < 0)
    {
        m_acShort[0] = '-';
        m_uiLength = 1;
    }
    AppendDigits(iNumber < 0 ? 0 - uiNumber : uiNumber);
}

eC_String::eC_String(const eC_UInt& uiNumber) : eC_String()
{
    AppendDigits(uiNumber);
}

eC_String eC_String::Borrow(const eC_Char* pcText)
{
    eC_String kBorrowing;
    if (pcText == nullptr || *pcText == '\0')
    {
        return kBorrowing;
    }
    kBorrowing.m_uiLength = GetUnitsBeforeZero(pcText, eUTF8);
    kBorrowing.m_uiCapacity = 0;
    // Nothing writes to it: appending anything to a text that is not empty exceeds a capacity of 0.
    kBorrowing.m_pcText = const_cast<eC_Char*>(pcText);
    return kBorrowing;
}

eC_String eC_String::BorrowASCII(const eC_Char* pcText)
{
    eC_String kText = Borrow(pcText);
    if (CountASCII({kText.m_pcText, kText.m_pcText + kText.m_uiLength}) != kText.m_uiLength)
    {
        kText = eC_String(pcText);
    }
    return kText;
}

eC_String::eC_String(const eC_String& kOther) : eC_String()
{
    MakeRoom(kOther.m_uiLength);
    std::memcpy(m_pcText, kOther.m_pcText, kOther.m_uiLength + 1);
    m_uiLength = kOther.m_uiLength;
}

eC_String::eC_String(eC_String&& kOther) noexcept : eC_String()
{
    TakeFrom(kOther);
}

eC_String::~eC_String()
{
    Release();
}

eC_String& eC_String::operator=(const eC_String& kOther)
{
    return *this = eC_String(kOther);
}

eC_String& eC_String::operator=(eC_String&& kOther) noexcept
{
    if (this != &kOther)
    {
        Release();
        TakeFrom(kOther);
    }
    return *this;
}

eC_Bool eC_String::operator==(const eC_String& kOther) const
{
    return m_uiLength == kOther.m_uiLength && std::memcmp(m_pcText, kOther.m_pcText, m_uiLength) == 0;
}

eC_String& eC_String::operator+=(const eC_Char* pcText)
{
    if (pcText != nullptr)
    {
        Append(pcText, GetUnitsBeforeZero(pcText, eUTF8), eUTF8);
    }
    return *this;
}

eC_String& eC_String::operator+=(const eC_String& kOther)
{
    AppendBytes(kOther.m_pcText, kOther.m_uiLength);
    return *this;
}

eC_String eC_String::operator+(const eC_Char* pcText) const&
{
    eC_String kSum = GetCopyWithRoomFor(pcText == nullptr ? 0 : GetUnitsBeforeZero(pcText, eUTF8));
    kSum += pcText;
    return kSum;
}

eC_String eC_String::operator+(const eC_Char* pcText) &&
{
    return std::move(*this += pcText);
}

eC_String eC_String::operator+(const eC_String& kOther) const&
{
    eC_String kSum = GetCopyWithRoomFor(kOther.m_uiLength);
    kSum += kOther;
    return kSum;
}

eC_String eC_String::operator+(const eC_String& kOther) &&
{
    return std::move(*this += kOther);
}

eC_String operator+(const eC_Char* pcText, const eC_String& kString)
{
    return eC_String(pcText) + kString;
}

eC_String eC_String::GetCopyWithRoomFor(eC_UInt uiAdded) const
{
    eC_String kCopy;
    kCopy.MakeRoomToGrow(GetSum(m_uiLength, uiAdded));
    kCopy += *this;
    return kCopy;
}

void eC_String::Append(const eC_Char* pcUnits, eC_UInt uiUnits, eStringFormat_t eFormat)
{
    // Every unit becomes at least one byte: refuse an impossible length before reading the text.
    GetSum(m_uiLength, uiUnits);
    if (eFormat != eUTF16 && CountASCII({pcUnits, pcUnits + uiUnits}) == uiUnits)
    {
        AppendBytes(pcUnits, uiUnits);
        return;
    }
    // Converted into a second string: the units may lie in this one.
    eC_String kConverted;
    kConverted.MakeRoomToGrow(GetSum(0, Convert(pcUnits, uiUnits, eFormat, nullptr)));
    kConverted.EndAt(static_cast<eC_UInt>(Convert(pcUnits, uiUnits, eFormat, kConverted.m_pcText)));
    if (IsEmpty())
    {
        *this = std::move(kConverted);
    }
    else
    {
        AppendBytes(kConverted.m_pcText, kConverted.m_uiLength);
    }
}

void eC_String::AppendBytes(const eC_Char* pcBytes, eC_UInt uiBytes)
{
    const eC_UInt uiLength = GetSum(m_uiLength, uiBytes);
    if (uiLength <= GetCapacity())
    {
        std::memcpy(m_pcText + m_uiLength, pcBytes, uiBytes);
        EndAt(uiLength);
        return;
    }
    // The bytes may lie in the old array: keep it until they are copied.
    eC_UInt uiCapacity = 0;
    eC_Char* const pcGrown = TakeArray(uiLength, uiCapacity);
    std::memcpy(pcGrown, m_pcText, m_uiLength);
    std::memcpy(pcGrown + m_uiLength, pcBytes, uiBytes);
    Release();
    m_pcText = pcGrown;
    m_uiCapacity = uiCapacity;
    EndAt(uiLength);
}

void eC_String::AppendDigits(eC_UInt uiNumber)
{
    // Digits are computed from the last to the first.
    eC_Char acDigits[cuiMostDigits];
    eC_Char* pcFirst = acDigits + cuiMostDigits;
    do
    {
        --pcFirst;
        *pcFirst = static_cast<eC_Char>('0' + uiNumber % 10);
        uiNumber /= 10;
    } while (uiNumber != 0);
    const std::size_t uiNOFDigits = static_cast<std::size_t>(acDigits + cuiMostDigits - pcFirst);
    std::memcpy(m_acShort + m_uiLength, pcFirst, uiNOFDigits);
    EndAt(m_uiLength + static_cast<eC_UInt>(uiNOFDigits));
}

void eC_String::EndAt(eC_UInt uiLength)
{
    m_pcText[uiLength] = '\0';
    m_uiLength = uiLength;
}

void eC_String::MakeRoom(eC_UInt uiCapacity)
{
    if (uiCapacity > cuiShortCapacity)
    {
        m_pcText = static_cast<eC_Char*>(::operator new (std::size_t{uiCapacity} + 1));
        m_uiCapacity = uiCapacity;
    }
}

void eC_String::MakeRoomToGrow(eC_UInt uiLength)
{
    if (uiLength > cuiShortCapacity)
    {
        eC_UInt uiCapacity = 0;
        m_pcText = TakeArray(uiLength, uiCapacity);
        m_uiCapacity = uiCapacity;
    }
}

eC_Char* eC_String::TakeArray(eC_UInt uiLength, eC_UInt& uiCapacityOUT)
{
    std::size_t uiSize = 0;
    const std::size_t uiWanted = std::size_t{2} * uiLength + 49;
    void* const pArray = eC_SpareBlocks::TakeBuffer(uiWanted, uiSize);
    uiCapacityOUT = static_cast<eC_UInt>(uiSize - 1);
    return static_cast<eC_Char*>(pArray);
}

void eC_String::Release()
{
    if (!IsShort() && m_uiCapacity > 0)
    {
        eC_SpareBlocks::GiveBuffer(m_pcText, std::size_t{m_uiCapacity} + 1);
    }
}

void eC_String::TakeFrom(eC_String& kOther) noexcept
{
    m_uiLength = kOther.m_uiLength;
    if (kOther.IsShort())
    {
        m_pcText = m_acShort;
        std::memcpy(m_acShort, kOther.m_acShort, m_uiLength + 1);
    }
    else
    {
        m_pcText = kOther.m_pcText;
        m_uiCapacity = kOther.m_uiCapacity;
    }

    kOther.m_pcText = kOther.m_acShort;
    kOther.m_acShort[0] = '\0';
    kOther.m_uiLength = 0;
}
