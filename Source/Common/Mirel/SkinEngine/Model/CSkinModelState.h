#pragma once

#include "Mirel/Math/IFunction.h"
#include "Mirel/Serialization/DataStreams.h"

#include <memory>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

/// A snapshot of the persistent objects of a model, by identifier. Belongs to one thread.
class CSkinModelState : public Serialization::ISerializable
{
public:
    /// One object's value. A function may be null.
    template <class T>
    struct TItem
    {
        std::string name;
        T value;
    };

    using CParam = TItem<float>;
    using CCurve = TItem<std::unique_ptr<const Math::IFunction>>;
    using CSurface = TItem<std::unique_ptr<const Math::IBinaryFunction>>;
    using CString = TItem<std::string>;
    using CCollection = TItem<int>;

    std::vector<CParam> params;
    std::vector<CCurve> curves;
    std::vector<CSurface> surfaces;
    std::vector<CString> strings;
    std::vector<CCollection> collections; ///< Named by the collection's id and ".count".

    void Clear();

    /// Writes the present version of the form.
    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// Clears and reads what is there; items without a name or a value are left out. A state of before
    /// version 2 has no collections. False if a list is missing or goes on for longer than there are items.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;
};

} // namespace Mirel::SkinEngine
