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
    CSkinModelState present;
    if (model != nullptr)
    {
        model->TakeState(present);
    }
    const Serialization::ISerialize& saved = model == nullptr ? state : present;
    const bool hasVersion = stream.Write("version", version);
    return stream.Write("state", saved) && hasVersion;
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
