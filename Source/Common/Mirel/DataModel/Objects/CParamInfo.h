#pragma once

#include "Mirel/Core/CCharString.h"
#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/DataModel/Objects/IParamInfo.h"

namespace Mirel::DataModel::Objects
{

/// The description of a parameter. A copy has no listeners and owns a clone of the converter; an assignment
/// is a CopyFrom.
class CParamInfo : public virtual IParamInfo
{
public:
    /// A real with the numbers 0 and empty texts.
    CParamInfo();

    /// Without a converter the description makes its own, which prints whole kinds with "%.0f" and reals with
    /// "%.2f". With owned it destroys the one given in the end.
    CParamInfo(int type_, float min_, float max_, float defaultValue_, const char* name_, const char* unit_,
               const char* comment_, IParamValueToText* valueToText_ = nullptr, bool owned_ = true);

    explicit CParamInfo(const IConstParamInfo& other);
    CParamInfo(const CParamInfo& other);
    CParamInfo& operator=(const CParamInfo& other);
    ~CParamInfo() override = default;

    const char* GetName() const override { return name.Get(); }
    const char* GetComment() const override { return comment.Get(); }
    Core::IEventProvider& GetChangedEventProvider() const override { return changed; }

    int GetType() const override { return type; }
    const char* GetUnit() const override { return unit.Get(); }
    const IParamValueToText& GetValueToText() const override { return *valueToText; }
    float GetMin() const override { return min; }
    float GetDefault() const override { return defaultValue; }
    float GetMax() const override { return max; }

    void SetType(int newType) override;
    void SetName(const char* newName) override;
    void SetUnit(const char* newUnit) override;
    void SetComment(const char* newComment) override;
    void SetMin(float newMin) override;
    void SetDefault(float newDefault) override;
    void SetMax(float newMax) override;
    void SetValueToText(IParamValueToText* newValueToText, bool owned) override;
    void CopyFrom(const IConstParamInfo& other) override;

private:
    void SetNumber(float& field, float newValue);
    void SetText(Core::CCharString& field, const char* newText);
    void HoldValueToText(IParamValueToText* newValueToText, bool owned);

    int type;
    Core::CCharString name;
    Core::CCharString unit;
    Core::CCharString comment;
    float min;
    float max;
    float defaultValue;
    Core::TOwnership<IParamValueToText> valueToText;
    mutable Core::CEventProvider changed; ///< Listening to a description changes nothing of it.
};

} // namespace Mirel::DataModel::Objects
