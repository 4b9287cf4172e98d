#include "Mirel/DataModel/GUIWidgets/CGUIParamTextWidget.h"

#include "Mirel/DataModel/Controls/CParamViewerConfig.h"
#include "Mirel/DataModel/GUIWidgets/Limits.h"
#include "Mirel/DataModel/GUIWidgets/ParamStops.h"
#include "Mirel/DataModel/Objects/ValueToString.h"
#include "Mirel/Graphics/TextPlacing.h"

#include <algorithm>

namespace Mirel::DataModel::GUIWidgets
{

CGUIParamTextWidget::CGUIParamTextWidget(const Objects::IConstCaptureParam& param, GUI::CLightWidget* parent_)
    : CTextLightWidget(parent_),
      viewer(param),
      textConnection(&viewer.GetTextChangedEventProvider(), &textChanged),
      infoConnection(&param.GetInfo().GetChangedEventProvider(), &infoChanged)
{
    UpdateText();
}

void CGUIParamTextWidget::FitToValues(bool fitWidth, bool fitHeight)
{
    fitsWidth = fitWidth;
    fitsHeight = fitHeight;
    Fit();
}

void CGUIParamTextWidget::Fit()
{
    if (!fitsWidth && !fitsHeight)
    {
        return;
    }
    const Core::CSize size = GetSize();
    const Core::CSize needed = MeasureValues();
    SetSize({fitsWidth ? needed.width : size.width, fitsHeight ? needed.height : size.height});
}

Core::CSize CGUIParamTextWidget::MeasureValues() const
{
    const Graphics::CTextDrawer& texts = GetTextDrawer();
    const Objects::IConstParamInfo& info = viewer.GetInfo();
    Core::CSize largest = texts.GetNaturalSize();
    const auto take = [&](float value)
    {
        const std::string text = Objects::ValueToString(info.GetValueToText(), value);
        const Core::CSize size =
            Graphics::MeasureText(texts.GetFont().get(), text.c_str(), {texts.GetFormat().flags, -1});
        largest = {std::max(largest.width, size.width), std::max(largest.height, size.height)};
    };
    take(info.GetMin());
    take(info.GetMax());
    take(info.GetDefault());
    const Controls::CParamViewerConfig axis(info);
    const int last = GetLastStop(axis);
    if (last < CLimits::maxMeasuredTexts)
    {
        for (int stop = 1; stop < last; ++stop)
        {
            take(axis.PositionToValue(GetPositionOfStop(stop, last)));
        }
    }
    return largest;
}

} // namespace Mirel::DataModel::GUIWidgets
