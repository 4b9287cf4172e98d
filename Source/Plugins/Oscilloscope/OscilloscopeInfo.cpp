#include "Plugins/Oscilloscope/OscilloscopeInfo.h"

#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Mirel/DataModel/Objects/CProductInfo.h"
#include "Mirel/DataModel/Objects/EValueKind.h"

namespace PluginsFilters
{

using namespace Mirel::Audio::DSP;
using namespace Mirel::DataModel::Objects;

namespace
{

IParamValueToText* Number(const char* format)
{
    return new CParamValueToText(format, false, "{value}");
}

CParamsInfo MakeInputParams()
{
    CParamsInfo params;
    params.Add(ValueKindInteger, 0.0f, 2.0f, 0.0f, "View Mode", "", "",
               new CEnumToText({"Flow", "Loop", "Trigger"}), true);
    params.Add(ValueKindSwitch, 0.0f, 1.0f, 0.0f, "Sync", "", "", Number("%.0f"), true);
    params.Add(ValueKindReal, 0.0f, 300.0f, 0.0f, "Delay", "ms", "", Number("%.1f"), true);
    params.Add(ValueKindReal, -1.0f, 1.0f, 0.0f, "Trigger Value", "", "", Number("%.2f"), true);
    params.Add(ValueKindReal, 0.0f, 1.0f, 0.0f, "Trigger Direction", "", "", new CEnumToText({"Up", "Down"}),
               true);
    return params;
}

CParamInfo Axis(const char* name, float min, float max, const char* unit)
{
    return {ValueKindReal, min, max, 0.0f, name, unit, ""};
}

CCurvesInfo MakeOutputCurves()
{
    CCurvesInfo curves;
    curves.Add(Axis("Time", -1.0f, 0.0f, "s"), Axis("Value", -1.0f, 1.0f, ""), "Waveform", "");
    curves.Add(Axis("Values", -1.0f, 1.0f, ""), Axis("Normalized", 0.0f, 1.0f, ""), "Histogram", "");
    return curves;
}

} // namespace

const CParamsInfo& OscilloscopeInputParams()
{
    static const CParamsInfo params = MakeInputParams();
    return params;
}

const CCurvesInfo& OscilloscopeOutputCurves()
{
    static const CCurvesInfo curves = MakeOutputCurves();
    return curves;
}

const CProcessInfo& OscilloscopeProcess()
{
    static const CInputInfo input("In", "");
    static const CProcessInfo process(1, 0, &input);
    return process;
}

const IConstProductInfo& OscilloscopeProduct()
{
    static const CProductInfo product("Oscilloscope", "2.0", "", "Audio Oscilloscope");
    return product;
}

} // namespace PluginsFilters
