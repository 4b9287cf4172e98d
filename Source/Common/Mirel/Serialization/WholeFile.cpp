#include "Mirel/Serialization/WholeFile.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Mirel::Serialization
{

namespace
{

/// A file descriptor that is closed at the end of its scope.
class CDescriptor
{
public:
    explicit CDescriptor(int number_) : number(number_) {}
    CDescriptor(const CDescriptor&) = delete;
    CDescriptor& operator=(const CDescriptor&) = delete;
    ~CDescriptor() { Close(); }

    bool IsOpen() const { return number >= 0; }
    int Get() const { return number; }

    /// False if the system reports that something written got lost.
    bool Close()
    {
        const int closing = number;
        number = -1;
        return closing < 0 || ::close(closing) == 0;
    }

private:
    int number;
};

bool WriteAll(int descriptor, std::string_view content)
{
    while (!content.empty())
    {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR)
        {
            continue;
        }
        if (written <= 0)
        {
            return false;
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

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
        const int descriptor = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (descriptor >= 0 || errno != EEXIST)
        {
            return descriptor;
        }
    }
    return -1;
}

bool FillTemporary(CDescriptor& temporary, const std::string& target, std::string_view content)
{
    struct stat old = {};
    constexpr mode_t permissions = 07777;
    const bool replaces = ::stat(target.c_str(), &old) == 0;
    if (replaces && !S_ISREG(old.st_mode))
    {
        return false;
    }
    if (replaces && ::fchmod(temporary.Get(), old.st_mode & permissions) != 0)
    {
        return false;
    }
    return WriteAll(temporary.Get(), content) && ::fsync(temporary.Get()) == 0 && temporary.Close();
}

} // namespace

bool ReadFileWhole(const char* path, std::size_t maxBytes, std::string& content)
{
    if (path == nullptr)
    {
        return false;
    }
    // Without O_NONBLOCK a pipe in the place of the file would make the caller wait for a writer.
    const CDescriptor file(::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    if (!file.IsOpen() || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode) ||
        static_cast<std::size_t>(status.st_size) > maxBytes)
    {
        return false;
    }
    std::string bytes;
    // One more than it should be, to see the end, or that the file grew meanwhile.
    bytes.resize(static_cast<std::size_t>(status.st_size) + 1);
    std::size_t filled = 0;
    while (filled < bytes.size())
    {
        const ssize_t count = ::read(file.Get(), bytes.data() + filled, bytes.size() - filled);
        if (count < 0 && errno == EINTR)
        {
            continue;
        }
        if (count < 0)
        {
            return false;
        }
        if (count == 0)
        {
            bytes.resize(filled);
            content = std::move(bytes);
            return true;
        }
        filled += static_cast<std::size_t>(count);
    }
    return false;
}

bool WriteFileWhole(const char* path, std::string_view content)
{
    if (path == nullptr)
    {
        return false;
    }
    const std::string target = ResolvedPath(path);
    const std::string folder = FolderOf(target);
    std::string name;
    CDescriptor temporary(CreateTemporary(folder, name));
    if (!temporary.IsOpen())
    {
        return false;
    }
    if (!FillTemporary(temporary, target, content) || ::rename(name.c_str(), target.c_str()) != 0)
    {
        ::unlink(name.c_str());
        return false;
    }
    // The new file is in place: a folder that cannot be forced to the disk only makes that less durable.
    const CDescriptor folderFile(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folderFile.IsOpen())
    {
        static_cast<void>(::fsync(folderFile.Get()));
    }
    return true;
}

} // namespace Mirel::Serialization
