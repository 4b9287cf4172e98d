#include "Host/CHostController.h"

#include <algorithm>

namespace Host
{

CHostController::CHostController(std::uint32_t inputFormat_, std::uint32_t outputFormat_, double sampleRate_)
    : inputFormat(inputFormat_),
      outputFormat(outputFormat_),
      sampleRate(sampleRate_)
{
}

std::int32_t CHostController::GetInputStemFormat(std::uint32_t* format)
{
    if (format == nullptr)
    {
        return AAXResult::Failed;
    }
    *format = inputFormat;
    return AAXResult::Ok;
}

std::int32_t CHostController::GetOutputStemFormat(std::uint32_t* format)
{
    if (format == nullptr)
    {
        return AAXResult::Failed;
    }
    *format = outputFormat;
    return AAXResult::Ok;
}

std::int32_t CHostController::GetSampleRate(double* rate)
{
    if (rate == nullptr)
    {
        return AAXResult::Failed;
    }
    *rate = sampleRate;
    return AAXResult::Ok;
}

std::int32_t CHostController::SetSignalLatency(std::int32_t samples)
{
    latency.store(samples, std::memory_order_relaxed);
    return AAXResult::Ok;
}

std::int32_t CHostController::PostPacket(std::uint32_t field, const void* payload, std::uint32_t size)
{
    return ports.Post(field, payload, size) ? AAXResult::Ok : AAXResult::Failed;
}

std::int32_t CHostController::PostTouch(const char* parameterId)
{
    return Keep(CAutomationPost::EKind::Touch, parameterId, 0.0);
}

std::int32_t CHostController::PostRelease(const char* parameterId)
{
    return Keep(CAutomationPost::EKind::Release, parameterId, 0.0);
}

std::int32_t CHostController::PostValue(const char* parameterId, double normalized)
{
    return Keep(CAutomationPost::EKind::Value, parameterId, normalized);
}

void CHostController::AnswerPosts()
{
    const std::size_t count = std::min(postCount.load(std::memory_order_relaxed), MostPosts);
    for (; answered < count; ++answered)
    {
        Answer(posts[answered]);
    }
}

std::vector<CAutomationPost> CHostController::TakePosts()
{
    const std::size_t count = std::min(postCount.exchange(0, std::memory_order_relaxed), MostPosts);
    answered = 0;
    return {posts.begin(), posts.begin() + static_cast<std::ptrdiff_t>(count)};
}

std::int32_t CHostController::Keep(CAutomationPost::EKind kind, const char* parameterId, double normalized)
{
    CAutomationPost post = {kind, -1, normalized};
    if (parameterId == nullptr || parameters == nullptr ||
        parameters->GetParameterIndex(parameterId, &post.parameter) != AAXResult::Ok)
    {
        post.parameter = -1;
    }
    const std::size_t index = postCount.fetch_add(1, std::memory_order_relaxed);
    if (index < MostPosts)
    {
        posts[index] = post;
    }
    if (answersAtOnce.load(std::memory_order_relaxed))
    {
        Answer(post);
    }
    return AAXResult::Ok;
}

void CHostController::Answer(const CAutomationPost& post)
{
    const char* id = nullptr;
    if (post.kind == CAutomationPost::EKind::Value && parameters != nullptr &&
        parameters->GetParameterId(post.parameter, &id) == AAXResult::Ok)
    {
        parameters->SetParameterValue(id, post.normalized);
    }
}

} // namespace Host
