#pragma once

#include "AAXPlugin/Interface/AAX_ViewSize.h"
#include "AAXPlugin/Interface/IACFUnknown.h"

#include <cstdint>

/// The editor of one instance. The plug-in's object, made by its creation procedure; it comes and goes while
/// the instance runs. GUI thread only, always the same one.
///
/// Life: Initialize once; view containers come and go; Uninitialize before the last reference goes.
class AAX_IEffectGUI : public IACFUnknown
{
public:
    /// `host` offers AAX_IEffectParameters: the parameters object of the instance.
    virtual std::int32_t Initialize(IACFUnknown* host) = 0;

    /// Takes the view contents down, if any are up.
    virtual std::int32_t Uninitialize() = 0;

    /// Fills the view of the container (IAAXViewContainer), after taking down what filled the one before.
    /// Null takes down only.
    virtual std::int32_t SetViewContainer(IACFUnknown* container) = 0;

    /// 0 by 0 while no editor is open. Failed for a null argument.
    virtual std::int32_t GetViewSize(SAAXViewSize* size) = 0;

    /// The host has time for the editor; to be called every few milliseconds, or whenever the descriptor of
    /// IEditorTools is readable.
    virtual std::int32_t TimerWakeup() = 0;

protected:
    ~AAX_IEffectGUI() = default;
};
