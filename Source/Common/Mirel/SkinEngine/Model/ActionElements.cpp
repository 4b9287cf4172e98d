#include "Mirel/DataModel/Objects/CAction.h"
#include "Mirel/SkinEngine/Model/COpenUrlFunctionWrapperCommand.h"
#include "Mirel/SkinEngine/Model/ModelElements.h"

#include <string_view>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using Containers::CNamedAttributes;

bool TakeQuotes(std::string& argument)
{
    if (argument.size() < 2 || argument.front() != '\'' || argument.back() != '\'')
    {
        return false;
    }
    argument = argument.substr(1, argument.size() - 2);
    return true;
}

bool BuildInvokeAction(CModelBuild& build, const CNamedAttributes& attributes)
{
    const char* id = GetText(attributes, "id");
    if (*id == '\0')
    {
        return build.Fail("Cannot create action, id field is empty.");
    }
    const int flags = build.GetExposure().GetStringOrActionFlags(id);
    if (flags == 0)
    {
        return true;
    }
    const std::string function = GetText(attributes, "function");
    if (function.empty())
    {
        return build.Fail("Cannot create action, 'function' field is empty.");
    }
    if (function != "OpenUrl")
    {
        return build.Fail(function + ": unkown function");
    }
    const char* argument = FindText(attributes, "arg_url");
    if (argument == nullptr)
    {
        return build.Fail("Cannot create action, 'file_name' field is empty.");
    }
    std::string url = argument;
    const bool fixed = TakeQuotes(url);
    auto* command = new COpenUrlFunctionWrapperCommand(build.GetServices().urlOpener, fixed ? url : "");
    build.Note(id, attributes);
    if (!build.GetModel().AddAction(id, new CAction("", "", command, true), flags, true))
    {
        return false;
    }
    if (!fixed)
    {
        build.Connect<const IConstCaptureString>(*command, &COpenUrlFunctionWrapperCommand::SetSource,
                                                 url.c_str());
    }
    return true;
}

} // namespace Mirel::SkinEngine
