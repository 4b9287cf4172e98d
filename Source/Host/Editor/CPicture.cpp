#include "Host/Editor/CPicture.h"

#include "Mirel/Serialization/WholeFile.h"

#include <png.h>

namespace Host
{

namespace
{

/// Empty if the library fails.
std::string Encode(const CPicture& picture)
{
    png_image head = {};
    head.version = PNG_IMAGE_VERSION;
    head.width = static_cast<png_uint_32>(picture.width);
    head.height = static_cast<png_uint_32>(picture.height);
    head.format = PNG_FORMAT_BGRA;
    png_alloc_size_t size = 0;
    std::string bytes;
    if (png_image_write_to_memory(&head, nullptr, &size, 0, picture.pixels.data(), 0, nullptr) != 0)
    {
        bytes.resize(size);
        if (png_image_write_to_memory(&head, bytes.data(), &size, 0, picture.pixels.data(), 0, nullptr) == 0)
        {
            bytes.clear();
        }
    }
    png_image_free(&head);
    return bytes;
}

} // namespace

bool WritePicture(const CPicture& picture, const std::string& path, std::string& error)
{
    const std::string bytes = picture.IsEmpty() ? std::string() : Encode(picture);
    if (bytes.empty())
    {
        error = "there is no picture to write to \"" + path + '"';
        return false;
    }
    if (!Mirel::Serialization::WriteFileWhole(path.c_str(), bytes))
    {
        error = "cannot write \"" + path + '"';
        return false;
    }
    return true;
}

} // namespace Host
