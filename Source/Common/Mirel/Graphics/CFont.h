#pragma once

#include "Mirel/Graphics/CFontDescription.h"

#include <memory>

namespace Mirel::Graphics
{

class CFontFace;
class CTextLayout;
struct CTextLayoutRequest;

/// A font that was made, by a CFontManager. It keeps what it needs when the manager goes, and the layouts of
/// the texts that it was asked for last, so that a label that is drawn again costs little. GUI thread.
class CFont
{
public:
    CFont(CFontDescription description_, std::unique_ptr<CFontFace> face_);
    CFont(const CFont&) = delete;
    CFont& operator=(const CFont&) = delete;
    ~CFont();

    const CFontDescription& GetDescription() const { return description; }

    /// True if there is no face at all to draw with: texts have no extent and are not drawn.
    bool IsEmpty() const { return face == nullptr; }

    /// Pixels from the baseline up to the top of a line, and down to its bottom; not whole.
    double GetAscent() const;
    double GetDescent() const;

    /// The text set into lines. None for an empty font, an empty text and one that is not UTF-8.
    std::shared_ptr<const CTextLayout> LayOut(const char* text, const CTextLayoutRequest& request) const;

private:
    class CLayouts;

    CFontDescription description;
    std::unique_ptr<CFontFace> face;
    std::unique_ptr<CLayouts> layouts;
};

/// A font that several widgets hold; it goes with the last of them.
using CSharedFont = std::shared_ptr<const CFont>;

} // namespace Mirel::Graphics
