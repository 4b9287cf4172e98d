#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/CRecursiveGraphics.h"
#include "Mirel/GUI/CTextLightWidget.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"

#include <cstdint>
#include <sstream>
#include <string>
#include <typeinfo>
#include <vector>

namespace Tests
{

inline void DescribeBelow(const Mirel::GUI::CLightWidget& widget, const std::string& indent,
                          std::ostringstream& text)
{
    for (int i = 0; i < widget.GetChildCount(); ++i)
    {
        const Mirel::GUI::CLightWidget& child = *widget.GetChild(i);
        const auto* shown = dynamic_cast<const Mirel::GUI::CTextLightWidget*>(&child);
        text << indent << typeid(child).name() << " " << child.GetPosition().x << "," << child.GetPosition().y
             << " " << child.GetSize().width << "x" << child.GetSize().height
             << (child.IsShown() ? "" : " hidden") << " " << child.GetOpacity() << " "
             << (shown == nullptr ? "" : shown->GetText()) << "\n";
        DescribeBelow(child, indent + "  ", text);
    }
}

/// A line for each widget below the root, from the back to the front: class, place, size, opacity, text.
inline std::string DescribeTree(const Mirel::GUI::CLightWidget& root)
{
    std::ostringstream text;
    DescribeBelow(root, "", text);
    return text.str();
}

/// What the texts directly below the root show, from the back to the front.
inline std::vector<std::string> ShownTexts(const Mirel::GUI::CLightWidget& root)
{
    std::vector<std::string> texts;
    for (int i = 0; i < root.GetChildCount(); ++i)
    {
        const auto* text = dynamic_cast<const Mirel::GUI::CTextLightWidget*>(root.GetChild(i));
        texts.emplace_back(text == nullptr ? "?" : text->GetText());
    }
    return texts;
}

/// The bytes of what the tree paints.
inline std::vector<std::uint8_t> PaintTree(Mirel::GUI::CLightWidget& root)
{
    Mirel::Graphics::CDIBBitmap bitmap(32, root.GetSize());
    root.GetRecursiveGraphics().Draw(*bitmap.CreateSurface(), nullptr);
    const std::uint8_t* data = bitmap.GetData();
    return {data, data + static_cast<std::ptrdiff_t>(root.GetSize().width) * root.GetSize().height * 4};
}

} // namespace Tests
