#pragma once

#include "AAXPlugin/Interface/IAAXAutomationDelegate.h"
#include "AAXPlugin/Interface/IAAXController.h"
#include "AAXPlugin/Interface/TACFReference.h"

/// The plug-in's handle of an instance's controller. Operations on one that holds nothing give Failed and
/// leave what they should fill in alone.
class AAX_VController
{
public:
    AAX_VController() = default;

    /// Asks the host's object for its controller; holds nothing if it is none.
    explicit AAX_VController(IACFUnknown* host);

    explicit operator bool() const { return static_cast<bool>(controller); }

    std::int32_t GetInputStemFormat(std::uint32_t* format) const;
    std::int32_t GetOutputStemFormat(std::uint32_t* format) const;
    std::int32_t GetSampleRate(double* sampleRate) const;
    std::int32_t SetSignalLatency(std::int32_t samples);
    std::int32_t PostPacket(std::uint32_t field, const void* payload, std::uint32_t size);

    /// Holds nothing if the host records no automation.
    TACFReference<IAAXAutomationDelegate> GetAutomationDelegate() const;

private:
    TACFReference<IAAXController> controller;
};
