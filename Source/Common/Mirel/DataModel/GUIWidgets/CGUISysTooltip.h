#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/Popups/CHostTooltips.h"

#include <string>

namespace Mirel::DataModel::GUIWidgets
{

/// Explains what it is laid over, or another widget: a text in a window of its own, when the pointer rests
/// there. It is not seen and takes no input itself. GUI thread.
class CGUISysTooltip : public GUI::CLightWidget
{
public:
    CGUISysTooltip(const CGUISysTooltip&) = delete;
    CGUISysTooltip& operator=(const CGUISysTooltip&) = delete;
    ~CGUISysTooltip() override;

    /// Another widget than this one, which must outlive it; null for this one. A tooltip that is hidden
    /// explains nothing.
    void Explain(GUI::CLightWidget* newSubject);

    /// How it looks, and when it shows; the text of it does not count.
    void SetStyle(const GUI::STooltip& newStyle) { style = newStyle; }
    const GUI::STooltip& GetStyle() const { return style; }

    /// Whether a press shows it at once. False at first.
    void SetShowOnClick(bool newShowOnClick);

    /// What it says now; UTF-8, empty for nothing to show.
    virtual std::string GetTipText() const = 0;

protected:
    /// The tips are those of the host that the widget comes to stand in; not owned, and must outlive it.
    /// Without them nothing shows.
    CGUISysTooltip(GUI::CHostTooltips* tips_, GUI::CLightWidget* parent_);

    /// For when the text has changed: one that shows says it at once.
    void OnTextChanged();

private:
    void Announce();
    GUI::CLightWidget& GetSubject() { return subject == nullptr ? *this : *subject; }

    GUI::CHostTooltips* tips;
    GUI::CLightWidget* subject = nullptr;
    GUI::STooltip style;
    bool showOnClick = false;
};

} // namespace Mirel::DataModel::GUIWidgets
