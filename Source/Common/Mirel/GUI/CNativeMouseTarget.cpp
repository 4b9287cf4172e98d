#include "Mirel/GUI/CNativeMouseTarget.h"

#include "Mirel/GUI/OwnedTarget.h"

#include <algorithm>
#include <utility>

namespace Mirel::GUI
{

namespace
{

using Operation = bool (CMouseTarget::*)(const COSXMouseEvent&);

struct CButtonOperations
{
    Operation down;
    Operation up;
    Operation click;
    Operation doubleClick;
};

constexpr CButtonOperations buttonOperations[] = {
    {&CMouseTarget::OnLeftDown, &CMouseTarget::OnLeftUp, &CMouseTarget::OnLeftClick,
     &CMouseTarget::OnLeftDoubleClick},
    {&CMouseTarget::OnRightDown, &CMouseTarget::OnRightUp, &CMouseTarget::OnRightClick,
     &CMouseTarget::OnRightDoubleClick},
};

bool HasOperations(EMouseButton button)
{
    return button == EMouseButton::Left || button == EMouseButton::Right;
}

std::size_t GetIndex(EMouseButton button)
{
    return button == EMouseButton::Left ? 0 : 1;
}

} // namespace

void CNativeMouseTarget::SetTarget(CMouseTarget* newTarget, bool owned)
{
    target = HoldTarget(newTarget, owned);
}

bool CNativeMouseTarget::SendDown(const COSXMouseEvent& event)
{
    if (!HasOperations(event.button))
    {
        return false;
    }
    const std::size_t index = GetIndex(event.button);
    down[index] = true;
    return event.clickCount < 2 && Send(buttonOperations[index].down, event);
}

bool CNativeMouseTarget::SendUp(const COSXMouseEvent& event)
{
    if (!HasOperations(event.button))
    {
        return false;
    }
    constexpr int doubleClickCount = 2;
    const std::size_t index = GetIndex(event.button);
    const CButtonOperations& operations = buttonOperations[index];
    const bool wasDown = std::exchange(down[index], false);
    const Core::CLifeToken::CWatch watch(life);
    const bool upHandled = Send(operations.up, event);
    if (!watch.IsAlive() || !wasDown || event.clickCount > doubleClickCount)
    {
        return upHandled;
    }
    const bool isDouble = event.clickCount == doubleClickCount;
    return Send(isDouble ? operations.doubleClick : operations.click, event) || upHandled;
}

void CNativeMouseTarget::SendCaptureLost()
{
    const bool any = std::any_of(down.begin(), down.end(), [](bool pressed) { return pressed; });
    down.fill(false);
    const auto held = target;
    if (any && held != nullptr)
    {
        held->OnCaptureLost();
    }
}

} // namespace Mirel::GUI
