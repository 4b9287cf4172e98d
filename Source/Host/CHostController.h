#pragma once

#include "AAXPlugin/Interface/AAX_IEffectParameters.h"
#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXAutomationDelegate.h"
#include "AAXPlugin/Interface/IAAXController.h"
#include "Host/CDataInPorts.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <string>

namespace Host
{

/// What a plug-in posted to the automation of its host.
struct CAutomationPost
{
    enum class EKind
    {
        Touch,
        Release,
        Value
    };

    EKind kind;
    std::int32_t parameter; ///< Its index; -1 for an identifier that the instance does not have.
    double normalized;      ///< Of a value.
};

/// The host of one instance: tells it channels and rate, takes its packets and latency, and keeps what it
/// posts to automation. Any thread, with the exceptions told.
class CHostController : public TACFObject<IAAXController, IAAXAutomationDelegate>
{
public:
    CHostController(std::uint32_t inputFormat_, std::uint32_t outputFormat_, double sampleRate_);

    std::int32_t GetInputStemFormat(std::uint32_t* format) override;
    std::int32_t GetOutputStemFormat(std::uint32_t* format) override;
    std::int32_t GetSampleRate(double* rate) override;
    std::int32_t SetSignalLatency(std::int32_t samples) override;
    std::int32_t PostPacket(std::uint32_t field, const void* payload, std::uint32_t size) override;

    std::int32_t PostTouch(const char* parameterId) override;
    std::int32_t PostRelease(const char* parameterId) override;
    std::int32_t PostValue(const char* parameterId, double normalized) override;

    /// Whose parameters they are; not owned. Before the plug-in posts, and null before that object goes.
    void SetParameters(AAX_IEffectParameters* parameters_) { parameters = parameters_; }

    /// With false a posted value is only kept, and AnswerPosts gives it to the parameters; with true, as at
    /// first, it is given before the post returns.
    void SetAnswersAtOnce(bool answersAtOnce_)
    {
        answersAtOnce.store(answersAtOnce_, std::memory_order_relaxed);
    }
    void AnswerPosts();

    CDataInPorts& GetPorts() { return ports; }
    std::int32_t GetLatency() const { return latency.load(std::memory_order_relaxed); }

    /// All posts since the last call, oldest first; of more than 4096 the first. While nobody posts.
    std::vector<CAutomationPost> TakePosts();

private:
    static constexpr std::size_t MostPosts = 4096;

    std::int32_t Keep(CAutomationPost::EKind kind, const char* parameterId, double normalized);
    void Answer(const CAutomationPost& post);

    std::uint32_t inputFormat;
    std::uint32_t outputFormat;
    double sampleRate;
    std::atomic<std::int32_t> latency = 0;
    CDataInPorts ports;
    AAX_IEffectParameters* parameters = nullptr;
    std::atomic<bool> answersAtOnce = true;
    std::array<CAutomationPost, MostPosts> posts = {};
    std::atomic<std::size_t> postCount = 0;
    std::size_t answered = 0;
};

} // namespace Host
