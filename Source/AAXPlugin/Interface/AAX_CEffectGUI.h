#pragma once

#include "AAXPlugin/Interface/AAX_IEffectGUI.h"
#include "AAXPlugin/Interface/AAX_IEffectParameters.h"
#include "AAXPlugin/Interface/AAX_VViewContainer.h"
#include "AAXPlugin/Interface/CACFUnknown.h"

/// An editor object without an editor: keeps the instance's parameters object and the view container, and
/// calls the derived class when there is a view to fill. GUI thread only. Its operations are the plug-in's
/// own code: what a derived class throws must be caught there.
class AAX_CEffectGUI : public TACFObject<AAX_IEffectGUI>
{
public:
    /// Failed if the host's object offers no parameters object, or on a second call.
    std::int32_t Initialize(IACFUnknown* host) override;
    std::int32_t Uninitialize() override;
    std::int32_t SetViewContainer(IACFUnknown* container) override;
    std::int32_t GetViewSize(SAAXViewSize* size) override;
    std::int32_t TimerWakeup() override;

protected:
    /// Null before Initialize and after Uninitialize.
    AAX_IEffectParameters* GetEffectParameters() const { return parameters.Get(); }
    AAX_VViewContainer& GetViewContainer() { return viewContainer; }

    /// Fills the container's view; deletes what is in it. Called in turns by the operations above.
    virtual void CreateViewContents() = 0;
    virtual void DeleteViewContents() = 0;

private:
    TACFReference<AAX_IEffectParameters> parameters;
    AAX_VViewContainer viewContainer;
};
