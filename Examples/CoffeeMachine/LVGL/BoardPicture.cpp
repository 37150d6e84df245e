// SPDX-License-Identifier: MIT
#include "LVGL/BoardPicture.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace
{
/** Widens a colour of some bits to eight. */
unsigned char Widen(unsigned uiColor, unsigned uiBits)
{
    const unsigned uiMost = (1U << uiBits) - 1;
    return static_cast<unsigned char>((uiColor & uiMost) * 255U / uiMost);
}

struct RGB_t
{
    unsigned char m_aucColors[3]; ///< red, green, blue
};

RGB_t SplitPixel(unsigned uiPixel)
{
    return {{Widen(uiPixel >> 11U, 5), Widen(uiPixel >> 5U, 6), Widen(uiPixel, 5)}};
}
} // namespace

Picture_t TakePicture(const CBoard& kBoard)
{
    Picture_t kPicture = {kBoard.GetWidth(), kBoard.GetHeight(), {}};
    for (int iPixel = 0; iPixel < kBoard.GetWidth() * kBoard.GetHeight(); ++iPixel)
    {
        const RGB_t kRGB = SplitPixel(kBoard.GetPixels()[iPixel]);
        kPicture.m_kBytes.insert(kPicture.m_kBytes.end(), std::begin(kRGB.m_aucColors),
                                 std::end(kRGB.m_aucColors));
    }
    return kPicture;
}

std::string WritePlainPicture(const CBoard& kBoard, const std::string& kPath)
{
    std::FILE* pkFile = std::fopen(kPath.c_str(), "wb");
    if (pkFile != nullptr)
    {
        std::fprintf(pkFile, "P6\n%d %d\n255\n", kBoard.GetWidth(), kBoard.GetHeight());
        for (int iPixel = 0; iPixel < kBoard.GetWidth() * kBoard.GetHeight(); ++iPixel)
        {
            const RGB_t kRGB = SplitPixel(kBoard.GetPixels()[iPixel]);
            std::fwrite(kRGB.m_aucColors, sizeof(kRGB.m_aucColors), 1, pkFile);
        }
    }
    const bool bIsWritten = pkFile != nullptr && std::ferror(pkFile) == 0;
    const bool bIsClosed = pkFile != nullptr && std::fclose(pkFile) == 0;
    return bIsWritten && bIsClosed ? std::string() : "cannot write " + kPath + ": " + std::strerror(errno);
}
