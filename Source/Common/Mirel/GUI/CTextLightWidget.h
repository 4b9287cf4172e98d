#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/Graphics/CTextDrawer.h"

namespace Mirel::GUI
{

/// A light widget that shows a text, set by its drawer. GUI thread only.
class CTextLightWidget : public CLightWidget
{
public:
    explicit CTextLightWidget(CLightWidget* parent_ = nullptr);

    /// Text, colour, font and format.
    Graphics::CTextDrawer& GetTextDrawer() const { return *drawer; }

    /// UTF-8.
    void SetText(const char* text) { drawer->SetText(text); }
    const char* GetText() const { return drawer->GetText().c_str(); }

private:
    CTextLightWidget(CLightWidget* parent_, Graphics::CTextDrawer* drawer_);

    Graphics::CTextDrawer* drawer; ///< Owned by the base.
};

} // namespace Mirel::GUI
