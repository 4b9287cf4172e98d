// The state of a model, read from an XML document or from a stream that makes up its answers, and restored in
// a model with objects of each kind. The state of that model then must come back as it is.

#include "CByteStream.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/DataModel/Objects/CCaptureSurface.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CFunctionsComposition.h"
#include "Mirel/Math/CSweptCurvesFunction.h"
#include "Mirel/Math/CSweptValues.h"
#include "Mirel/Math/FunctionsLibrary.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/Runtime/CDynamicObject.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/ObjectInterfaces.h"
#include "Require.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

namespace
{

using namespace Mirel::DataModel::Objects;
using namespace Mirel::Math;
using namespace Mirel::SkinEngine;
using namespace Mirel::Serialization;

const char* const texts[] = {
    "p",
    "q",
    "c",
    "s",
    "t",
    "n.count",
    "n[0].count",
    ".count",
    "",
    CConstantFunction::classKey,
    CConstantBinaryFunction::classKey,
    CFunctionsComposition::classKey,
    CSweptValues::classKey,
    CSweptCurvesFunction::classKey,
    TFunction<&FunctionsLibrary::Square>::classKey,
    "{never registered}",
};

class CBoundedCount : public virtual ICount
{
public:
    static constexpr int maxCount = 100;

    int GetCount() const override { return count; }
    Mirel::Core::IEventProvider& GetCountChangedEventProvider() const override { return changed; }
    void SetCount(int newCount) override
    {
        count = std::min(std::max(newCount, 0), maxCount);
        changed.Notify();
    }

private:
    int count = 0;
    mutable Mirel::Core::CEventProvider changed;
};

CParamInfo Range()
{
    return {2, -1.0f, 1.0f, 0.5f, "", "", ""};
}

/// A model with a persistent object of each kind.
class CModel
{
public:
    CModel()
    {
        for (const char* id : {"p", "q"})
        {
            model.AddParam(id, new CCaptureParam(Range()), objectItself, true);
        }
        model.AddCurve("c", new CCaptureCurve, objectItself, true);
        model.AddSurface("s", new CCaptureSurface, objectItself, true);
        model.AddString("t", new CCaptureString, objectItself, true);
        for (const char* id : {"n", "n[0]"})
        {
            auto wrapper = std::make_unique<Mirel::Runtime::CDynamicObject>();
            wrapper->AddInterface<ICount>(TObjectInterface<ICount>::name, new CBoundedCount, true);
            model.AddObject(id, wrapper.release(), true);
        }
        for (const char* id : {"p", "q", "c", "s", "t", "n", "n[0]"})
        {
            Fuzz::Require(model.MakePersistent(id, true));
        }
    }

    CSkinModel model;
};

bool IsSame(float a, float b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

void RequireSame(const CSkinModelState& a, const CSkinModelState& b)
{
    for (std::size_t i = 0; i < a.params.size(); ++i)
    {
        Fuzz::Require(IsSame(a.params[i].value, b.params.at(i).value));
    }
    Fuzz::Require(a.strings.at(0).value == b.strings.at(0).value);
    for (std::size_t i = 0; i < a.collections.size(); ++i)
    {
        Fuzz::Require(a.collections[i].value == b.collections.at(i).value);
    }
    for (const float x : {-3.0f, 0.0f, 0.4f, std::numeric_limits<float>::quiet_NaN()})
    {
        Fuzz::Require(IsSame((*a.curves.at(0).value)(x), (*b.curves.at(0).value)(x)));
        Fuzz::Require(IsSame((*a.surfaces.at(0).value)(x, 1.0f), (*b.surfaces.at(0).value)(x, 1.0f)));
    }
}

void Check(const IReadDataStream& stream)
{
    CModel first;
    first.model.Deserialize(stream);
    Fuzz::Require(!first.model.IsStateModified());
    CSkinModelState state;
    first.model.TakeState(state);
    Fuzz::Require(state.params.size() == 2 && state.collections.size() == 2);
    for (const auto& param : state.params)
    {
        Fuzz::Require(param.value >= -1.0f && param.value <= 1.0f);
    }

    CMemDataObject saved;
    Fuzz::Require(first.model.Serialize(saved));
    CModel second;
    Fuzz::Require(second.model.Deserialize(saved));
    CSkinModelState restored;
    second.model.TakeState(restored);
    RequireSame(state, restored);
}

} // namespace

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    const std::string input(data + 1, data + size);
    constexpr int modes = 3;
    const int choice = data[0] % (modes + 1);
    if (choice == modes)
    {
        Check(Fuzz::CByteStream(input, texts));
    }
    else
    {
        CXmlDataObject xml("Root", choice);
        xml.LoadFromMemory(input.data(), input.size());
        Check(xml);
    }
    return 0;
}
