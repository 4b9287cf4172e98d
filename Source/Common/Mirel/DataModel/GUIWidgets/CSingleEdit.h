#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/DataModel/Controls/CParamControl.h"

namespace Mirel::DataModel::GUIWidgets
{

/// The gesture of a single change, for the time of this object; none if the control has one open already,
/// such as that of a drag, which goes on. The change may destroy the control. GUI thread.
class CSingleEdit
{
public:
    /// life: of who changes, and has the control or goes with it.
    CSingleEdit(Controls::CParamControl& control_, const Core::CLifeToken& life)
        : control(control_),
          watch(life),
          isOwn(!control_.GetEditCapture().IsCaptured())
    {
        if (isOwn)
        {
            control.BeginEdit();
        }
    }
    CSingleEdit(const CSingleEdit&) = delete;
    CSingleEdit& operator=(const CSingleEdit&) = delete;
    ~CSingleEdit()
    {
        if (isOwn && IsAlive())
        {
            control.EndEdit();
        }
    }

    /// False once the change has destroyed who made it.
    bool IsAlive() const { return watch.IsAlive(); }

private:
    Controls::CParamControl& control;
    Core::CLifeToken::CWatch watch;
    bool isOwn;
};

} // namespace Mirel::DataModel::GUIWidgets
