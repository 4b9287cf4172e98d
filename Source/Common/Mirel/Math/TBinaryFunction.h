#pragma once

#include "Mirel/Math/FunctionsLibrary.h"
#include "Mirel/Math/IFunction.h"

namespace Mirel::Math
{

/// The class key of the object form of an elementary function of two variables.
template <float (*F)(float, float)>
inline constexpr const char* binaryFunctionKey = nullptr;

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Average> =
    "{9038848C-7E52-4f6e-AE4A-ED90434DA85A}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Max> =
    "{B48E24EF-CB0D-4bc6-B55E-370474A89CE7}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Min> =
    "{95C6E20A-3D3C-4087-AE9E-33900A0BE55C}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Sum> =
    "{A5E6BA89-DBC5-4659-BCAB-6CAD11C0FDB3}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Difference> =
    "{B32E9916-D75D-4a9f-B240-C07B49A87E16}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Product> =
    "{6CD1764A-CCA1-4872-B522-E5D286388A08}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Power> =
    "{F9BD87B6-6B43-4678-BF35-84EB34DC47C2}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Division> =
    "{B5669294-5F80-4c67-B405-5D4B61363532}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Module> =
    "{5300A115-1DD0-4694-B21A-6D6E1232AF8A}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Distance> =
    "{9704DD1D-629D-45ea-AB62-D54657D47EC9}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Equality> =
    "{63B8D979-D152-438a-87B6-B48231AA2B6E}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::NotEqual> =
    "{BA4B3571-18B4-41af-90BE-C43889CFB186}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::LowerThan> =
    "{A8DC6D2E-36B4-4c13-859A-A79594E40ABA}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::LowerThanEqual> =
    "{AEE0F237-8EEC-43fc-B440-EFA3DC05AA2E}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::GreaterThan> =
    "{7C4EE5B2-03D0-4d5c-A040-35E565535C0A}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::GreaterThanEqual> =
    "{1840E00F-B2A7-46e7-B48B-79ECC2E61AEA}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::And> =
    "{CB069C1A-0CF5-46e2-B43F-E0DDDCDC739F}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Or> =
    "{31547569-62DE-4f2d-817B-E272ACD7E188}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::X> =
    "{665E9CCB-3130-40d1-A010-CF45501EF826}";

template <>
inline constexpr const char* binaryFunctionKey<&FunctionsLibrary::Y> =
    "{5B8476AC-CC3B-4cd5-9F3B-3AB71CE7E2D0}";

/// An elementary function of two variables as an object. F is one of FunctionsLibrary, known to the compiler,
/// so that an evaluation is one virtual call. Any thread.
template <float (*F)(float, float)>
class TBinaryFunction : public IBinaryFunction
{
public:
    static constexpr const char* classKey = binaryFunctionKey<F>;

    const char* GetTypeKey() const override { return classKey; }
    TBinaryFunction* Clone() const override { return new TBinaryFunction(); }
    float operator()(float x, float y) const override { return F(x, y); }

    bool Serialize(Serialization::IWriteDataStream&) const override { return true; }
    bool Deserialize(const Serialization::IReadDataStream&) override { return true; }
};

/// The one object of F that all share who need not own theirs. Any thread.
template <float (*F)(float, float)>
const IBinaryFunction& SharedBinaryFunction()
{
    static const TBinaryFunction<F> function;
    return function;
}

} // namespace Mirel::Math
