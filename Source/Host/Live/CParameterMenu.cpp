#include "Host/Live/CParameterMenu.h"

#include "AAXPlugin/Interface/AAXResults.h"

#include <cmath>

namespace Host
{

using namespace Mirel::GUI;

namespace
{

/// More are no list to choose from; their value is typed.
constexpr int mostSteps = 16;

} // namespace

CParameterMenu::CParameterMenu(AAX_IEffectParameters& parameters_, INativePlatform& platform_,
                               const CPopupLook& look_)
    : parameters(parameters_),
      all(parameters_),
      platform(platform_),
      look(look_),
      menus(platform_, look_)
{
}

bool CParameterMenu::Open(const char* parameterId, const INativeWindow& window)
{
    std::string error;
    const CParameter* parameter = all.Find(parameterId, error);
    if (parameter == nullptr)
    {
        return false;
    }
    dialog.reset();
    menus.Close();
    menu.Clear();
    Fill(*parameter, window);
    return menus.Open(menu, window, platform.GetPointerPosition(), [] {});
}

void CParameterMenu::Fill(const CParameter& parameter, const INativeWindow& window)
{
    const double present = GetPresent(parameter);
    double defaultValue = present;
    parameters.GetParameterDefault(parameter.id.c_str(), &defaultValue);
    menu.AddItem(parameter.name + ": " + all.GetText(parameter, present), nullptr, false).isEnabled = false;
    menu.AddSeparator();
    if (parameter.steps > 1 && parameter.steps <= mostSteps)
    {
        AddSteps(parameter, present);
    }
    else
    {
        menu.AddItem("Enter Value...", [this, &parameter, &window] { EnterValue(parameter, window); });
    }
    menu.AddSeparator();
    menu.AddItem("Set to Default", [this, &parameter, defaultValue] { Set(parameter, defaultValue); });
}

void CParameterMenu::AddSteps(const CParameter& parameter, double present)
{
    const int last = parameter.steps - 1;
    for (int step = 0; step <= last; ++step)
    {
        const double value = static_cast<double>(step) / last;
        menu.AddItem(all.GetText(parameter, value), [this, &parameter, value] { Set(parameter, value); })
            .isChecked = step == std::lround(present * last);
    }
}

void CParameterMenu::EnterValue(const CParameter& parameter, const INativeWindow& window)
{
    const auto take = [this, &parameter](const std::string& text)
    {
        double normalized = 0.0;
        const bool isValue =
            parameters.GetValueOfText(parameter.id.c_str(), text.c_str(), &normalized) == AAXResult::Ok;
        if (isValue)
        {
            Set(parameter, normalized);
        }
        return isValue;
    };
    dialog = std::make_unique<CTextDialog>(
        platform, look, parameter.name, all.GetText(parameter, GetPresent(parameter)),
        platform.GetPointerPosition(), SDialogOwner{nullptr, window.GetId()}, take,
        [this] { dialog.reset(); });
    if (!dialog->Open())
    {
        dialog.reset();
    }
}

void CParameterMenu::Set(const CParameter& parameter, double normalized)
{
    parameters.SetParameterValue(parameter.id.c_str(), normalized);
}

double CParameterMenu::GetPresent(const CParameter& parameter) const
{
    double normalized = 0.0;
    parameters.GetParameterValue(parameter.id.c_str(), &normalized);
    return normalized;
}

} // namespace Host
