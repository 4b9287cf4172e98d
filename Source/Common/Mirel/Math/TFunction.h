#pragma once

#include "Mirel/Math/FunctionsLibrary.h"
#include "Mirel/Math/IFunction.h"

namespace Mirel::Math
{

/// The class key of the object form of an elementary function of one variable.
template <float (*F)(float)>
inline constexpr const char* functionKey = nullptr;

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Identity> =
    "{83A9F6B1-2360-44f2-9EA2-C0A75A47A554}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Negate> =
    "{69196412-EAD8-45aa-B0F6-BD128B2E5E8E}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Square> =
    "{F31A0DDB-1670-420a-AA0B-4AED41271DBC}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::SquareRoot> =
    "{9BA5267D-D300-4315-8C25-BDF46423F139}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Exp> = "{40211AEA-B310-4254-BE94-B7E5B99CE707}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Log> = "{7367BBAB-A156-48b9-A512-4F1912C56839}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::NormExp> =
    "{FB1F81BF-F8E7-40ba-8EBE-403988A2E994}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::NormLog> =
    "{94E073D9-BACD-49be-B08C-A70980F5E84E}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::NormExp1> =
    "{8D0E0F88-5C79-4f48-AD24-1C6BE1A8904B}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::NormLog1> =
    "{10DF14BD-357A-4458-905B-369AD2FD8B21}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::NormExp2> =
    "{47C095AC-4502-4b60-97D3-B3D3F3A7A87A}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::NormLog2> =
    "{716AB1B3-FEA8-4dec-B3EA-99B1CCDF852D}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::NormExp3> =
    "{F9CA1474-22AE-400b-AFC8-D9A077738A81}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::NormLog3> =
    "{7F4CF089-3DF2-40e4-83F3-736603B40160}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::TodB> = "{9C5BC273-DBD2-4900-B2C7-BAA8A4284487}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::FromdB> =
    "{18C4A2D7-BD79-486a-B12E-B21F32FBBF0F}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Not> = "{F6D3F1CB-9FC7-414e-A0EF-A5D60928AC52}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Cos> = "{8D84EA0E-1D78-4169-96A2-A6C37A8ACD46}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Sin> = "{50F1B4E0-13CD-42b1-AD49-4D63F0CF2432}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Tan> = "{4E0F4888-B561-4e5a-9563-315B667D1E18}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Cosh> = "{83C7C189-D7BB-4b92-899F-892D82545E44}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Sinh> = "{07429AE8-D018-4df8-B2F3-C9534773818F}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Tanh> = "{37350F24-0D6A-43ac-BAF2-EC78838DA237}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Floor> = "{D40F8690-718C-4618-8C0F-0557C0DE4093}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Ceil> = "{BC7532AE-67AC-4498-9173-B49FBADBBCD8}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Round> = "{D5FB4F0A-614D-422e-877F-87FB9894ADCB}";

template <>
inline constexpr const char* functionKey<&FunctionsLibrary::Abs> = "{7D162F87-5903-4052-9DE6-1A40211A5812}";

/// An elementary function of one variable as an object. F is one of FunctionsLibrary, known to the compiler,
/// so that an evaluation is one virtual call. Any thread.
template <float (*F)(float)>
class TFunction : public IFunction
{
public:
    static constexpr const char* classKey = functionKey<F>;

    const char* GetTypeKey() const override { return classKey; }
    TFunction* Clone() const override { return new TFunction(); }
    float operator()(float x) const override { return F(x); }

    bool Serialize(Serialization::IWriteDataStream&) const override { return true; }
    bool Deserialize(const Serialization::IReadDataStream&) override { return true; }
};

/// The one object of F that all share who need not own theirs. Any thread.
template <float (*F)(float)>
const IFunction& SharedFunction()
{
    static const TFunction<F> function;
    return function;
}

} // namespace Mirel::Math
