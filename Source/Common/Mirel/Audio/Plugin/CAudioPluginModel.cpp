#include "Mirel/Audio/Plugin/CAudioPluginModel.h"

#include "Mirel/Core/CAutoLock.h"

#include <utility>

#include <unistd.h>

namespace Mirel::Audio::Plugin
{

using Core::CAutoLock;

/// Stands between the loop and a model that may go before its load is due. The lock is held through a load.
struct CAudioPluginModel::CLoadTarget
{
    System::CCriticalSection lock;
    CAudioPluginModel* model; ///< Null once the model is gone.
};

class CAudioPluginModel::CLoadCommand : public Core::ICommand
{
public:
    CLoadCommand(std::shared_ptr<CLoadTarget> target_, std::string path_,
                 const CAudioPluginBindings& bindings_)
        : target(std::move(target_)),
          path(std::move(path_)),
          bindings(bindings_)
    {
    }

    void Execute() override
    {
        const CAutoLock guard(target->lock);
        if (target->model != nullptr)
        {
            target->model->LoadNow(path, bindings);
        }
    }

private:
    std::shared_ptr<CLoadTarget> target;
    std::string path;
    CAudioPluginBindings bindings;
};

CAudioPluginModel::CAudioPluginModel(std::string modelPath_)
    : modelPath(std::move(modelPath_)),
      loadTarget(std::make_shared<CLoadTarget>())
{
    loadTarget->model = this;
}

CAudioPluginModel::~CAudioPluginModel()
{
    const CAutoLock guard(loadTarget->lock);
    loadTarget->model = nullptr;
}

void CAudioPluginModel::Init(const CAudioPluginBindings& newBindings)
{
    {
        const CAutoLock guard(lock);
        bindings = newBindings;
    }
    Load();
}

void CAudioPluginModel::Load()
{
    const CAutoLock guard(lock);
    if (factory == nullptr || !bindings || loading)
    {
        return;
    }
    loading = true;
    if (!loop)
    {
        loop.emplace();
    }
    loop->Get().InvokeAsync(new CLoadCommand(loadTarget, GetModelPath(), *bindings), true);
}

void CAudioPluginModel::LoadNow(const std::string& path, const CAudioPluginBindings& loadBindings)
{
    std::unique_ptr<Serialization::ISerializable> newModel;
    if (::access(path.c_str(), F_OK) == 0)
    {
        newModel = factory->LoadModel(path.c_str(), loadBindings);
    }
    const bool isLoaded = newModel != nullptr;
    if (isLoaded)
    {
        const CAutoLock guard(lock);
        state.Attach(*newModel);
        skinModel = std::move(newModel);
        loadedPath = path;
    }
    {
        const CAutoLock guard(lock);
        loading = false;
    }
    if (isLoaded)
    {
        loaded.Notify();
    }
}

std::string CAudioPluginModel::GetLoadedPath() const
{
    const CAutoLock guard(lock);
    return loadedPath;
}

Serialization::ISerializable* CAudioPluginModel::GetSkinModel() const
{
    const CAutoLock guard(lock);
    return skinModel.get();
}

std::shared_ptr<Serialization::ISerializable> CAudioPluginModel::ShareSkinModel() const
{
    const CAutoLock guard(lock);
    return skinModel;
}

void CAudioPluginModel::WaitForLoad() const
{
    {
        const CAutoLock guard(lock);
        if (!loading)
        {
            return;
        }
    }
    // The loop runs one request after the other.
    class CNothing : public Core::ICommand
    {
        void Execute() override {}
    } nothing;
    loop->Get().Invoke(&nothing, false);
}

bool CAudioPluginModel::Serialize(Serialization::IWriteDataStream& stream) const
{
    return state.Serialize(stream);
}

bool CAudioPluginModel::Deserialize(const Serialization::IReadDataStream& stream)
{
    return state.Deserialize(stream);
}

} // namespace Mirel::Audio::Plugin
