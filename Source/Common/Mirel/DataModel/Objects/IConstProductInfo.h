#pragma once

#include "Mirel/Core/IEventProvider.h"

namespace Mirel::DataModel::Objects
{

/// The texts that identify a product or an effect. Each may be null and is valid until the next change.
class IConstProductInfo
{
public:
    virtual const char* GetName() const = 0;
    virtual const char* GetVersion() const = 0;

    /// The legal line: rights and marks.
    virtual const char* GetLegal() const = 0;

    virtual const char* GetDescription() const = 0;

    /// Fires after every change.
    virtual Core::IEventProvider& GetChangedEventProvider() const = 0;

    virtual ~IConstProductInfo() = default;
};

} // namespace Mirel::DataModel::Objects
