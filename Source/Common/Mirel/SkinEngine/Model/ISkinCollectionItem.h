#pragma once

namespace Mirel::SkinEngine
{

/// What one item of a collection holds: a small model in a model file, a group of widgets in a skin. GUI
/// thread only.
class ISkinCollectionItem
{
public:
    /// Takes what belongs to the item out of the model or skin around it. A second call does nothing.
    virtual void Unload() = 0;
    virtual ~ISkinCollectionItem() = default;
};

} // namespace Mirel::SkinEngine
