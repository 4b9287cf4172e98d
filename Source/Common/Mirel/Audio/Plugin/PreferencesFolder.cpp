#include "Mirel/Audio/Plugin/PreferencesFolder.h"

#include <cstdlib>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Mirel::Audio::Plugin
{

namespace
{

/// The folder that an environment variable names; empty if it names none from the root on, as the
/// conventions for these variables want it.
std::string FolderFromEnvironment(const char* name)
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nothing in the plug-in changes the environment.
    const char* value = std::getenv(name);
    return value != nullptr && value[0] == '/' ? value : std::string();
}

/// The home folder of the user database, for a host that runs without the variable.
std::string HomeFromDatabase()
{
    constexpr std::size_t bufferSize = 16384;
    std::string buffer(bufferSize, '\0');
    passwd entry = {};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr ||
        found->pw_dir == nullptr || found->pw_dir[0] != '/')
    {
        return {};
    }
    return found->pw_dir;
}

bool IsFolder(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

std::string FindPreferencesFolder()
{
    std::string folder = FolderFromEnvironment("XDG_CONFIG_HOME");
    if (!folder.empty())
    {
        return folder;
    }
    std::string home = FolderFromEnvironment("HOME");
    if (home.empty())
    {
        home = HomeFromDatabase();
    }
    return home.empty() ? home : home + "/.config";
}

bool MakeFolders(const std::string& path)
{
    constexpr mode_t userOnly = 0700;
    for (std::size_t end = path.find('/', 1); !path.empty(); end = path.find('/', end + 1))
    {
        // A level that cannot be made may be there all the same, also where the user may not look.
        static_cast<void>(::mkdir(path.substr(0, end).c_str(), userOnly));
        if (end == std::string::npos)
        {
            break;
        }
    }
    return IsFolder(path);
}

} // namespace Mirel::Audio::Plugin
