#include "Mirel/SkinEngine/UI/AxisSettings.h"

#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/DataModel/Objects/ResponseCurves.h"
#include "Mirel/Math/TFunctionHolder.h"
#include "Mirel/SkinEngine/Formula/FormulaCompiler.h"
#include "Mirel/SkinEngine/Language/Quoted.h"

#include <string_view>
#include <utility>

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;
using DataModel::Controls::CParamViewerConfig;

namespace
{

constexpr float usualMaxZoom = 10.0F;

/// A function that is no object of a file: it belongs to one axis.
class CAxisFunction : public Math::IFunction
{
public:
    const char* GetTypeKey() const override { return nullptr; }
    bool Serialize(Serialization::IWriteDataStream&) const override { return false; }
    bool Deserialize(const Serialization::IReadDataStream&) override { return false; }
};

/// Undoes a function that rises or falls from 0 to 1, by halving.
class CInverseFunction : public CAxisFunction
{
public:
    explicit CInverseFunction(Math::TFunctionHolder<Math::IFunction> function_)
        : function(std::move(function_)),
          rising((*function)(0.0F) <= (*function)(1.0F))
    {
    }

    CInverseFunction* Clone() const override { return new CInverseFunction(function); }

    float operator()(float y) const override
    {
        float low = 0.0F;
        float high = 1.0F;
        for (int i = 0; i < halvings; ++i)
        {
            const float middle = (low + high) * 0.5F;
            const bool below = (*function)(middle) < y;
            (below == rising ? low : high) = middle;
        }
        return (low + high) * 0.5F;
    }

private:
    static constexpr int halvings = 24; ///< As many as a float has bits.

    Math::TFunctionHolder<Math::IFunction> function;
    bool rising;
};

/// Bends an axis by a curve of the model, and again whenever that changes.
class CAxisCurve
{
public:
    /// Neither is owned; both outlive this object.
    CAxisCurve(CParamViewerConfig& axis_, const IConstCaptureCurve& curve_)
        : axis(axis_),
          curve(curve_),
          connection(&curve_.GetValueChangedEventProvider(), &changed)
    {
        Bend();
    }
    CAxisCurve(const CAxisCurve&) = delete;
    CAxisCurve& operator=(const CAxisCurve&) = delete;
    ~CAxisCurve() { axis.SetResponseCurve(nullptr, nullptr, false); }

private:
    void Bend()
    {
        axis.SetResponseCurve(curve.GetValue().Clone(),
                              new CInverseFunction({curve.GetValue().Clone(), true}), true);
    }

    CParamViewerConfig& axis;
    const IConstCaptureCurve& curve;
    Core::TCommand<CAxisCurve> changed{this, &CAxisCurve::Bend};
    CoreUtilities::CCallbackHelper connection;
};

const SResponseCurve* FindResponseCurve(std::string_view name)
{
    for (int code = 0; code < responseCurveCount; ++code)
    {
        const SResponseCurve* curve = GetResponseCurve(code);
        if (curve != nullptr && curve->modelName != nullptr && name == curve->modelName)
        {
            return curve;
        }
    }
    return nullptr;
}

void ReadResponse(CUIElement& element, const char* text, CParamViewerConfig& axis)
{
    if (const SResponseCurve* named = FindResponseCurve(text))
    {
        const SResponsePair pair = GetResponsePair(named->code);
        axis.SetResponseCurve(pair.function, pair.inverse, false);
        return;
    }
    CUIBuild& build = element.GetBuild();
    auto formula =
        build.GetContext()->GetDictionary().Find(text) == nullptr ? CompileFunction(text, "x") : nullptr;
    if (formula == nullptr)
    {
        // A curve, which may come later.
        build.GetData().Own(std::make_unique<CAxisCurve>(axis, build.GetCurve(text)));
        return;
    }
    auto inverse =
        std::make_unique<CInverseFunction>(Math::TFunctionHolder<Math::IFunction>(formula->Clone(), true));
    axis.SetResponseCurve(formula.release(), inverse.release(), true);
}

} // namespace

bool ReadAxis(CUIElement& element, const SAxisNames& names, CParamViewerConfig& axis)
{
    const auto& attributes = element.GetAttributes();
    const std::string& prefix = names.prefix;
    int positions = CParamViewerConfig::continuous;
    if (names.hasPositionsCount && ReadNumber(attributes, prefix + "positions_count", positions))
    {
        axis.SetPositionsCount(positions);
    }
    if (const char* response = FindText(attributes, prefix + "response_curve"))
    {
        ReadResponse(element, response, axis);
    }
    axis.SetLogScale(std::string_view(GetText(attributes, prefix + "scale")) == "log");
    axis.SetZoomPositions(IsNotFalse(attributes, prefix + "zoom_positions"));
    float zoom = 1.0F;
    float offset = 0.0F;
    float maxZoom = usualMaxZoom;
    ReadNumber(attributes, prefix + "zoom", zoom);
    ReadNumber(attributes, prefix + "offset", offset);
    ReadNumber(attributes, prefix + "max_zoom", maxZoom);
    axis.SetZoom(zoom);
    axis.SetOffset(offset);
    const bool exposed = element.GetProperties().Expose(
        ("." + prefix + "zoom").c_str(), {"Zoom", 1.0F, maxZoom, ValueKindReal, nullptr, nullptr},
        [&axis] { return axis.GetZoom(); }, [&axis](float value) { axis.SetZoom(value); },
        &axis.GetZoomChangedEventProvider());
    return element.GetProperties().Expose(
               ("." + prefix + "offset").c_str(), {"Offset", 0.0F, 1.0F, ValueKindReal, nullptr, nullptr},
               [&axis] { return axis.GetOffset(); }, [&axis](float value) { axis.SetOffset(value); },
               &axis.GetOffsetChangedEventProvider()) &&
           exposed;
}

} // namespace Mirel::SkinEngine
