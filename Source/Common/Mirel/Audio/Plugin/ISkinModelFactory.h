#pragma once

#include "Mirel/Audio/Plugin/CAudioPluginBindings.h"
#include "Mirel/Serialization/DataStreams.h"

#include <memory>

namespace Mirel::Audio::Plugin
{

/// Builds the model of an instance from a model file: supplied by the layer that knows skins.
class ISkinModelFactory
{
public:
    /// Null if the file cannot be loaded. Called on the background loop, for several instances one after the
    /// other.
    virtual std::unique_ptr<Serialization::ISerializable> LoadModel(const char* path,
                                                                    const CAudioPluginBindings& bindings) = 0;
    virtual ~ISkinModelFactory() = default;
};

} // namespace Mirel::Audio::Plugin
