#pragma once

namespace WidgetGallery
{

/// What keeps the data behind the widgets of a section. It outlives the page.
class IGallerySection
{
public:
    virtual ~IGallerySection() = default;
};

} // namespace WidgetGallery
