#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/Graphics/CFont.h"
#include "Mirel/Layout/CGroupLayoutCell.h"
#include "Mirel/SkinEngine/UI/CExposedProperties.h"
#include "Mirel/SkinEngine/UI/CUIBuild.h"
#include "Mirel/SkinEngine/UI/UIAttributes.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace Mirel::SkinEngine
{

/// One element on its way to a widget or a cell: reads the attributes that all have, puts the result where
/// the element stands and exposes its properties. Lives on the stack of the element's handler. GUI thread
/// only.
class CUIElement
{
public:
    enum class EInput
    {
        None,
        Natural ///< The widget is one that is there for the mouse.
    };

    /// Reads colours and fonts, which the element's content inherits.
    CUIElement(CUIBuild& build_, const Containers::CNamedAttributes& attributes_);
    CUIElement(const CUIElement&) = delete;
    CUIElement& operator=(const CUIElement&) = delete;

    CUIBuild& GetBuild() const { return build; }
    const Containers::CNamedAttributes& GetAttributes() const { return attributes; }

    Graphics::CColor GetTextColor() const { return inside.textColor; }
    const std::optional<Graphics::CColor>& GetBackgroundColor() const { return inside.backgroundColor; }
    Graphics::CSharedFont GetFont() const;

    /// The colour of an attribute; the inherited one, with a report, if it is none.
    Graphics::CColor ReadColor(const std::string& name, Graphics::CColor missing) const;

    /// Makes a widget, which is the skin's from now on.
    template <class T, class... Arguments>
    T& Make(Arguments&&... arguments)
    {
        return build.GetData().Own(std::make_unique<T>(std::forward<Arguments>(arguments)...));
    }

    /// `width` and `height` in pixels, of a widget that has no cells.
    void ReadSize(GUI::CLightWidget& widget) const;

    // Puts it where the element stands, and makes it what following elements stand in until the end of this
    // one. False if an object could not be exposed.
    bool Place(GUI::CLightWidget& widget, EInput input);
    bool PlaceBox(GUI::CLightWidget& widget);

    /// A widget without room of its own, which belongs to the one that the element stands in.
    bool PlaceInWidget(GUI::CLightWidget& widget);
    bool Place(Layout::CGroupLayoutCell& cell);
    bool Place(Layout::CTableLayoutCell& cell);

    /// For the root, which stands in nothing.
    void PlaceRoot(const SSkinPlace& place, bool lightMode);

    /// For an element that makes nothing, but whose content inherits.
    void PlaceNothing();

    /// The same for what stands in a row of a table.
    void PlaceInRow(Layout::CTableLayoutCell& table, Layout::CTableLayoutCell::CRow* row);

    /// What of the element is shown in the model.
    CExposedProperties& GetProperties() { return properties; }

private:
    enum class EHolds
    {
        Overlays, ///< What happens to stand in a widget.
        Cells
    };

    bool PlaceWidget(GUI::CLightWidget& widget, EInput input, EHolds holds);
    GUI::CHostTooltips* MakeTips(GUI::CLightWidget& light, GUI::CWidget* behind) const;
    Layout::CGroupLayoutCell& Attach(GUI::CLightWidget& widget);
    void ReadWidget(GUI::CLightWidget& widget, EInput input) const;
    void ReadCursor(GUI::CLightWidget& widget) const;
    void ReadGroup(Layout::CBaseGroupLayoutCell& cell) const;
    bool PlaceCell(Layout::CBaseGroupLayoutCell& cell, std::function<void(bool)> show);
    bool PlaceVisibility(std::function<void(bool)> show);

    CUIBuild& build;
    const Containers::CNamedAttributes& attributes;
    CExposedProperties properties;
    SUIScope inside; ///< What following elements stand in.
};

} // namespace Mirel::SkinEngine
