// SPDX-License-Identifier: MIT
#include "LVGL/Picture.h"

#include "LVGL/Board.h"

#include <png.h>

#include <cstddef>
#include <vector>

namespace
{
/** Widens a colour of some bits to eight. */
unsigned char Widen(unsigned uiColor, unsigned uiBits)
{
    const unsigned uiMost = (1U << uiBits) - 1;
    return static_cast<unsigned char>((uiColor & uiMost) * 255U / uiMost);
}
} // namespace

bool WritePicture(const CBoard& kBoard, const std::string& kPath)
{
    std::vector<unsigned char> kBytes;
    const auto uiPixels =
        static_cast<std::size_t>(kBoard.GetWidth()) * static_cast<std::size_t>(kBoard.GetHeight());
    for (std::size_t uiPixel = 0; uiPixel < uiPixels; ++uiPixel)
    {
        const unsigned uiColor = kBoard.GetPixels()[uiPixel];
        kBytes.insert(kBytes.end(), {Widen(uiColor >> 11U, 5), Widen(uiColor >> 5U, 6), Widen(uiColor, 5)});
    }
    png_image kImage = {};
    kImage.version = PNG_IMAGE_VERSION;
    kImage.width = static_cast<png_uint_32>(kBoard.GetWidth());
    kImage.height = static_cast<png_uint_32>(kBoard.GetHeight());
    kImage.format = PNG_FORMAT_RGB;
    return png_image_write_to_file(&kImage, kPath.c_str(), 0, kBytes.data(), 0, nullptr) != 0;
}
