#pragma once

#include "Mirel/Core/CCharString.h"
#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/ICurveInfo.h"
#include "Mirel/DataModel/Objects/TDefaultFunction.h"
#include "Mirel/Math/CConstantFunction.h"

namespace Mirel::DataModel::Objects
{

/// The description of a function of one variable. A copy has no listeners; an assignment is a CopyFrom.
class CCurveInfo : public virtual ICurveInfo
{
public:
    CCurveInfo();

    /// Copies the descriptions of the axes. The default function is not owned; null for the constant.
    CCurveInfo(const IConstParamInfo& xInfo_, const IConstParamInfo& yInfo_, const char* name_,
               const char* comment_, const Math::IFunction* defaultFunction_ = nullptr);

    explicit CCurveInfo(const IConstCurveInfo& other);
    CCurveInfo(const CCurveInfo& other);
    CCurveInfo& operator=(const CCurveInfo& other);
    ~CCurveInfo() override = default;

    const char* GetName() const override { return name.Get(); }
    const char* GetComment() const override { return comment.Get(); }
    Core::IEventProvider& GetChangedEventProvider() const override { return changed; }

    const CParamInfo& GetXInfo() const override { return xInfo; }
    CParamInfo& GetXInfo() override { return xInfo; }
    const CParamInfo& GetYInfo() const override { return yInfo; }
    CParamInfo& GetYInfo() override { return yInfo; }
    const Math::IFunction& GetDefaultFunction() const override;
    const Math::IFunction* GetExplicitDefaultFunction() const override
    {
        return defaultFunction.GetExplicit();
    }

    void SetName(const char* newName) override;
    void SetComment(const char* newComment) override;
    void SetDefaultFunction(const Math::IFunction* function) override;
    void CopyFrom(const IConstCurveInfo& other) override;

private:
    void ConnectAxes();
    void OnAxisChanged();

    CParamInfo xInfo;
    CParamInfo yInfo;
    Core::CCharString name;
    Core::CCharString comment;
    mutable Core::CEventProvider changed; ///< Listening to a description changes nothing of it.
    Core::TCommand<CCurveInfo> axisChanged{this, &CCurveInfo::OnAxisChanged};
    TDefaultFunction<Math::IFunction, Math::CConstantFunction> defaultFunction;
    bool copying = false; ///< While set, a change of an axis is part of a CopyFrom.
};

} // namespace Mirel::DataModel::Objects
