#include "Mirel/GUI/CTextLightWidget.h"

namespace Mirel::GUI
{

CTextLightWidget::CTextLightWidget(CLightWidget* parent_)
    : CTextLightWidget(parent_, new Graphics::CTextDrawer())
{
}

CTextLightWidget::CTextLightWidget(CLightWidget* parent_, Graphics::CTextDrawer* drawer_)
    : CLightWidget(parent_, drawer_, true),
      drawer(drawer_)
{
}

} // namespace Mirel::GUI
