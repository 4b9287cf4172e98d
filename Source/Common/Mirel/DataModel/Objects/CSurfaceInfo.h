#pragma once

#include "Mirel/Core/CCharString.h"
#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/ISurfaceInfo.h"
#include "Mirel/DataModel/Objects/TDefaultFunction.h"
#include "Mirel/Math/CConstantBinaryFunction.h"

namespace Mirel::DataModel::Objects
{

/// The description of a function of two variables. A copy has no listeners; an assignment is a CopyFrom.
class CSurfaceInfo : public virtual ISurfaceInfo
{
public:
    CSurfaceInfo();

    /// Copies the descriptions of the axes. The default function is not owned; null for the constant.
    CSurfaceInfo(const IConstParamInfo& xInfo_, const IConstParamInfo& yInfo_, const IConstParamInfo& zInfo_,
                 const char* name_, const char* comment_,
                 const Math::IBinaryFunction* defaultFunction_ = nullptr);

    explicit CSurfaceInfo(const IConstSurfaceInfo& other);
    CSurfaceInfo(const CSurfaceInfo& other);
    CSurfaceInfo& operator=(const CSurfaceInfo& other);
    ~CSurfaceInfo() override = default;

    const char* GetName() const override { return name.Get(); }
    const char* GetComment() const override { return comment.Get(); }
    Core::IEventProvider& GetChangedEventProvider() const override { return changed; }

    const CParamInfo& GetXInfo() const override { return xInfo; }
    CParamInfo& GetXInfo() override { return xInfo; }
    const CParamInfo& GetYInfo() const override { return yInfo; }
    CParamInfo& GetYInfo() override { return yInfo; }
    const CParamInfo& GetZInfo() const override { return zInfo; }
    CParamInfo& GetZInfo() override { return zInfo; }
    const Math::IBinaryFunction& GetDefaultFunction() const override;
    const Math::IBinaryFunction* GetExplicitDefaultFunction() const override
    {
        return defaultFunction.GetExplicit();
    }

    void SetName(const char* newName) override;
    void SetComment(const char* newComment) override;
    void SetDefaultFunction(const Math::IBinaryFunction* function) override;
    void CopyFrom(const IConstSurfaceInfo& other) override;

private:
    void ConnectAxes();
    void OnAxisChanged();

    CParamInfo xInfo;
    CParamInfo yInfo;
    CParamInfo zInfo;
    Core::CCharString name;
    Core::CCharString comment;
    mutable Core::CEventProvider changed; ///< Listening to a description changes nothing of it.
    Core::TCommand<CSurfaceInfo> axisChanged{this, &CSurfaceInfo::OnAxisChanged};
    TDefaultFunction<Math::IBinaryFunction, Math::CConstantBinaryFunction> defaultFunction;
    bool copying = false; ///< While set, a change of an axis is part of a CopyFrom.
};

} // namespace Mirel::DataModel::Objects
