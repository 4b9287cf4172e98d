#pragma once

#include "AAXPlugin/ChunkIds.h"
#include "AAXPlugin/Interface/ACFExports.h"
#include "AAXPlugin/ProcessFields.h"
#include "Host/CHostInstance.h"
#include "Host/CRecordingHost.h"
#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace Tests
{

/// The plug-in that is linked into the tests, registered with a host: makes instances whose inside a test can
/// reach.
class CInProcessPlugin
{
public:
    CInProcessPlugin()
    {
        void* out = nullptr;
        EXPECT_EQ(ACFRegisterPlugin(static_cast<IAAXHost*>(host.Get()), &out), 0);
        definition = TACFReference<IAAXPluginDefinition>::Adopt(static_cast<IAAXPluginDefinition*>(out));
    }

    std::unique_ptr<Host::CHostInstance> Make(const Host::CInstanceSetup& setup = {})
    {
        std::string error;
        auto instance = Host::CHostInstance::Make(*host->GetCollections().front(), setup, error);
        EXPECT_NE(instance, nullptr) << error;
        return instance;
    }

private:
    TACFReference<Host::CRecordingHost> host =
        TACFReference<Host::CRecordingHost>::Adopt(new Host::CRecordingHost);
    TACFReference<IAAXPluginDefinition> definition;
};

inline Mirel::Audio::Plugin::CAudioPluginInternalsBase& InternalsOf(Host::CHostInstance& instance)
{
    Mirel::Audio::Plugin::CAudioPluginInternalsBase* internals = nullptr;
    std::uint32_t written = 0;
    EXPECT_EQ(instance.GetParameters().GetCustomData(MirelExt::AAXPlugin::InternalsDataId,
                                                     MirelExt::AAXPlugin::PointerPacketSize, &internals,
                                                     &written),
              0);
    return *internals;
}

/// Buffers of as many channels, and the arrays of pointers that a host hands over.
class CChannels
{
public:
    CChannels(int channels, std::size_t samples)
        : buffers(static_cast<std::size_t>(channels), std::vector<float>(samples))
    {
        for (std::vector<float>& buffer : buffers)
        {
            pointers.push_back(buffer.data());
        }
    }
    CChannels(const CChannels&) = delete;
    CChannels& operator=(const CChannels&) = delete;

    float* const* Get() const { return pointers.data(); }
    std::vector<float>& operator[](std::size_t channel) { return buffers[channel]; }
    std::size_t GetCount() const { return buffers.size(); }

    void Fill(float value)
    {
        for (std::vector<float>& buffer : buffers)
        {
            buffer.assign(buffer.size(), value);
        }
    }

private:
    std::vector<std::vector<float>> buffers;
    std::vector<float*> pointers;
};

inline std::vector<float> Evaluate(IPublishedCurves& curves, int curve, const std::vector<float>& x)
{
    std::vector<float> y(x.size());
    EXPECT_EQ(curves.EvaluateCurve(curve, x.data(), static_cast<std::int32_t>(x.size()), y.data()), 0);
    return y;
}

} // namespace Tests
