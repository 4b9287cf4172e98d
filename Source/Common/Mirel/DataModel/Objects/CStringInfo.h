#pragma once

#include "Mirel/Core/CCharString.h"
#include "Mirel/Core/CEventProvider.h"
#include "Mirel/DataModel/Objects/IStringInfo.h"

namespace Mirel::DataModel::Objects
{

/// The description of a string object. A copy has no listeners; an assignment is a CopyFrom.
class CStringInfo : public virtual IStringInfo
{
public:
    explicit CStringInfo(const char* name_ = "", const char* comment_ = "", const char* defaultText_ = "");
    explicit CStringInfo(const IConstStringInfo& other);
    CStringInfo(const CStringInfo& other);
    CStringInfo& operator=(const CStringInfo& other);
    ~CStringInfo() override = default;

    const char* GetName() const override { return name.Get(); }
    const char* GetComment() const override { return comment.Get(); }
    Core::IEventProvider& GetChangedEventProvider() const override { return changed; }
    const char* GetDefault() const override { return defaultText.Get(); }

    void SetName(const char* newName) override;
    void SetComment(const char* newComment) override;
    void SetDefault(const char* newText) override;
    void CopyFrom(const IConstStringInfo& other) override;

private:
    Core::CCharString name;
    Core::CCharString comment;
    Core::CCharString defaultText;
    mutable Core::CEventProvider changed; ///< Listening to a description changes nothing of it.
};

} // namespace Mirel::DataModel::Objects
