#pragma once

#include "Mirel/Audio/Plugin/PluginParams.h"
#include "Mirel/DataModel/Objects/IParamInfo.h"
#include "Mirel/Serialization/DataStreams.h"

namespace Mirel::Audio::Plugin
{

/// The values of the input parameters behind the bypass as they stand in a state: "paramCount", "param0" and
/// so on. Any thread.
class CInputParamsSerializer : public Serialization::ISerializable
{
public:
    /// Descriptions and parameters in the same order, the bypass first; not owned.
    CInputParamsSerializer(const Containers::TIConstVector<DataModel::Objects::IParamInfo>& infos_,
                           IInputParams& params_)
        : infos(&infos_),
          params(&params_)
    {
    }

    /// Writes nothing, and is content with that, if there is only the bypass.
    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// A value that is missing or malformed becomes the default, so that a state leaves nothing of the one
    /// before it. NaN leaves the value. True if all were there.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

private:
    int GetCount() const;

    const Containers::TIConstVector<DataModel::Objects::IParamInfo>* infos;
    IInputParams* params;
};

} // namespace Mirel::Audio::Plugin
