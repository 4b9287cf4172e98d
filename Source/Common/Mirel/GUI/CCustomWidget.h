#pragma once

#include "Mirel/GUI/CWidget.h"
#include "Mirel/Graphics/CColor.h"

namespace Mirel::GUI
{

/// A widget whose picture is the program's own: its events targets paint all of it. GUI thread only.
class CCustomWidget : public CWidget
{
public:
    /// Without erasing, the area is painted over whatever stands beneath; otherwise it is filled first.
    explicit CCustomWidget(bool noErase_ = false) : noErase(noErase_) {}

    bool IsNoErase() const { return noErase; }

    /// What the area is filled with; black at first.
    void SetBackgroundColor(Graphics::CColor color);
    Graphics::CColor GetBackgroundColor() const { return background; }

    bool CoversItsArea() const override { return !noErase; }
    void Draw(const COSXNativeDrawEvent& event) override;

private:
    bool noErase;
    Graphics::CColor background;
};

} // namespace Mirel::GUI
