#pragma once

#include "Mirel/Core/TIArgCommand.h"
#include "Mirel/Graphics/IGraphics.h"

#include <functional>
#include <utility>
#include <vector>

namespace Tests
{

/// Collects the rectangles of changed events, and then does something.
class CChanges : public Mirel::Core::TIArgCommand<const Mirel::Graphics::CRect&>
{
public:
    explicit CChanges(
        Mirel::Graphics::IGraphics& graphics_, std::function<void()> then_ = [] {})
        : graphics(graphics_),
          then(std::move(then_))
    {
        graphics.GetChangedEvent().Connect(this);
    }
    CChanges(const CChanges&) = delete;
    CChanges& operator=(const CChanges&) = delete;
    ~CChanges() override { graphics.GetChangedEvent().Disconnect(this); }

    void Execute(const Mirel::Graphics::CRect& area) override
    {
        areas.push_back(area);
        then();
    }

    std::vector<Mirel::Graphics::CRect> areas;

private:
    Mirel::Graphics::IGraphics& graphics;
    std::function<void()> then;
};

} // namespace Tests
