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
};

struct SCheckResult
{
    std::string root; ///< The first element.
    CCheckLog log;
    std::vector<SExpandedElement> elements;
    std::vector<Mirel::SkinEngine::SObjectDescription> objects;
    std::string state; ///< As XML.
};

/// Reads a model, or walks a skin, whose widgets are not made here.
void CheckSkin(const SCheckOptions& options, SCheckResult& result);

} // namespace SkinCheck
