#pragma once

#include <filesystem>

namespace Host
{

/// Tells whether a file of a folder, or of a folder in it, was written, added or removed. Looks at the 10,000
/// first files. One thread only.
class CFolderWatch
{
public:
    explicit CFolderWatch(std::filesystem::path folder_);

    /// Since the last call, or the construction.
    bool HasChanged();

private:
    struct CSight
    {
        std::filesystem::file_time_type newest = std::filesystem::file_time_type::min();
        int files = 0;

        bool operator==(const CSight&) const = default;
    };

    CSight Look() const;

    std::filesystem::path folder;
    CSight seen;
};

} // namespace Host
