#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/Core/ICommand.h"
#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/DataModel/CCascadeShare.h"
#include "Mirel/DataModel/Objects/CConstCaptureCurve.h"
#include "Mirel/DataModel/Objects/CConstCaptureSurface.h"
#include "Mirel/DataModel/Objects/CConstantToCaptureParamAdapter.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/SkinEngine/Formula/TParametrizedFunction.h"
#include "Mirel/SkinEngine/Model/TModelFunction.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{

/// How a formula of each kind is shown as a read-only object, and how that tells of a change.
template <class I>
struct TFormulaCapture;

template <>
struct TFormulaCapture<Math::IConstant>
{
    using Object = DataModel::Objects::CConstantToCaptureParamAdapter;
    using Info = DataModel::Objects::CParamInfo;

    static void Show(Object& object, const Math::IConstant& formula) { object.SetConstant(&formula, false); }
    static void Refresh(Object& object) { object.Update(); }
};

template <>
struct TFormulaCapture<Math::IFunction>
{
    using Object = DataModel::Objects::CConstCaptureCurve;
    using Info = DataModel::Objects::CCurveInfo;

    static void Show(Object& object, const Math::IFunction& formula)
    {
        object.SetFunction(new TFormulaFunction<Math::IFunction, Math::CConstantFunction>(formula), true);
    }
    static void Refresh(Object& object) { object.NotifyChanged(); }
};

template <>
struct TFormulaCapture<Math::IBinaryFunction>
{
    using Object = DataModel::Objects::CConstCaptureSurface;
    using Info = DataModel::Objects::CSurfaceInfo;

    static void Show(Object& object, const Math::IBinaryFunction& formula)
    {
        object.SetFunction(
            new TFormulaFunction<Math::IBinaryFunction, Math::CConstantBinaryFunction>(formula), true);
    }
    static void Refresh(Object& object) { object.NotifyChanged(); }
};

/// A formula with names in it as an observable object that is read only: I is IConstant for a parameter,
/// IFunction for a curve, IBinaryFunction for a surface. Until a name has its object it stands for 0. Every
/// change of one of them is a change of this one.
///
/// No object is owned; before one goes away it is cleared. GUI thread only.
template <class I>
class TParametrizedCaptureObject : public TFormulaCapture<I>::Object
{
    using CTraits = TFormulaCapture<I>;
    using CBase = typename CTraits::Object;

public:
    using Formula = TParametrizedFunction<I>;

    /// Neither is null; the description is copied.
    TParametrizedCaptureObject(std::unique_ptr<Formula> formula_, const typename CTraits::Info& info_)
        : CBase(info_),
          formula(std::move(formula_))
    {
        CTraits::Show(*this, *formula);
    }

    const Formula& GetFormula() const { return *formula; }

    void SetParam(const DataModel::Objects::IConstCaptureParam& param, const char* name)
    {
        formula->GetParameters().SetConstant(name, param.GetValue());
        Listen(param.GetValueChangedEventProvider(), &param, name);
    }

    void ClearParam(const DataModel::Objects::IConstCaptureParam& param, const char* name)
    {
        formula->GetParameters().SetConstant(name, 0.0F);
        Forget(param.GetValueChangedEventProvider(), name);
    }

    void SetCurve(const DataModel::Objects::IConstCaptureCurve& curve, const char* name)
    {
        using Function = TModelFunction<Math::IFunction, DataModel::Objects::IConstCaptureCurve>;
        formula->GetParameters().SetFunction(name, new Function(curve), true);
        Listen(curve.GetValueChangedEventProvider(), nullptr, name);
    }

    void ClearCurve(const DataModel::Objects::IConstCaptureCurve& curve, const char* name)
    {
        formula->GetParameters().SetFunction(name, nullptr, false);
        Forget(curve.GetValueChangedEventProvider(), name);
    }

    void SetSurface(const DataModel::Objects::IConstCaptureSurface& surface, const char* name)
    {
        using Function = TModelFunction<Math::IBinaryFunction, DataModel::Objects::IConstCaptureSurface>;
        formula->GetParameters().SetBinaryFunction(name, new Function(surface), true);
        Listen(surface.GetValueChangedEventProvider(), nullptr, name);
    }

    void ClearSurface(const DataModel::Objects::IConstCaptureSurface& surface, const char* name)
    {
        formula->GetParameters().SetBinaryFunction(name, nullptr, false);
        Forget(surface.GetValueChangedEventProvider(), name);
    }

private:
    /// One object that the formula reads.
    class CInput : public Core::ICommand
    {
    public:
        CInput(TParametrizedCaptureObject& owner_, Core::IEventProvider& provider_,
               const DataModel::Objects::IConstCaptureParam* param_, const char* name_)
            : owner(owner_),
              provider(provider_),
              param(param_),
              name(name_),
              connection(&provider_, this)
        {
        }

        bool Is(const Core::IEventProvider& other, const char* otherName) const
        {
            return &other == &provider && name == otherName;
        }

        void Execute() override
        {
            if (param != nullptr)
            {
                owner.formula->GetParameters().SetConstant(name.c_str(), param->GetValue());
            }
            owner.OnInputChanged();
        }

    private:
        TParametrizedCaptureObject& owner;
        Core::IEventProvider& provider;
        const DataModel::Objects::IConstCaptureParam* param; ///< Null for a function.
        std::string name;
        CoreUtilities::CCallbackHelper connection;
    };

    void Listen(Core::IEventProvider& provider, const DataModel::Objects::IConstCaptureParam* param,
                const char* name)
    {
        inputs.push_back(std::make_unique<CInput>(*this, provider, param, name));
        OnInputChanged();
    }

    void Forget(const Core::IEventProvider& provider, const char* name)
    {
        std::erase_if(inputs, [&](const auto& input) { return input->Is(provider, name); });
        OnInputChanged();
    }

    void OnInputChanged()
    {
        const DataModel::CCascadeShare::CUpdate update(cascadeShare);
        if (update.IsAllowed())
        {
            CTraits::Refresh(*this);
        }
    }

    std::unique_ptr<Formula> formula;
    DataModel::CCascadeShare cascadeShare;
    std::vector<std::unique_ptr<CInput>> inputs;
};

} // namespace Mirel::SkinEngine
