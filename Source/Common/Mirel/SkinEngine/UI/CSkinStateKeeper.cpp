#include "Mirel/SkinEngine/UI/CSkinStateKeeper.h"

namespace Mirel::SkinEngine
{

void CSkinStateKeeper::Keep(const CSkinModel& model, const std::string& path)
{
    model.TakeState(state);
    leftBy = path;
}

void CSkinStateKeeper::Restore(CSkinModel& model, const std::string& path)
{
    if (!leftBy.empty() && leftBy != path)
    {
        state.Clear();
    }
    model.RestoreState(state);
}

bool CSkinStateKeeper::Save(Serialization::IWriteDataStream& stream, const CSkinModel* model) const
{
    const bool hasVersion = stream.Write("version", version);
    if (model == nullptr)
    {
        return stream.Write("state", static_cast<const Serialization::ISerialize&>(state)) && hasVersion;
    }
    CSkinModelState present;
    model->TakeState(present);
    return stream.Write("state", static_cast<const Serialization::ISerialize&>(present)) && hasVersion;
}

bool CSkinStateKeeper::Load(const Serialization::IReadDataStream& stream)
{
    int readVersion = 0;
    stream.Read("version", readVersion);
    leftBy.clear();
    if (readVersion < version)
    {
        return state.Deserialize(stream); // its fields stand side by side with the version
    }
    state.Clear();
    return stream.Read("state", static_cast<Serialization::IDeSerialize&>(state));
}

} // namespace Mirel::SkinEngine
