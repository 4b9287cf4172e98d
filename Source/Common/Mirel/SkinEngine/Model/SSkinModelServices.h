#pragma once

#include "Mirel/SkinEngine/Model/IUrlOpener.h"
#include "Mirel/System/ITickSource.h"
#include "Mirel/System/ITimerProvider.h"

namespace Mirel::SkinEngine
{

/// What the objects of a model need of the program around it. Nothing is owned; all must outlive the model,
/// whose collections make objects for as long as it lives.
struct SSkinModelServices
{
    System::ITimerProvider* timerProvider = nullptr; ///< Without one nothing that follows time moves.
    const System::ITickSource* tickSource = nullptr; ///< Null for the clock of the system.
    IUrlOpener* urlOpener = nullptr;                 ///< Without one actions that open pages do nothing.
};

} // namespace Mirel::SkinEngine
