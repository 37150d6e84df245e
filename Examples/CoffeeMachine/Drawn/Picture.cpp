// SPDX-License-Identifier: MIT
#include "Drawn/Picture.h"

#include <png.h>

bool WritePicture(const Picture_t& kPicture, const std::string& kPath)
{
    png_image kImage = {};
    kImage.version = PNG_IMAGE_VERSION;
    kImage.width = static_cast<png_uint_32>(kPicture.m_iWidth);
    kImage.height = static_cast<png_uint_32>(kPicture.m_iHeight);
    kImage.format = PNG_FORMAT_RGB;
    return png_image_write_to_file(&kImage, kPath.c_str(), 0, kPicture.m_kBytes.data(), 0, nullptr) != 0;
}
