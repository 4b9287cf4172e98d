#include "Mirel/Serialization/WholeFile.h"

#include "Mirel/Serialization/CFileReplacement.h"

#include <cerrno>
#include <utility>

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
    ~CDescriptor()
    {
        if (IsOpen())
        {
            ::close(number);
        }
    }

    bool IsOpen() const { return number >= 0; }
    int Get() const { return number; }

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
    CFileReplacement file;
    return file.Open(path) && WriteAll(file.GetDescriptor(), content) && file.Commit();
}

} // namespace Mirel::Serialization
