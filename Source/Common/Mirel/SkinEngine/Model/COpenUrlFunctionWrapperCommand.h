#pragma once

#include "Mirel/Core/ICommand.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/SkinEngine/Model/IUrlOpener.h"

#include <string>
#include <utility>

namespace Mirel::SkinEngine
{

/// Opens a page whose address is fixed or the text of a string object. GUI thread only.
class COpenUrlFunctionWrapperCommand : public Core::ICommand
{
public:
    /// The opener is not owned and must outlive the command; null for none.
    COpenUrlFunctionWrapperCommand(IUrlOpener* opener_, std::string url_)
        : opener(opener_),
          url(std::move(url_))
    {
    }

    /// Not owned; while there is one its text is the address. Null for none.
    void SetSource(const DataModel::Objects::IConstCaptureString* newSource) { source = newSource; }

    void Execute() override
    {
        const char* address = source == nullptr ? url.c_str() : source->GetValue();
        if (opener != nullptr && address != nullptr && *address != '\0')
        {
            opener->OpenUrl(address);
        }
    }

private:
    IUrlOpener* opener;
    std::string url;
    const DataModel::Objects::IConstCaptureString* source = nullptr;
};

/// Whether an argument of an action stands for itself: in single quotes, which are then taken off. Otherwise
/// it is an identifier, and stays.
bool TakeQuotes(std::string& argument);

} // namespace Mirel::SkinEngine
