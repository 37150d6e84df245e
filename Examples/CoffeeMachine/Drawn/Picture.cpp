// SPDX-License-Identifier: MIT
#include "Drawn/Picture.h"

#include <png.h>

#include <cerrno>
#include <cstring>

std::string WritePicture(const Picture_t& kPicture, const std::string& kFolder, const std::string& kName)
{
    png_image kImage = {};
    kImage.version = PNG_IMAGE_VERSION;
    kImage.width = static_cast<png_uint_32>(kPicture.m_iWidth);
    kImage.height = static_cast<png_uint_32>(kPicture.m_iHeight);
    kImage.format = PNG_FORMAT_RGB;
    const std::string kPath = kFolder + "/" + kName + ".png";
    return png_image_write_to_file(&kImage, kPath.c_str(), 0, kPicture.m_kBytes.data(), 0, nullptr) != 0
               ? std::string()
               : "cannot write " + kPath + ": " + std::strerror(errno);
}
