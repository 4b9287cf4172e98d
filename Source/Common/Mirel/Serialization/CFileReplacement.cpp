#include "Mirel/Serialization/CFileReplacement.h"

#include <atomic>
#include <cstdlib>
#include <memory>
#include <utility>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Mirel::Serialization
{

namespace
{

/// Where the path leads through symbolic links; the path itself if nothing stands there yet.
std::string ResolvedPath(const char* path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path, nullptr), &std::free);
    return resolved == nullptr ? path : resolved.get();
}

std::string FolderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

/// Creates a file under a new name in the folder. Not named after the target, whose name may be as long as
/// names can be.
int CreateTemporary(const std::string& folder, std::string& name)
{
    static std::atomic<unsigned> counter{0};
    constexpr int attempts = 100;
    for (int i = 0; i < attempts; ++i)
    {
        name = folder + ".mirel-" + std::to_string(::getpid()) + "-" + std::to_string(++counter) + ".tmp";
        const int descriptor = ::open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (descriptor >= 0 || errno != EEXIST)
        {
            return descriptor;
        }
    }
    return -1;
}

/// The permissions of what is replaced; false if that is no regular file.
bool TakeOverPermissions(int descriptor, const std::string& target)
{
    struct stat old = {};
    constexpr mode_t permissions = 07777;
    if (::stat(target.c_str(), &old) != 0)
    {
        return true;
    }
    return S_ISREG(old.st_mode) && ::fchmod(descriptor, old.st_mode & permissions) == 0;
}

} // namespace

CFileReplacement::~CFileReplacement()
{
    Discard();
}

bool CFileReplacement::Open(const char* path)
{
    Discard();
    if (path == nullptr)
    {
        return false;
    }
    target = ResolvedPath(path);
    descriptor = CreateTemporary(FolderOf(target), temporary);
    if (descriptor >= 0 && !TakeOverPermissions(descriptor, target))
    {
        Discard();
    }
    return descriptor >= 0;
}

bool CFileReplacement::Commit()
{
    if (descriptor < 0)
    {
        return false;
    }
    const bool forced = ::fsync(descriptor) == 0;
    // A close can report that something written got lost.
    const bool closed = ::close(std::exchange(descriptor, -1)) == 0;
    if (!forced || !closed || ::rename(temporary.c_str(), target.c_str()) != 0)
    {
        ::unlink(temporary.c_str());
        return false;
    }
    // The new file is in place: a folder that cannot be forced to the disk only makes that less durable.
    const int folder = ::open(FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0)
    {
        static_cast<void>(::fsync(folder));
        ::close(folder);
    }
    return true;
}

void CFileReplacement::Discard()
{
    if (descriptor >= 0)
    {
        ::close(std::exchange(descriptor, -1));
        ::unlink(temporary.c_str());
    }
}

} // namespace Mirel::Serialization
