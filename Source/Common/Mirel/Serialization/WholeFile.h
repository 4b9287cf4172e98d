#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Mirel::Serialization
{

/// Reads a regular file of at most maxBytes. False, with the content left alone, for anything else: a folder,
/// a pipe, a file that is not there or is too long.
bool ReadFileWhole(const char* path, std::size_t maxBytes, std::string& content);

/// Replaces the file by one with that content, so that at every moment, also after a crash, either the old or
/// the new file stands there whole: a temporary file beside it is written, forced to the disk and renamed.
/// The permissions of an old file are kept, and a symbolic link stays one. False, with the old file untouched
/// and no temporary left, on any failure.
bool WriteFileWhole(const char* path, std::string_view content);

} // namespace Mirel::Serialization
