#pragma once

#include "Mirel/Layout/CGroupLayoutCell.h"
#include "Mirel/Layout/CLayoutCell.h"
#include "Mirel/Layout/CLayoutOptions.h"
#include "Mirel/Layout/CTableLayoutCell.h"

#include <cstdint>
#include <memory>
#include <ostream>

namespace Mirel::Core
{

inline void PrintTo(const CPoint& point, std::ostream* stream)
{
    *stream << "(" << point.x << ", " << point.y << ")";
}

inline void PrintTo(const CSize& size, std::ostream* stream)
{
    *stream << size.width << " x " << size.height;
}

} // namespace Mirel::Core

namespace Tests
{

using Mirel::Core::CPoint;
using Mirel::Core::CSize;

/// A leaf with content of a size of its own.
class CBox : public Mirel::Layout::CLayoutCell
{
public:
    explicit CBox(const CSize& content_, int* deaths_ = nullptr) : content(content_), deaths(deaths_)
    {
        SetSize(content);
    }

    CBox(const CBox&) = delete;
    CBox& operator=(const CBox&) = delete;

    ~CBox() override
    {
        if (deaths != nullptr)
        {
            ++*deaths;
        }
    }

    /// As a widget does whose picture changed.
    void SetContent(const CSize& newContent)
    {
        content = newContent;
        Update();
    }

    void Clear() override {}

    void UpdateSize() override
    {
        if (IsDirty())
        {
            ++measured;
            SetOwnSize(content);
            SetDirty(false);
        }
    }

    void Arrange(const CPoint& point) override
    {
        ++arranged;
        StorePosition(point);
    }

    int measured = 0;
    int arranged = 0;

private:
    CSize content;
    int* deaths;
};

/// Adds an owned box.
inline CBox& AddBox(Mirel::Layout::ILayoutGroup& group, const CSize& size,
                    const Mirel::Layout::CLayoutOptions& options = {})
{
    auto box = std::make_unique<CBox>(size);
    group.AddCell(box.get(), options, true);
    return *box.release();
}

inline Mirel::Layout::CLayoutOptions WithFlex(float flex)
{
    Mirel::Layout::CLayoutOptions options;
    options.SetFlex(flex);
    return options;
}

inline Mirel::Layout::CLayoutOptions WithRatios(float width, float height)
{
    Mirel::Layout::CLayoutOptions options;
    options.SetWidthRatio(width);
    options.SetHeightRatio(height);
    return options;
}

inline Mirel::Layout::CLayoutOptions WithAlign(Mirel::Layout::EAlign hAlign, Mirel::Layout::EAlign vAlign)
{
    Mirel::Layout::CLayoutOptions options;
    options.SetHAlign(hAlign);
    options.SetVAlign(vAlign);
    return options;
}

/// Lays the group out at the point, in a size of its own or in the one given.
inline void LayOut(Mirel::Layout::CBaseGroupLayoutCell& group, const CPoint& point = {})
{
    group.SetPosition(point);
}

inline void LayOutIn(Mirel::Layout::CBaseGroupLayoutCell& group, const CSize& size, const CPoint& point = {})
{
    group.SetAutoSize(false);
    group.SetFixedSize(size);
    group.SetPosition(point);
}

} // namespace Tests
