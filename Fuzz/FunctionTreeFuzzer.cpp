// A tree of functions read from an XML document, or from a stream that makes up its answers from the input's
// bytes and so builds trees that no document of the corpus has.

#include "CByteStream.h"
#include "Mirel/Math/CBinaryFunctionComposition.h"
#include "Mirel/Math/CBinaryFunctionProxy.h"
#include "Mirel/Math/CBinaryFunctionsCombination.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CFunctionProxy.h"
#include "Mirel/Math/CFunctionsCombination.h"
#include "Mirel/Math/CFunctionsComposition.h"
#include "Mirel/Math/CSweptCurvesFunction.h"
#include "Mirel/Math/CSweptValues.h"
#include "Mirel/Math/TBinaryFunction.h"
#include "Mirel/Math/TDeprecatedCircularLUTFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/Math/TLUTFunction.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Require.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

namespace
{

using namespace Mirel::Math;
using namespace Mirel::Serialization;
using namespace Mirel::Core;

const char* const classKeys[] = {
    CFunctionsCombination::classKey,
    CFunctionsComposition::classKey,
    CFunctionProxy::classKey,
    CSweptValues::classKey,
    CSweptCurvesFunction::classKey,
    CBinaryFunctionComposition::classKey,
    CBinaryFunctionsCombination::classKey,
    CBinaryFunctionProxy::classKey,
    CConstantFunction::classKey,
    CConstantBinaryFunction::classKey,
    TLUTFunction<TLookupTable<float, TLinearInterpolator<float, float>>>::classKey,
    TLUTFunction<TLookupTable<float, TNearestInterpolator<float, float>>>::classKey,
    TLUTFunction<TLookupTable<float, TConstrainedSplineInterpolator<float, float>>>::classKey,
    "{AAC13163-0B6E-4a60-A1BE-257878A0B336}",
    "{C2D27847-1FD3-461e-9E92-922EAE3D07E2}",
    TFunction<&FunctionsLibrary::Exp>::classKey,
    TFunction<&FunctionsLibrary::Round>::classKey,
    TBinaryFunction<&FunctionsLibrary::Division>::classKey,
    TBinaryFunction<&FunctionsLibrary::Sum>::classKey,
    "{never registered}",
};

template <class I>
std::unique_ptr<I> ReadFunction(const IReadDataStream& stream)
{
    TRuntimeDeSerializer<I> reader;
    stream.Read("f", static_cast<IDeSerialize&>(reader));
    return std::unique_ptr<I>(reader.Detach());
}

bool IsSame(float a, float b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

const float points[] = {-1e30f,
                        -3.0f,
                        -0.4f,
                        0.0f,
                        1.0f,
                        2e9f,
                        std::numeric_limits<float>::infinity(),
                        std::numeric_limits<float>::quiet_NaN()};

void RequireSame(const IFunction& a, const IFunction& b)
{
    for (const float x : points)
    {
        Fuzz::Require(IsSame(a(x), b(x)));
    }
}

void RequireSame(const IBinaryFunction& a, const IBinaryFunction& b)
{
    for (const float x : points)
    {
        for (const float y : points)
        {
            Fuzz::Require(IsSame(a(x, y), b(x, y)));
        }
    }
}

void RequireSame(const IConstant& a, const IConstant& b)
{
    Fuzz::Require(IsSame(a(), b()));
}

/// What was read can be evaluated anywhere, and so can its clone and what is read back from it.
template <class I>
void Use(const IReadDataStream& stream)
{
    const auto function = ReadFunction<I>(stream);
    if (function == nullptr)
    {
        return;
    }
    const std::unique_ptr<I> clone(function->Clone());
    RequireSame(*function, *clone);
    CMemDataObject saved;
    Fuzz::Require(saved.Write("f", CTypeSerializer(function.get())));
    const auto read = ReadFunction<I>(saved);
    Fuzz::Require(read != nullptr);
    RequireSame(*function, *read);
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
        Use<IFunction>(Fuzz::CByteStream(input, classKeys));
        Use<IBinaryFunction>(Fuzz::CByteStream(input, classKeys));
        Use<IConstant>(Fuzz::CByteStream(input, classKeys));
    }
    else
    {
        CXmlDataObject xml("Root", choice);
        xml.LoadFromMemory(input.data(), input.size());
        Use<IFunction>(xml);
        Use<IBinaryFunction>(xml);
        Use<IConstant>(xml);
    }
    return 0;
}
