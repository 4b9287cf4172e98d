#pragma once

#include "Common/Mirel/Audio/DSP/RecordingEffect.h"
#include "Mirel/Audio/DSP/ParamsValues.h"
#include "Mirel/Math/CConstantBinaryFunction.h"

#include <string>

namespace Tests
{

/// A text that an effect puts out.
class CTestString : public Mirel::Audio::DSP::IOutputString
{
public:
    const char* GetText() const override { return isNull ? nullptr : text.c_str(); }
    Mirel::Core::IDirty& GetDirty() override { return dirty; }

    void Set(std::string newText)
    {
        text = std::move(newText);
        dirty.SetDirty(true);
    }

    bool isNull = false;

private:
    std::string text;
    Mirel::Core::CDirty dirty;
};

/// An effect with one output of each kind: the parameter "Level", a string, the curve and a surface.
class CPublishingEffect : public CRecordingEffect
{
public:
    CPublishingEffect()
    {
        using namespace Mirel::DataModel::Objects;
        outputStringsInfo.Add("Note", "", "none yet");
        outputSurfacesInfo.Add(CParamInfo(), CParamInfo(), CParamInfo(), "Surface", "");
        texts.Add();
        surfacesDirty.Add();
        values.SetValue(0, 0.0f);
    }

    const Mirel::Audio::DSP::IConstParamsValues& GetOutputParams() const override { return values; }
    Mirel::Audio::DSP::IOutputStrings& GetOutputStrings() override { return texts; }
    const Mirel::Audio::DSP::ISurfaces& GetOutputSurfaces() const override { return surfaces; }
    Mirel::Audio::DSP::IDirtyMarks& GetOutputSurfacesDirty() override { return surfacesDirty; }

    void SetLevel(float value) { values.SetValue(0, value); }
    CTestString& GetString() { return texts[0]; }

    void ChangeCurve(float value)
    {
        SetCurve(value);
        GetOutputCurvesDirty()[0].SetDirty(true);
    }

    void ChangeSurface(float value)
    {
        surface.SetValue(value);
        surfacesDirty[0].SetDirty(true);
    }

private:
    Mirel::Audio::DSP::CDynamicParamsValues values{1};
    Mirel::Containers::TDynamicCollection<CTestString, Mirel::Audio::DSP::IOutputString> texts;
    Mirel::Math::CConstantBinaryFunction surface;
    Mirel::Containers::TPointersValueVector<Mirel::Math::IBinaryFunction> surfaces{&surface};
    Mirel::Containers::TDynamicCollection<Mirel::Core::CDirty, Mirel::Core::IDirty> surfacesDirty;
};

} // namespace Tests
