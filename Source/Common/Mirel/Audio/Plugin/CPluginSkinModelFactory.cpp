#include "Mirel/Audio/Plugin/CPluginSkinModelFactory.h"

#include "Mirel/Audio/Plugin/CPluginSkinModel.h"

namespace Mirel::Audio::Plugin
{

std::unique_ptr<Serialization::ISerializable>
CPluginSkinModelFactory::LoadModel(const char* path, const CAudioPluginBindings& bindings)
{
    auto model = std::make_unique<CPluginSkinModel>(bindings, services);
    return model->Load(path) ? std::move(model) : nullptr;
}

} // namespace Mirel::Audio::Plugin
