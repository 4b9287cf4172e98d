#include "Mirel/SkinEngine/UI/CSkinRoot.h"

#include "Mirel/GUI/CLightWidgetLayoutCell.h"
#include "Mirel/GUI/CWidgetLayoutCell.h"

namespace Mirel::SkinEngine
{

CSkinRoot::CSkinRoot(GUI::CCustomWidget& window_, Core::ICommand& onResized_)
    : window(window_),
      onResized(onResized_)
{
}

CSkinRoot::~CSkinRoot()
{
    if (light != nullptr)
    {
        light->GetSizeChangedEvent().Disconnect(&onResized);
    }
}

SSkinPlace CSkinRoot::Open(const SSkinRootAttributes& attributes, Core::CSize imageSize)
{
    if (attributes.lightMode && !attributes.systemWidget)
    {
        light = std::make_unique<GUI::CLightWidget>();
        adapter = std::make_unique<GUI::CLightWidgetAdapter>(light.get(), false);
        light->GetSizeChangedEvent().Connect(onResized);
        window.AddChild(adapter.get(), false);
        adapter->Show(true);
        group = &light->GetCell();
    }
    else
    {
        group = &window.GetCell();
    }
    StateSize(attributes, imageSize);
    return {light.get(), &window, group};
}

void CSkinRoot::StateSize(const SSkinRootAttributes& attributes, Core::CSize imageSize)
{
    constexpr int ofContent = SSkinRootAttributes::sizeOfContent;
    const auto fixed = [](int stated, int ofImage) {
        return stated != ofContent ? stated : ofImage > 0 ? ofImage : ofContent;
    };
    const int width = fixed(attributes.width, imageSize.width);
    const int height = fixed(attributes.height, imageSize.height);
    group->SetAutoWidth(width == ofContent);
    group->SetAutoHeight(height == ofContent);
    group->SetFixedSize({width == ofContent ? 0 : width, height == ofContent ? 0 : height});
}

void CSkinRoot::LayOut()
{
    group->SetAutoUpdate(true);
    group->SetPosition({0, 0});
}

void CSkinRoot::LayOutIn(Core::CSize size)
{
    group->SetAutoUpdate(false);
    group->SetAutoSize(false);
    group->SetFixedSize(size);
    LayOut();
}

} // namespace Mirel::SkinEngine
