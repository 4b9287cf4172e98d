#include "Mirel/DataModel/GUIWidgets/CGUISysTooltip.h"

namespace Mirel::DataModel::GUIWidgets
{

CGUISysTooltip::CGUISysTooltip(GUI::CHostTooltips* tips_, GUI::CLightWidget* parent_)
    : CLightWidget(parent_),
      tips(tips_)
{
    Announce();
}

CGUISysTooltip::~CGUISysTooltip()
{
    if (tips != nullptr)
    {
        tips->Remove(GetSubject());
    }
}

void CGUISysTooltip::Explain(GUI::CLightWidget* newSubject)
{
    if (newSubject != subject)
    {
        if (tips != nullptr)
        {
            tips->Remove(GetSubject());
        }
        subject = newSubject;
        Announce();
    }
}

void CGUISysTooltip::SetShowOnClick(bool newShowOnClick)
{
    if (newShowOnClick != showOnClick)
    {
        showOnClick = newShowOnClick;
        Announce();
    }
}

void CGUISysTooltip::OnTextChanged()
{
    if (tips != nullptr)
    {
        tips->Refresh(GetSubject());
    }
}

void CGUISysTooltip::Announce()
{
    const auto makeTip = [this]
    {
        GUI::STooltip tip = style;
        tip.text = IsShown() ? GetTipText() : std::string();
        return tip;
    };
    if (tips != nullptr)
    {
        tips->Set(GetSubject(), makeTip, showOnClick);
    }
}

} // namespace Mirel::DataModel::GUIWidgets
