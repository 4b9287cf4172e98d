#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

namespace Tests
{

/// An empty folder that goes with the object.
class CTemporaryFolder
{
public:
    CTemporaryFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "mirel-test-XXXXXX").string();
        path = mkdtemp(pattern.data());
    }
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;
    ~CTemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::permissions(path, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(path, ignored);
    }

    std::string GetPath(const std::string& name) const { return (path / name).string(); }

    void Write(const std::string& name, const std::string& content) const
    {
        std::ofstream(path / name, std::ios::binary) << content;
    }

    std::string Read(const std::string& name) const
    {
        std::ostringstream content;
        content << std::ifstream(path / name, std::ios::binary).rdbuf();
        return content.str();
    }

    /// Names of all that is in the folder.
    std::vector<std::string> List() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path))
        {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

private:
    std::filesystem::path path;
};

} // namespace Tests
