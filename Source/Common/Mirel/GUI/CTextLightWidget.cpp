#include "Mirel/GUI/CTextLightWidget.h"

namespace Mirel::GUI
{

CTextLightWidget::CTextLightWidget(CLightWidget* parent_)
    : CTextLightWidget(*new Graphics::CTextDrawer(), parent_)
{
}

CTextLightWidget::CTextLightWidget(Graphics::CTextDrawer& drawer_, CLightWidget* parent_)
    : CLightWidget(parent_, &drawer_, true),
      drawer(&drawer_)
{
}

} // namespace Mirel::GUI
