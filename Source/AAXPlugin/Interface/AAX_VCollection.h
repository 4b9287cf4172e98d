#pragma once

#include "AAXPlugin/Interface/AAX_CString.h"
#include "AAXPlugin/Interface/AAX_VPlugInDescriptor.h"
#include "AAXPlugin/Interface/IAAXCollection.h"

/// The plug-in's handle of a new collection of the host. Operations on one that holds nothing give Failed.
class AAX_VCollection
{
public:
    /// Asks the host for a collection; without a host, or if the host makes none, it holds nothing.
    explicit AAX_VCollection(IACFUnknown* host);

    explicit operator bool() const { return static_cast<bool>(collection); }

    /// Borrowed; null if nothing is held.
    IACFUnknown* GetUnknown() const { return collection.Get(); }

    /// Holds nothing if the host gave none.
    AAX_VPlugInDescriptor NewDescriptor();
    std::int32_t AddEffect(const AAX_CString& identifier, const AAX_VPlugInDescriptor& effect);
    std::int32_t SetManufacturerName(const AAX_CString& name);
    std::int32_t AddPackageName(const AAX_CString& name);
    std::int32_t SetPackageVersion(std::uint32_t version);

private:
    TACFReference<IAAXCollection> collection;
};
