#pragma once

#include "Mirel/Core/IEventProvider.h"

namespace Mirel::DataModel
{

/// The description of an object, apart from its value: what every kind of description can tell. Descriptions
/// are read and changed on the GUI thread; a filter reads its own while it is not running.
class IConstObjectInfo
{
public:
    /// The display name, or null; valid until the next change of the name.
    virtual const char* GetName() const = 0;

    /// The help text, or null; valid until the next change of the comment.
    virtual const char* GetComment() const = 0;

    /// Fires after every change of the description.
    virtual Core::IEventProvider& GetChangedEventProvider() const = 0;

    virtual ~IConstObjectInfo() = default;
};

} // namespace Mirel::DataModel
