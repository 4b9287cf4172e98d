#pragma once

#include "Mirel/SkinEngine/Model/DescribeModel.h"
#include "SkinCheck/CCheckLog.h"
#include "SkinCheck/CElementPrinter.h"

#include <string>
#include <utility>
#include <vector>

namespace SkinCheck
{

/// What is read of a file beyond its messages.
struct SCheckOptions
{
    std::string path;
    std::vector<std::pair<std::string, std::string>> variables;
    bool onlyMarked = false; ///< Build only what the file itself marks, as for a shared model.
    bool plugin = false;    ///< Give a model the objects and variables of the plug-in, as a skin always gets.
    std::string dataFolder; ///< The product's: its faces, and files that skins may take. Empty for none.
    std::string modelPath;  ///< What a skin shows beside the plug-in's objects; empty for nothing.
};

struct SCheckResult
{
    std::string root; ///< The first element.
    CCheckLog log;
    std::vector<SExpandedElement> elements;
    std::vector<Mirel::SkinEngine::SObjectDescription> objects;
    std::string state; ///< As XML.
};

/// Builds what the file says, as the product would, and takes it down again.
void CheckSkin(const SCheckOptions& options, SCheckResult& result);

} // namespace SkinCheck
