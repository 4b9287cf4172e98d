#include "Mirel/Core/TLookupTable.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/FunctionsLibrary.h"
#include "Mirel/Math/TBinaryFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/Math/TLUTFunction.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/Serialization/IndexedKey.h"
#include "StateRig.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using namespace Serialization;
using namespace Tests;
using Math::CConstantBinaryFunction;
using Math::CConstantFunction;

using CTable = Core::TLookupTable<float, Core::TLinearInterpolator<float, float>>;

std::unique_ptr<const Math::IFunction> AnyFunction()
{
    switch (*rc::gen::inRange(0, 3))
    {
    case 0:
        return std::make_unique<CConstantFunction>(static_cast<float>(*rc::gen::inRange(-100, 100)));
    case 1:
        return std::make_unique<Math::TFunction<&Math::FunctionsLibrary::Square>>();
    default:
        break;
    }
    auto table = std::make_unique<Math::TLUTFunction<CTable>>(CTable(-1.0f, 1.0f, *rc::gen::inRange(1, 40)));
    std::vector<float> values;
    for (int i = 0; i < table->GetTable().GetSize(); ++i)
    {
        values.push_back(static_cast<float>(*rc::gen::inRange(-1000, 1000)) / 8.0f);
    }
    table->SetValues(values);
    return table;
}

std::unique_ptr<const Math::IBinaryFunction> AnySurface()
{
    if (*rc::gen::arbitrary<bool>())
    {
        return std::make_unique<Math::TBinaryFunction<&Math::FunctionsLibrary::Product>>();
    }
    return std::make_unique<CConstantBinaryFunction>(static_cast<float>(*rc::gen::inRange(-100, 100)));
}

float AnyFiniteFloat()
{
    return std::bit_cast<float>(*rc::gen::suchThat(rc::gen::arbitrary<std::uint32_t>(), [](std::uint32_t bits)
                                                   { return (bits & 0x7F800000U) != 0x7F800000U; }));
}

std::string AnyText()
{
    return *rc::gen::container<std::string>(
        rc::gen::suchThat(rc::gen::inRange<char>(' ', '~'), [](char letter) { return letter != '\0'; }));
}

/// A model with some objects of each kind, whose values are all at rest.
struct CRig
{
    CRig(int params_, int curves_, int surfaces_, int strings_, int counts_)
    {
        for (int i = 0; i < params_; ++i)
        {
            params.push_back(&AddParam(model, Id("p", i).c_str()));
        }
        for (int i = 0; i < curves_; ++i)
        {
            curves.push_back(&AddCurve(model, Id("c", i).c_str()));
        }
        for (int i = 0; i < surfaces_; ++i)
        {
            surfaces.push_back(&AddSurface(model, Id("s", i).c_str()));
        }
        for (int i = 0; i < strings_; ++i)
        {
            strings.push_back(&AddString(model, Id("t", i).c_str()));
        }
        for (int i = 0; i < counts_; ++i)
        {
            counts.push_back(&AddCount(model, Id("n", i).c_str()));
        }
    }

    std::string Id(const char* kind, int index)
    {
        ids.push_back(IndexedKey(kind, index) + " [\"<&>\"]");
        return ids.back();
    }

    void MakeAllPersistent()
    {
        for (const std::string& id : ids)
        {
            ASSERT_TRUE(model.MakePersistent(id.c_str(), true));
        }
    }

    std::vector<std::string> ids;
    CSkinModel model;
    std::vector<CCaptureParam*> params;
    std::vector<CCaptureCurve*> curves;
    std::vector<CCaptureSurface*> surfaces;
    std::vector<CCaptureString*> strings;
    std::vector<CTestCount*> counts;
};

template <class Stream>
void CheckRoundTrip(Stream& stream)
{
    const auto sizes = *rc::gen::container<std::array<int, 5>>(rc::gen::inRange(0, 6));
    CRig source(sizes[0], sizes[1], sizes[2], sizes[3], sizes[4]);
    CRig target(sizes[0], sizes[1], sizes[2], sizes[3], sizes[4]);
    source.MakeAllPersistent();
    target.MakeAllPersistent();
    for (auto* param : source.params)
    {
        param->SetValue(AnyFiniteFloat());
    }
    for (auto* curve : source.curves)
    {
        curve->SetValue(*AnyFunction());
    }
    for (auto* surface : source.surfaces)
    {
        surface->SetValue(*AnySurface());
    }
    for (auto* string : source.strings)
    {
        string->SetValue(AnyText().c_str());
    }
    for (auto* count : source.counts)
    {
        count->SetCount(*rc::gen::arbitrary<int>());
    }
    RC_ASSERT(source.model.Serialize(stream));
    RC_ASSERT(target.model.Deserialize(stream));
    for (std::size_t i = 0; i < source.params.size(); ++i)
    {
        RC_ASSERT(target.params[i]->GetValue() == source.params[i]->GetValue());
    }
    for (std::size_t i = 0; i < source.curves.size(); ++i)
    {
        for (float x = -1.5f; x < 1.5f; x += 0.0625f)
        {
            RC_ASSERT(target.curves[i]->GetValue()(x) == source.curves[i]->GetValue()(x));
        }
    }
    for (std::size_t i = 0; i < source.surfaces.size(); ++i)
    {
        RC_ASSERT(target.surfaces[i]->GetValue()(2.0f, 3.0f) == source.surfaces[i]->GetValue()(2.0f, 3.0f));
    }
    for (std::size_t i = 0; i < source.strings.size(); ++i)
    {
        RC_ASSERT(std::string(target.strings[i]->GetValue()) == source.strings[i]->GetValue());
    }
    for (std::size_t i = 0; i < source.counts.size(); ++i)
    {
        RC_ASSERT(target.counts[i]->GetCount() == source.counts[i]->GetCount());
    }
}

RC_GTEST_PROP(CSkinModelState, ComesBackFromMemory, ())
{
    CMemDataObject stream;
    CheckRoundTrip(stream);
}

RC_GTEST_PROP(CSkinModelState, ComesBackFromXml, ())
{
    CXmlDataObject stream("Root");
    CheckRoundTrip(stream);
}

} // namespace
} // namespace Mirel::SkinEngine
