// SPDX-License-Identifier: MIT
#include "Simulator/ScreenPicture.h"

namespace
{
constexpr eC_Int ciColumnWidth = 9; ///< pixels
constexpr eC_Int ciRowHeight = 19;
constexpr eC_Int ciBaseline = 14;
constexpr eC_Int ciMargin = 12;

constexpr StyleLook_t cakLooks[NOF_TEXT_STYLES] = {
    {-1, -1, false, false, false}, // STYLE_PLAIN
    {6, -1, true, false, false},   // STYLE_TITLE
    {-1, -1, false, false, false}, // STYLE_BUTTON
    {0, 3, true, true, false},     // STYLE_FOCUS
    {0, 7, false, true, false},    // STYLE_CURSOR
    {2, -1, true, false, false},   // STYLE_VALUE
    {3, -1, true, false, false},   // STYLE_POPUP
    {4, -1, false, false, false},  // STYLE_CHROME
    {7, 4, true, true, false},     // STYLE_BANNER
    {0, 6, false, true, false},    // STYLE_CAPTION
    {-1, -1, false, false, false}, // STYLE_DIM
    {-1, -1, true, false, false},  // STYLE_STRONG
    {3, -1, true, false, false},   // STYLE_WARNING
    {1, -1, true, false, true},    // STYLE_ERROR
    {0, 7, false, true, false},    // STYLE_SELECTED
};

// On a dark ground, with enough contrast to be read.
constexpr const eC_Char* cpcUsualColour = "#d8dee4";
constexpr const eC_Char* cpcUsualBackground = "#14191f";
constexpr const eC_Char* cpcDimColour = "#98a4b0";
constexpr const eC_Char* capcColours[] = {"#14191f", "#ff8577", "#7ddc8c", "#ffd166",
                                          "#8ab4f8", "#d7aefb", "#78d9ec", "#ffffff"};
constexpr const eC_Char* capcBackgrounds[] = {"#000000", "#8b1a10", "#1d6b2c", "#ffd166",
                                              "#1f4e9c", "#6a2c91", "#78d9ec", "#d8dee4"};

void AddNumber(std::string& kText, const eC_Char* pcName, eC_Int iNumber)
{
    kText += std::string(" ") + pcName + "=\"" + std::to_string(iNumber) + "\"";
}

void AddEscaped(std::string& kText, const std::string& kCharacters)
{
    for (const eC_Char cCharacter : kCharacters)
    {
        switch (cCharacter)
        {
        case '&':
            kText += "&amp;";
            break;
        case '<':
            kText += "&lt;";
            break;
        case '>':
            kText += "&gt;";
            break;
        default:
            kText += cCharacter;
            break;
        }
    }
}

const eC_Char* GetColour(ETextStyle eStyle)
{
    const eC_Int iColour = cakLooks[eStyle].m_iColour;
    if (eStyle == STYLE_DIM)
    {
        return cpcDimColour;
    }
    return iColour < 0 ? cpcUsualColour : capcColours[iColour];
}

/** Draws what is behind some characters of one style. */
void AddBackground(std::string& kPicture, eC_Int iX, eC_Int iY, eC_Int iColumns, ETextStyle eStyle)
{
    const StyleLook_t& kLook = cakLooks[eStyle];
    if (kLook.m_iBackground >= 0)
    {
        kPicture += "<rect";
        AddNumber(kPicture, "x", ciMargin + iX * ciColumnWidth);
        AddNumber(kPicture, "y", ciMargin + iY * ciRowHeight);
        AddNumber(kPicture, "width", iColumns * ciColumnWidth);
        AddNumber(kPicture, "height", ciRowHeight);
        kPicture += std::string(" fill=\"") + capcBackgrounds[kLook.m_iBackground] + "\"/>\n";
    }
}

/** Draws some characters of one style side by side. */
void AddText(std::string& kPicture, eC_Int iX, eC_Int iY, eC_Int iColumns, const std::string& kCharacters,
             ETextStyle eStyle)
{
    kPicture += "<text";
    AddNumber(kPicture, "x", ciMargin + iX * ciColumnWidth);
    AddNumber(kPicture, "y", ciMargin + iY * ciRowHeight + ciBaseline);
    AddNumber(kPicture, "textLength", iColumns * ciColumnWidth);
    kPicture += std::string(" lengthAdjust=\"spacingAndGlyphs\" fill=\"") + GetColour(eStyle) + "\"" +
                (cakLooks[eStyle].m_bIsBold ? " font-weight=\"bold\"" : "") + ">";
    AddEscaped(kPicture, kCharacters);
    kPicture += "</text>\n";
}

eC_Bool IsBlank(const CTextScreen& kScreen, eC_Int iX, eC_Int iY)
{
    return std::string(kScreen.GetCell(iX, iY).m_acBytes) == " ";
}

/** Draws characters of one style. Viewers do not agree about blanks at the ends of a text and several of them
 * in a row, so a text has none of these.
 */
void AddRun(std::string& kPicture, const CTextScreen& kScreen, eC_Int iBegin, eC_Int iEnd, eC_Int iY)
{
    const ETextStyle eStyle = kScreen.GetCell(iBegin, iY).m_eStyle;
    AddBackground(kPicture, iBegin, iY, iEnd - iBegin, eStyle);
    const auto IsLast = [&](eC_Int iX)
    { return iX == iEnd || (IsBlank(kScreen, iX, iY) && (iX + 1 == iEnd || IsBlank(kScreen, iX + 1, iY))); };
    for (eC_Int iX = iBegin; iX < iEnd; ++iX)
    {
        if (IsBlank(kScreen, iX, iY))
        {
            continue;
        }
        const eC_Int iFirst = iX;
        std::string kCharacters;
        for (; !IsLast(iX); ++iX)
        {
            kCharacters += kScreen.GetCell(iX, iY).m_acBytes;
        }
        AddText(kPicture, iFirst, iY, iX - iFirst, kCharacters, eStyle);
    }
}

void AddRow(std::string& kPicture, const CTextScreen& kScreen, eC_Int iY)
{
    eC_Int iBegin = 0;
    while (iBegin < kScreen.GetWidth())
    {
        eC_Int iEnd = iBegin;
        while (iEnd < kScreen.GetWidth() &&
               kScreen.GetCell(iEnd, iY).m_eStyle == kScreen.GetCell(iBegin, iY).m_eStyle)
        {
            ++iEnd;
        }
        AddRun(kPicture, kScreen, iBegin, iEnd, iY);
        iBegin = iEnd;
    }
}
} // namespace

const StyleLook_t& GetStyleLook(ETextStyle eStyle)
{
    return cakLooks[eStyle];
}

std::string WriteSVG(const CTextScreen& kScreen, const std::string& kTitle)
{
    const std::string kWidth = std::to_string(kScreen.GetWidth() * ciColumnWidth + 2 * ciMargin);
    const std::string kHeight = std::to_string(kScreen.GetHeight() * ciRowHeight + 2 * ciMargin);
    std::string kPicture = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + kWidth + "\" height=\"" +
                           kHeight + "\" viewBox=\"0 0 " + kWidth + " " + kHeight +
                           "\" role=\"img\" font-family=\"ui-monospace, 'DejaVu Sans Mono', Menlo, Consolas, "
                           "monospace\" font-size=\"15\">\n<title>";
    AddEscaped(kPicture, kTitle);
    kPicture += "</title>\n<rect width=\"100%\" height=\"100%\" rx=\"8\" fill=\"" +
                std::string(cpcUsualBackground) + "\"/>\n";
    for (eC_Int iY = 0; iY < kScreen.GetHeight(); ++iY)
    {
        AddRow(kPicture, kScreen, iY);
    }
    return kPicture + "</svg>\n";
}
