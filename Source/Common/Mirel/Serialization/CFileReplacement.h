#pragma once

#include <string>

namespace Mirel::Serialization
{

/// A file on its way to replace another, so that at every moment, also after a crash, either the old or the
/// new file stands there whole: a temporary file beside it is written, forced to the disk and renamed. The
/// permissions of an old file are kept, and a symbolic link stays one. One thread only.
class CFileReplacement
{
public:
    CFileReplacement() = default;
    CFileReplacement(const CFileReplacement&) = delete;
    CFileReplacement& operator=(const CFileReplacement&) = delete;

    /// Without a Commit the old file stays untouched and no temporary is left.
    ~CFileReplacement();

    /// Makes the empty temporary file. False if it cannot be made, or if what stands at the path is no
    /// regular file.
    bool Open(const char* path);

    /// The temporary file, open for reading and writing; -1 if not open. Stays this object's to close.
    int GetDescriptor() const { return descriptor; }

    /// Puts the file in its place and closes it. False, with the old file untouched, if it cannot be.
    bool Commit();

private:
    void Discard();

    std::string target;
    std::string temporary;
    int descriptor = -1;
};

} // namespace Mirel::Serialization
