// A tree of functions read from an XML document, or from a stream that makes up its answers from the input's
// bytes and so builds trees that no document of the corpus has.

#include "Mirel/Core/NewText.h"
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
#include <cstring>
#include <iterator>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

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

/// Answers every read with the next bytes of the input, until they are used up. Texts are class keys.
class CByteStream : public IReadDataStream
{
public:
    explicit CByteStream(std::string_view bytes_) : bytes(bytes_) {}

    bool Read(const char*, bool& value) const override
    {
        value = Next() % 8 == 0;
        return !bytes.empty();
    }

    bool Read(const char* key, int& value) const override
    {
        const int byte = Next();
        value = byte % 9 - 1;
        const bool isCount = std::strstr(key, "Count") != nullptr && std::strcmp(key, "pointsCount") != 0;
        if (isCount && byte > 250)
        {
            value = 1 << (byte % 32); // beyond the limits, too
        }
        return !bytes.empty();
    }

    bool Read(const char*, float& value) const override
    {
        const float limit = std::numeric_limits<float>::infinity();
        const float odd[] = {std::numeric_limits<float>::quiet_NaN(), limit, -limit, 1e-45f, 3e38f, -0.0f};
        const auto byte = static_cast<std::size_t>(Next());
        value = byte < std::size(odd) ? odd[byte] : static_cast<float>(byte) - 100.0f;
        return !bytes.empty();
    }

    bool Read(const char*, double&) const override { return false; }

    bool Read(const char*, char*& value) const override
    {
        value = NewText(classKeys[static_cast<std::size_t>(Next()) % std::size(classKeys)]);
        return true;
    }

    bool Read(const char*, void*&, unsigned&) const override { return false; }

    bool Read(const char*, IDeSerialize& object) const override
    {
        constexpr int maxDepth = 128;
        if (bytes.empty() || depth == maxDepth)
        {
            return false;
        }
        ++depth;
        const bool read = object.Deserialize(*this);
        --depth;
        return read;
    }

    bool Exists(const char*) const override { return Next() % 8 != 0; }

private:
    int Next() const
    {
        if (bytes.empty())
        {
            return 0;
        }
        const auto byte = static_cast<unsigned char>(bytes.front());
        bytes.remove_prefix(1);
        return byte;
    }

    mutable std::string_view bytes;
    mutable int depth = 0;
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
        Use<IFunction>(CByteStream(input));
        Use<IBinaryFunction>(CByteStream(input));
        Use<IConstant>(CByteStream(input));
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
