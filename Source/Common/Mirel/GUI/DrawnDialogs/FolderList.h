#pragma once

#include <string>
#include <vector>

namespace Mirel::GUI
{

struct SFolderEntry
{
    std::string name; ///< as the file system has it, whatever its encoding
    bool isFolder = false;
};

/// What is in a folder: folders first, each kind by name, without hidden ones; files only if their names
/// match one of the patterns (such as "*.xml", letters of either case) or there is none. Of a very large
/// folder not all. Empty if it cannot be read.
std::vector<SFolderEntry> ListFolder(const std::string& folder, const std::vector<std::string>& patterns);

/// A name that can be shown: what is not UTF-8 is replaced by question marks.
std::string ToShownName(const std::string& name);

/// The path that a user means by a text typed in a folder: absolute, from the home folder with "~", or in
/// that folder. Without "." and "..".
std::string ResolveTyped(const std::string& folder, const std::string& typed);

bool IsFolder(const std::string& path);
bool IsFile(const std::string& path);

/// The folder around; that of the root is the root.
std::string GetParentFolder(const std::string& path);

/// The user's; the root if there is none.
std::string GetHomeFolder();

} // namespace Mirel::GUI
