#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/Graphics/CImageGroupBoxGraphics.h"

namespace Mirel::SkinEngine
{

/// A frame of nine images around what stands in it. GUI thread only.
class CGUIImageGroupBox : public GUI::CLightWidget
{
public:
    explicit CGUIImageGroupBox(GUI::CLightWidget* parent_ = nullptr) : CLightWidget(parent_)
    {
        SetGraphics(&graphics, false);
    }
    ~CGUIImageGroupBox() override { SetGraphics(nullptr, false); }

    Graphics::CImageGroupBoxGraphics& GetBoxGraphics() { return graphics; }

private:
    Graphics::CImageGroupBoxGraphics graphics;
};

} // namespace Mirel::SkinEngine
