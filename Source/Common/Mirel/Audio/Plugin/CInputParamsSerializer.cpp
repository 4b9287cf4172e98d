#include "Mirel/Audio/Plugin/CInputParamsSerializer.h"

#include "Mirel/Audio/Plugin/CParamValue.h"
#include "Mirel/Serialization/IndexedKey.h"

#include <algorithm>

namespace Mirel::Audio::Plugin
{

namespace
{

std::string KeyOf(int index)
{
    return Serialization::IndexedKey("param", index);
}

} // namespace

int CInputParamsSerializer::GetCount() const
{
    return std::min(infos->GetCount(), params->GetCount()) - 1;
}

bool CInputParamsSerializer::Serialize(Serialization::IWriteDataStream& stream) const
{
    const int count = GetCount();
    if (count <= 0)
    {
        return true;
    }
    bool written = stream.Write("paramCount", count);
    for (int i = 0; i < count; ++i)
    {
        written = stream.Write(KeyOf(i).c_str(), (*params)[i + 1].GetValue()) && written;
    }
    return written;
}

bool CInputParamsSerializer::Deserialize(const Serialization::IReadDataStream& stream)
{
    bool read = true;
    for (int i = 0; i < GetCount(); ++i)
    {
        const DataModel::Objects::IConstParamInfo& info = (*infos)[i + 1];
        float value = info.GetDefault();
        read = stream.Read(KeyOf(i).c_str(), value) && read;
        SetWithinRange((*params)[i + 1], info, value);
    }
    return read;
}

} // namespace Mirel::Audio::Plugin
