#pragma once

#include "Mirel/Core/CLifeToken.h"
#include "Mirel/GUI/CKeyboardTarget.h"

#include <memory>

namespace Mirel::GUI
{

/// Asks a widget's keyboard target before it gives it a key. Without a target nothing is handled. GUI thread
/// only.
class CNativeKeyboardTarget
{
public:
    void SetTarget(CKeyboardTarget* newTarget, bool owned);
    CKeyboardTarget* GetTarget() const { return target.get(); }

    bool SendKeyDown(const COSXKeyEvent& event) const;
    bool SendKeyUp(const COSXKeyEvent& event) const;
    bool SendModifierChanged(const COSXModifierKeyEvent& event) const;
    bool SendFocus(bool gained) const;

private:
    bool SendKey(bool (CKeyboardTarget::*operation)(const COSXKeyEvent&), const COSXKeyEvent& event) const;

    std::shared_ptr<CKeyboardTarget> target;
    Core::CLifeToken life;
};

} // namespace Mirel::GUI
