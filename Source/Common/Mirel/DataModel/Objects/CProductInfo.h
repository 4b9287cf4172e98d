#pragma once

#include "Mirel/Core/CCharString.h"
#include "Mirel/Core/CEventProvider.h"
#include "Mirel/DataModel/Objects/IConstProductInfo.h"

namespace Mirel::DataModel::Objects
{

/// The identity of a product or an effect. A copy has no listeners; an assignment is a CopyFrom.
class CProductInfo : public virtual IConstProductInfo
{
public:
    explicit CProductInfo(const char* name_ = "", const char* version_ = "", const char* legal_ = "",
                          const char* description_ = "");
    explicit CProductInfo(const IConstProductInfo& other);
    CProductInfo(const CProductInfo& other);
    CProductInfo& operator=(const CProductInfo& other);
    ~CProductInfo() override = default;

    const char* GetName() const override { return name.Get(); }
    const char* GetVersion() const override { return version.Get(); }
    const char* GetLegal() const override { return legal.Get(); }
    const char* GetDescription() const override { return description.Get(); }
    Core::IEventProvider& GetChangedEventProvider() const override { return changed; }

    /// Takes over all texts and fires once.
    virtual void CopyFrom(const IConstProductInfo& other);

private:
    Core::CCharString name;
    Core::CCharString version;
    Core::CCharString legal;
    Core::CCharString description;
    mutable Core::CEventProvider changed; ///< Listening to a description changes nothing of it.
};

} // namespace Mirel::DataModel::Objects
