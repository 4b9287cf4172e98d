#pragma once

#include "Mirel/SkinEngine/Model/ModelLimits.h"

#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{

/// A link from many objects to many whose sources keep the order of their list, also if one comes back after
/// it had gone: an operation may depend on it. Link is a multiple link of the data model. GUI thread only.
template <class Link>
class TModelMultiLink : public Link
{
public:
    using Source = std::remove_pointer_t<
        typename std::decay_t<decltype(std::declval<const Link&>().GetSources())>::value_type>;
    using Target = std::remove_pointer_t<
        typename std::decay_t<decltype(std::declval<const Link&>().GetTargets())>::value_type>;

    /// The place of one source in the list.
    class CPlace
    {
    public:
        explicit CPlace(TModelMultiLink& link_) : link(link_) {}

        void Set(Source* newSource)
        {
            Source* const former = std::exchange(source, newSource);
            if (former != nullptr)
            {
                link.RemoveSource(former);
            }
            if (source != nullptr)
            {
                link.AddInOrder(*this);
            }
        }

        Source* Get() const { return source; }

    private:
        TModelMultiLink& link;
        Source* source = nullptr;
    };

    /// The next place, which lives as long as the link.
    CPlace& AddPlace() { return *places.emplace_back(std::make_unique<CPlace>(*this)); }

    void ConnectTarget(Target& target) { this->AddTarget(&target); }
    void DisconnectTarget(Target& target) { this->RemoveTarget(&target); }

private:
    void AddInOrder(const CPlace& place)
    {
        if (places.size() > maxOrderedSources || IsLast(place))
        {
            this->AddSource(place.Get());
            return;
        }
        const bool wasEnabled = this->IsEnabled();
        this->Enable(false);
        for (const auto& each : places)
        {
            this->RemoveSource(each->Get());
        }
        for (const auto& each : places)
        {
            this->AddSource(each->Get());
        }
        this->Enable(wasEnabled);
    }

    /// Whether no source stands behind that place.
    bool IsLast(const CPlace& place) const
    {
        for (auto each = places.rbegin(); each->get() != &place; ++each)
        {
            if ((*each)->Get() != nullptr)
            {
                return false;
            }
        }
        return true;
    }

    std::vector<std::unique_ptr<CPlace>> places;
};

} // namespace Mirel::SkinEngine
