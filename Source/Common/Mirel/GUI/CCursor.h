#pragma once

#include "Mirel/Core/Geometry.h"
#include "Mirel/GUI/Native/ECursorShape.h"
#include "Mirel/Graphics/CBitmap.h"

#include <memory>
#include <string_view>

namespace Mirel::GUI
{

/// What the pointer looks like: a standard shape, or a picture. Never changes. GUI thread only.
class CCursor
{
public:
    explicit CCursor(ECursorShape shape_ = ECursorShape::Normal) : shape(shape_) {}

    /// The picture is of 32 bits, in device pixels; hotSpot is the pixel of it that points. Without a picture
    /// the cursor is Normal.
    CCursor(std::shared_ptr<const Graphics::CBitmap> picture_, Core::CPoint hotSpot_)
        : picture(std::move(picture_)),
          hotSpot(hotSpot_)
    {
    }

    /// The standard cursor of a name such as "hand", "size_h" or "Ibeam"; none for another name.
    static std::shared_ptr<const CCursor> FindSystem(std::string_view name);

    ECursorShape GetShape() const { return shape; }

    /// Null for a standard shape.
    const Graphics::CBitmap* GetPicture() const { return picture.get(); }
    Core::CPoint GetHotSpot() const { return hotSpot; }

private:
    ECursorShape shape = ECursorShape::Normal;
    std::shared_ptr<const Graphics::CBitmap> picture;
    Core::CPoint hotSpot;
};

using CSharedCursor = std::shared_ptr<const CCursor>;

} // namespace Mirel::GUI
