#pragma once

namespace Mirel::SkinEngine
{

/// Opens pages for the actions of a model: supplied by the layer that knows the desktop. GUI thread only.
class IUrlOpener
{
public:
    /// The text comes from a model file as it stands there: whoever opens it judges what it may open.
    virtual void OpenUrl(const char* url) = 0;
    virtual ~IUrlOpener() = default;
};

} // namespace Mirel::SkinEngine
