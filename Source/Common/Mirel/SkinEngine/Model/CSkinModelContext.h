#pragma once

#include "Mirel/SkinEngine/Model/CObjectWatch.h"
#include "Mirel/SkinEngine/Model/CSkinCollectionContext.h"
#include "Mirel/SkinEngine/Model/SSkinModelServices.h"

#include <memory>

namespace Mirel::SkinEngine
{

/// What a model and all items of its collections share. Lives as long as the last of what they are made of;
/// the model's dictionary must outlive it. GUI thread only.
class CSkinModelContext
{
public:
    CSkinModelContext(ISkinDynamicObjectsDictionary& dictionary, const SSkinModelServices& services_)
        : services(services_),
          watch(dictionary),
          collections(std::make_shared<CSkinCollectionContext>([&dictionary] { return dictionary.GetLog(); }))
    {
    }

    const SSkinModelServices& GetServices() const { return services; }

    /// The dictionary that identifiers are looked up in, and those who hold its objects.
    CObjectWatch& GetWatch() { return watch; }
    ISkinDynamicObjectsDictionary& GetDictionary() const { return watch.GetDictionary(); }

    const std::shared_ptr<CSkinCollectionContext>& GetCollections() const { return collections; }

private:
    SSkinModelServices services;
    CObjectWatch watch;
    std::shared_ptr<CSkinCollectionContext> collections;
};

} // namespace Mirel::SkinEngine
