#pragma once

#include "Mirel/SkinEngine/Model/ISkinDynamicObjectsDictionary.h"

namespace Mirel::SkinEngine
{

/// Sends the reports of a dictionary to another log while it lives. GUI thread only.
class CDictionaryLogExchange
{
public:
    /// Neither is owned, both must outlive this object.
    CDictionaryLogExchange(ISkinDynamicObjectsDictionary& dictionary_, CoreUtilities::IMessageLog* log)
        : dictionary(dictionary_),
          former(dictionary_.GetLog())
    {
        dictionary.SetLog(log);
    }
    CDictionaryLogExchange(const CDictionaryLogExchange&) = delete;
    CDictionaryLogExchange& operator=(const CDictionaryLogExchange&) = delete;
    ~CDictionaryLogExchange() { dictionary.SetLog(former); }

private:
    ISkinDynamicObjectsDictionary& dictionary;
    CoreUtilities::IMessageLog* former;
};

} // namespace Mirel::SkinEngine
