#pragma once

#include "Mirel/Core/ICommand.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/DataModel/CObjectInfo.h"

namespace Mirel::DataModel::Objects
{

/// The description of an action, with the command that runs by default. A command cannot be cloned: CopyFrom
/// takes over the texts and leaves the command alone.
class CActionInfo : public CObjectInfo
{
public:
    explicit CActionInfo(const char* name_ = "", const char* comment_ = "", Core::ICommand* action_ = nullptr,
                         bool owned_ = true)
        : CObjectInfo(name_, comment_),
          action(action_, owned_)
    {
    }

    CActionInfo(const CActionInfo&) = delete;
    CActionInfo& operator=(const CActionInfo&) = delete;
    ~CActionInfo() override = default;

    /// Null if there is none.
    Core::ICommand* GetAction() const { return action.Get(); }

    /// With owned the description destroys the command in the end. Fires.
    void SetAction(Core::ICommand* newAction, bool owned)
    {
        action.Set(newAction, owned);
        NotifyChanged();
    }

private:
    Core::TOwnership<Core::ICommand> action;
};

} // namespace Mirel::DataModel::Objects
