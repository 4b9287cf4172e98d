#pragma once

#include "Mirel/Math/TBinaryFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/Runtime/CObjectsFactory.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace Mirel::Math
{

/// A new function of that class key; null if there is none.
template <class I>
std::unique_ptr<I> CreateFunction(const char* key)
{
    return std::unique_ptr<I>(static_cast<I*>(Runtime::CObjectsFactory::Instance().Create(key, I::classKey)));
}

struct CFunctionRow
{
    const char* name;
    const char* key;
    double (*value)(double x); ///< What the function is, in double precision.
    double scale;              ///< The size of the numbers that a result near 0 is the difference of.
};

struct CBinaryFunctionRow
{
    const char* name;
    const char* key;
    double (*value)(double x, double y);
};

inline const CFunctionRow functionRows[] = {
    {"Identity", "{83A9F6B1-2360-44f2-9EA2-C0A75A47A554}", [](double x) -> double { return x; }, 0.0},
    {"Negate", "{69196412-EAD8-45aa-B0F6-BD128B2E5E8E}", [](double x) -> double { return -x; }, 0.0},
    {"Square", "{F31A0DDB-1670-420a-AA0B-4AED41271DBC}", [](double x) -> double { return x * x; }, 0.0},
    {"SquareRoot", "{9BA5267D-D300-4315-8C25-BDF46423F139}",
     [](double x) -> double { return x <= 0 ? 0 : std::sqrt(x); }, 0.0},
    {"Exp", "{40211AEA-B310-4254-BE94-B7E5B99CE707}", [](double x) -> double { return std::exp(x); }, 0.0},
    {"Log", "{7367BBAB-A156-48b9-A512-4F1912C56839}", [](double x) -> double { return std::log(x); }, 0.0},
    {"NormExp", "{FB1F81BF-F8E7-40ba-8EBE-403988A2E994}", [](double x) -> double { return std::exp2(x) - 1; },
     1.0},
    {"NormLog", "{94E073D9-BACD-49be-B08C-A70980F5E84E}", [](double x) -> double { return std::log2(x + 1); },
     1.0},
    {"NormExp1", "{8D0E0F88-5C79-4f48-AD24-1C6BE1A8904B}",
     [](double x) -> double { return (std::pow(11.0, x) - 1) / 10; }, 1.0},
    {"NormLog1", "{10DF14BD-357A-4458-905B-369AD2FD8B21}",
     [](double x) -> double { return std::log(10 * x + 1) / std::log(11.0); }, 1.0},
    {"NormExp2", "{47C095AC-4502-4b60-97D3-B3D3F3A7A87A}",
     [](double x) -> double { return (std::pow(101.0, x) - 1) / 100; }, 1.0},
    {"NormLog2", "{716AB1B3-FEA8-4dec-B3EA-99B1CCDF852D}",
     [](double x) -> double { return std::log(100 * x + 1) / std::log(101.0); }, 1.0},
    {"NormExp3", "{F9CA1474-22AE-400b-AFC8-D9A077738A81}",
     [](double x) -> double { return (std::pow(1001.0, x) - 1) / 1000; }, 1.0},
    {"NormLog3", "{7F4CF089-3DF2-40e4-83F3-736603B40160}",
     [](double x) -> double { return std::log(1000 * x + 1) / std::log(1001.0); }, 1.0},
    {"TodB", "{9C5BC273-DBD2-4900-B2C7-BAA8A4284487}", [](double x) -> double { return 20 * std::log10(x); },
     0.0},
    {"FromdB", "{18C4A2D7-BD79-486a-B12E-B21F32FBBF0F}",
     [](double x) -> double { return std::pow(10.0, x / 20); }, 0.0},
    {"Not", "{F6D3F1CB-9FC7-414e-A0EF-A5D60928AC52}", [](double x) -> double { return x == 0 ? 1 : 0; }, 0.0},
    {"Cos", "{8D84EA0E-1D78-4169-96A2-A6C37A8ACD46}", [](double x) -> double { return std::cos(x); }, 1.0},
    {"Sin", "{50F1B4E0-13CD-42b1-AD49-4D63F0CF2432}", [](double x) -> double { return std::sin(x); }, 1.0},
    {"Tan", "{4E0F4888-B561-4e5a-9563-315B667D1E18}", [](double x) -> double { return std::tan(x); }, 1.0},
    {"Cosh", "{83C7C189-D7BB-4b92-899F-892D82545E44}", [](double x) -> double { return std::cosh(x); }, 0.0},
    {"Sinh", "{07429AE8-D018-4df8-B2F3-C9534773818F}", [](double x) -> double { return std::sinh(x); }, 0.0},
    {"Tanh", "{37350F24-0D6A-43ac-BAF2-EC78838DA237}", [](double x) -> double { return std::tanh(x); }, 0.0},
    {"Floor", "{D40F8690-718C-4618-8C0F-0557C0DE4093}", [](double x) -> double { return std::floor(x); },
     0.0},
    {"Ceil", "{BC7532AE-67AC-4498-9173-B49FBADBBCD8}", [](double x) -> double { return std::ceil(x); }, 0.0},
    {"Round", "{D5FB4F0A-614D-422e-877F-87FB9894ADCB}", [](double x) -> double { return std::round(x); },
     0.0},
    {"Abs", "{7D162F87-5903-4052-9DE6-1A40211A5812}", [](double x) -> double { return std::abs(x); }, 0.0},
};

inline const CBinaryFunctionRow binaryFunctionRows[] = {
    {"Average", "{9038848C-7E52-4f6e-AE4A-ED90434DA85A}",
     [](double x, double y) -> double { return (x + y) / 2; }},
    {"Max", "{B48E24EF-CB0D-4bc6-B55E-370474A89CE7}",
     [](double x, double y) -> double { return std::max(x, y); }},
    {"Min", "{95C6E20A-3D3C-4087-AE9E-33900A0BE55C}",
     [](double x, double y) -> double { return std::min(x, y); }},
    {"Sum", "{A5E6BA89-DBC5-4659-BCAB-6CAD11C0FDB3}", [](double x, double y) -> double { return x + y; }},
    {"Difference", "{B32E9916-D75D-4a9f-B240-C07B49A87E16}",
     [](double x, double y) -> double { return x - y; }},
    {"Product", "{6CD1764A-CCA1-4872-B522-E5D286388A08}", [](double x, double y) -> double { return x * y; }},
    {"Power", "{F9BD87B6-6B43-4678-BF35-84EB34DC47C2}",
     [](double x, double y) -> double { return std::pow(x, y); }},
    {"Division", "{B5669294-5F80-4c67-B405-5D4B61363532}",
     [](double x, double y) -> double { return x / y; }},
    {"Module", "{5300A115-1DD0-4694-B21A-6D6E1232AF8A}",
     [](double x, double y) -> double { return std::hypot(x, y); }},
    {"Distance", "{9704DD1D-629D-45ea-AB62-D54657D47EC9}",
     [](double x, double y) -> double { return std::abs(x - y); }},
    {"Equality", "{63B8D979-D152-438a-87B6-B48231AA2B6E}",
     [](double x, double y) -> double { return x == y ? 1 : 0; }},
    {"NotEqual", "{BA4B3571-18B4-41af-90BE-C43889CFB186}",
     [](double x, double y) -> double { return x == y ? 0 : 1; }},
    {"LowerThan", "{A8DC6D2E-36B4-4c13-859A-A79594E40ABA}",
     [](double x, double y) -> double { return x < y ? 1 : 0; }},
    {"LowerThanEqual", "{AEE0F237-8EEC-43fc-B440-EFA3DC05AA2E}",
     [](double x, double y) -> double { return x <= y ? 1 : 0; }},
    {"GreaterThan", "{7C4EE5B2-03D0-4d5c-A040-35E565535C0A}",
     [](double x, double y) -> double { return x > y ? 1 : 0; }},
    {"GreaterThanEqual", "{1840E00F-B2A7-46e7-B48B-79ECC2E61AEA}",
     [](double x, double y) -> double { return x >= y ? 1 : 0; }},
    {"And", "{CB069C1A-0CF5-46e2-B43F-E0DDDCDC739F}",
     [](double x, double y) -> double { return x != 0 && y != 0 ? 1 : 0; }},
    {"Or", "{31547569-62DE-4f2d-817B-E272ACD7E188}",
     [](double x, double y) -> double { return x != 0 || y != 0 ? 1 : 0; }},
    {"X", "{665E9CCB-3130-40d1-A010-CF45501EF826}", [](double x, double) -> double { return x; }},
    {"Y", "{5B8476AC-CC3B-4cd5-9F3B-3AB71CE7E2D0}", [](double, double y) -> double { return y; }},
};

} // namespace Mirel::Math
