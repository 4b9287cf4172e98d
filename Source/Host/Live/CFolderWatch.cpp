#include "Host/Live/CFolderWatch.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace Host
{

namespace
{

constexpr int MostFiles = 10'000;

}

CFolderWatch::CFolderWatch(std::filesystem::path folder_) : folder(std::move(folder_)), seen(Look()) {}

bool CFolderWatch::HasChanged()
{
    const CSight now = Look();
    return std::exchange(seen, now) != now;
}

CFolderWatch::CSight CFolderWatch::Look() const
{
    namespace fs = std::filesystem;
    CSight sight;
    std::error_code failure;
    const auto options = fs::directory_options::skip_permission_denied;
    for (fs::recursive_directory_iterator file(folder, options, failure), end;
         !failure && file != end && sight.files < MostFiles; file.increment(failure))
    {
        std::error_code gone; // between the listing and this look
        const fs::file_time_type written = file->last_write_time(gone);
        if (!gone)
        {
            sight.newest = std::max(sight.newest, written);
            ++sight.files;
        }
    }
    return sight;
}

} // namespace Host
