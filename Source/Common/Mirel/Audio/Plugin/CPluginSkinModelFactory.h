#pragma once

#include "Mirel/Audio/Plugin/ISkinModelFactory.h"
#include "Mirel/SkinEngine/Model/SSkinModelServices.h"

namespace Mirel::Audio::Plugin
{

/// Makes the CPluginSkinModel of an instance. One object may serve all instances.
class CPluginSkinModelFactory : public ISkinModelFactory
{
public:
    /// The services must outlive all models; their timers are not used.
    explicit CPluginSkinModelFactory(const SkinEngine::SSkinModelServices& services_ = {})
        : services(services_)
    {
    }

    /// A CPluginSkinModel; null if the file cannot be read as a model.
    std::unique_ptr<Serialization::ISerializable> LoadModel(const char* path,
                                                            const CAudioPluginBindings& bindings) override;

private:
    SkinEngine::SSkinModelServices services;
};

} // namespace Mirel::Audio::Plugin
