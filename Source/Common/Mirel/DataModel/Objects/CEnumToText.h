#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/DataModel/Objects/IParamValueToText.h"

#include <string>
#include <vector>

namespace Mirel::DataModel::Objects
{

/// Gives each whole value its name: the first value the first name, and so on. Values are rounded; one
/// without a name gives "Out Of Bounds".
class CEnumToText : public virtual IParamValueToText
{
public:
    explicit CEnumToText(std::vector<std::string> names_ = {}, float firstValue_ = 0.0F);

    /// A copy has no listeners.
    CEnumToText(const CEnumToText& other);
    CEnumToText& operator=(const CEnumToText&) = delete;
    ~CEnumToText() override = default;

    void ToText(float value, char*& text) const override;
    CEnumToText* Clone() const override { return new CEnumToText(*this); }

    /// Fires when a setter has changed something.
    Core::IEventProvider& GetChangedEventProvider() const { return changed; }

    int GetCount() const { return static_cast<int>(names.size()); }

    /// The name of that index; an index without a name gives an empty text. Valid until names change.
    const char* GetName(int index) const;

    /// Names an index, with empty names for those between the last and it. Null counts as empty. False for an
    /// index below 0 or of maxEnumNames and above.
    bool SetName(int index, const char* name);

    /// Takes the names up to maxEnumNames.
    void SetNames(std::vector<std::string> newNames);

    float GetFirstValue() const { return firstValue; }
    void SetFirstValue(float newFirstValue);

private:
    std::vector<std::string> names;
    float firstValue;
    mutable Core::CEventProvider changed; ///< Listening to a converter changes nothing of it.
};

} // namespace Mirel::DataModel::Objects
