#pragma once

#include "Mirel/Core/TArgCommand.h"
#include "Mirel/SkinEngine/Model/ISkinModel.h"

namespace Mirel::SkinEngine
{

/// Shows the objects of one model in another by reference: those that the other's exposure wants, among them
/// those that come later, as the items of collections do, and for as long as they are there. GUI thread only.
class CModelImport
{
public:
    /// Neither is owned; both must outlive this object. What is in the target at its end stays there.
    CModelImport(ISkinModel& source_, ISkinModel& target_);
    CModelImport(const CModelImport&) = delete;
    CModelImport& operator=(const CModelImport&) = delete;
    ~CModelImport();

private:
    void OnAdded(const CDictionaryEntry& entry);
    void OnRemoved(const CDictionaryEntry& entry);

    using Command = Core::TArgCommand<CModelImport, const CDictionaryEntry&>;

    ISkinModel& source;
    ISkinModel& target;
    Command added{this, &CModelImport::OnAdded};
    Command removed{this, &CModelImport::OnRemoved};
};

} // namespace Mirel::SkinEngine
