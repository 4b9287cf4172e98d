#pragma once

#include "Mirel/Math/IFunction.h"

#include <functional>
#include <utility>

namespace WidgetGallery
{

/// A function made of any code. It is shown, and never saved.
class CDemoFunction : public Mirel::Math::IFunction
{
public:
    explicit CDemoFunction(std::function<float(float)> code_) : code(std::move(code_)) {}

    float operator()(float x) const override { return code(x); }
    const char* GetTypeKey() const override { return "{7A60C1B4-3E52-4d0f-9A0C-51C2F60E8D11}"; }
    CDemoFunction* Clone() const override { return new CDemoFunction(*this); }
    bool Serialize(Mirel::Serialization::IWriteDataStream& /*stream*/) const override { return false; }
    bool Deserialize(const Mirel::Serialization::IReadDataStream& /*stream*/) override { return false; }

private:
    std::function<float(float)> code;
};

} // namespace WidgetGallery
