#include "Mirel/Math/TableFields.h"

#include <cstddef>
#include <string>

namespace Mirel::Math
{

using namespace Serialization;

namespace
{

constexpr const char* valuesKey = "values";
constexpr const char* countKey = "valueCount";

std::string ItemKey(std::size_t index)
{
    return "value" + std::to_string(index);
}

class CValuesWriter : public ISerialize
{
public:
    explicit CValuesWriter(const std::vector<float>& values_) : values(values_) {}

    bool Serialize(IWriteDataStream& stream) const override
    {
        bool ok = stream.Write(countKey, static_cast<int>(values.size()));
        for (std::size_t i = 0; i < values.size(); ++i)
        {
            ok = stream.Write(ItemKey(i).c_str(), values[i]) && ok;
        }
        return ok;
    }

private:
    const std::vector<float>& values;
};

class CValuesReader : public IDeSerialize
{
public:
    explicit CValuesReader(std::vector<float>& values_) : values(values_) {}

    bool Deserialize(const IReadDataStream& stream) override
    {
        int count = -1;
        if (!stream.Read(countKey, count) || static_cast<std::size_t>(count) != values.size())
        {
            return false;
        }
        for (std::size_t i = 0; i < values.size(); ++i)
        {
            stream.Read(ItemKey(i).c_str(), values[i]);
        }
        return true;
    }

private:
    std::vector<float>& values;
};

} // namespace

bool WriteTableValues(IWriteDataStream& stream, const std::vector<float>& values)
{
    return stream.Write(valuesKey, CValuesWriter(values));
}

bool ReadTableValues(const IReadDataStream& stream, std::vector<float>& values)
{
    CValuesReader reader(values);
    return stream.Read(valuesKey, reader);
}

} // namespace Mirel::Math
