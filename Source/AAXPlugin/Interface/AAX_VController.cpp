#include "AAXPlugin/Interface/AAX_VController.h"

#include "AAXPlugin/Interface/AAXResults.h"
#include "AAXPlugin/Interface/QueryFor.h"

AAX_VController::AAX_VController(IACFUnknown* host) : controller(QueryFor<IAAXController>(host)) {}

std::int32_t AAX_VController::GetInputStemFormat(std::uint32_t* format) const
{
    return controller ? controller->GetInputStemFormat(format) : AAXResult::Failed;
}

std::int32_t AAX_VController::GetOutputStemFormat(std::uint32_t* format) const
{
    return controller ? controller->GetOutputStemFormat(format) : AAXResult::Failed;
}

std::int32_t AAX_VController::GetSampleRate(double* sampleRate) const
{
    return controller ? controller->GetSampleRate(sampleRate) : AAXResult::Failed;
}

std::int32_t AAX_VController::SetSignalLatency(std::int32_t samples)
{
    return controller ? controller->SetSignalLatency(samples) : AAXResult::Failed;
}

std::int32_t AAX_VController::PostPacket(std::uint32_t field, const void* payload, std::uint32_t size)
{
    return controller ? controller->PostPacket(field, payload, size) : AAXResult::Failed;
}

TACFReference<IAAXAutomationDelegate> AAX_VController::GetAutomationDelegate() const
{
    return QueryFor<IAAXAutomationDelegate>(controller.Get());
}
