#include "Mirel/Audio/Plugin/CThreadBoundState.h"

#include "Mirel/Core/CAutoLock.h"

#include <algorithm>
#include <utility>

namespace Mirel::Audio::Plugin
{

using Core::CAutoLock;
using SkinEngine::CSkinModelState;

namespace
{

constexpr const char* stateKey = "state";

template <class Item>
void Replace(std::vector<Item>& items, std::vector<Item>& replacements)
{
    for (Item& item : items)
    {
        const auto place = std::find_if(replacements.begin(), replacements.end(),
                                        [&item](const Item& other) { return other.name == item.name; });
        if (place != replacements.end())
        {
            item.value = std::move(place->value);
        }
    }
}

bool ReadState(const Serialization::IReadDataStream& stream, CSkinModelState& state)
{
    return stream.Read(stateKey, static_cast<Serialization::IDeSerialize&>(state));
}

} // namespace

void CThreadBoundState::Bind(System::IThreadInvoker& invoker_)
{
    const CAutoLock guard(lock);
    invoker = &invoker_;
    owner = std::this_thread::get_id();
    model.TakeState(published);
}

void CThreadBoundState::Unbind()
{
    TakeOver();
    const CAutoLock guard(lock);
    invoker = nullptr;
    published.Clear();
    if (left)
    {
        model.RestoreState(*left); // came in since
        left.reset();
    }
}

void CThreadBoundState::Publish()
{
    TakeOver();
    CSkinModelState present;
    model.TakeState(present);
    const CAutoLock guard(lock);
    if (!left)
    {
        published = std::move(present);
    }
}

bool CThreadBoundState::Serialize(Serialization::IWriteDataStream& stream) const
{
    const CAutoLock guard(lock);
    if (IsBoundElsewhere() || left)
    {
        return stream.Write(stateKey, static_cast<const Serialization::ISerialize&>(published));
    }
    return model.Serialize(stream);
}

bool CThreadBoundState::Deserialize(const Serialization::IReadDataStream& stream)
{
    const CAutoLock guard(lock);
    if (IsBoundElsewhere())
    {
        return Leave(stream);
    }
    left.reset(); // older than this one
    return model.Deserialize(stream);
}

bool CThreadBoundState::IsBoundElsewhere() const
{
    return invoker != nullptr && owner != std::this_thread::get_id();
}

bool CThreadBoundState::Leave(const Serialization::IReadDataStream& stream)
{
    CSkinModelState shown;
    const bool isRead = ReadState(stream, shown);
    left.emplace();
    ReadState(stream, *left);
    Replace(published.params, shown.params);
    Replace(published.curves, shown.curves);
    Replace(published.surfaces, shown.surfaces);
    Replace(published.strings, shown.strings);
    Replace(published.collections, shown.collections);
    invoker->InvokeAsync(&takeOver, false);
    return isRead;
}

void CThreadBoundState::TakeOver()
{
    std::optional<CSkinModelState> taken;
    {
        const CAutoLock guard(lock);
        taken = std::exchange(left, std::nullopt);
    }
    if (taken)
    {
        model.RestoreState(*taken); // without the lock: listeners may call the host
    }
}

} // namespace Mirel::Audio::Plugin
