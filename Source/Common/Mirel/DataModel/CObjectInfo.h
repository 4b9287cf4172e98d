#pragma once

#include "Mirel/Core/CCharString.h"
#include "Mirel/Core/CEventProvider.h"
#include "Mirel/DataModel/IObjectInfo.h"

namespace Mirel::DataModel
{

/// The base description: a name and a comment. A copy has no listeners; an assignment is a CopyFrom.
class CObjectInfo : public virtual IObjectInfo
{
public:
    explicit CObjectInfo(const char* name_ = "", const char* comment_ = "");
    explicit CObjectInfo(const IConstObjectInfo& other);
    CObjectInfo(const CObjectInfo& other);
    CObjectInfo& operator=(const CObjectInfo& other);
    ~CObjectInfo() override = default;

    const char* GetName() const override { return name.Get(); }
    const char* GetComment() const override { return comment.Get(); }
    Core::IEventProvider& GetChangedEventProvider() const override { return changed; }

    void SetName(const char* newName) override;
    void SetComment(const char* newComment) override;
    void CopyFrom(const IConstObjectInfo& other) override;

protected:
    void NotifyChanged() const { changed.Notify(); }

private:
    mutable Core::CEventProvider changed; ///< Listening to a description changes nothing of it.
    Core::CCharString name;
    Core::CCharString comment;
};

} // namespace Mirel::DataModel
