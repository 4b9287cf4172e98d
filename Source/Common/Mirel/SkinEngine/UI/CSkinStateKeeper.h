#pragma once

#include "Mirel/SkinEngine/Model/CSkinModel.h"

#include <string>

namespace Mirel::SkinEngine
{

/// The values of a skin's persistent objects while no skin is loaded: what the last one left, or what was
/// read for the next one. GUI thread only.
class CSkinStateKeeper
{
public:
    /// The version of a saved state.
    static constexpr int version = 2;

    /// What the skin of that path leaves, for when it is loaded again.
    void Keep(const CSkinModel& model, const std::string& path);

    /// Gives the model what is kept for the skin of that path; a state that another skin left is forgotten.
    void Restore(CSkinModel& model, const std::string& path);

    /// Writes the model's values, or what is kept if the model is null.
    bool Save(Serialization::IWriteDataStream& stream, const CSkinModel* model) const;

    /// Keeps what is read, for whichever skin comes next. Without a state in the stream, false, none is kept.
    bool Load(const Serialization::IReadDataStream& stream);

private:
    CSkinModelState state;
    std::string leftBy; ///< The skin that left the state; empty for one that was read.
};

} // namespace Mirel::SkinEngine
