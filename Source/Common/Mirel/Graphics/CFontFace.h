#pragma once

#include "Mirel/Graphics/CFontDescription.h"
#include "Mirel/Graphics/CTextLayout.h"
#include "Mirel/Graphics/PangoNames.h"

#include <memory>
#include <string>

namespace Mirel::Graphics
{

class CFontLibrary;

/// A face in one size and quality. Widths and positions are not whole pixels and depend on nothing but the
/// font file, so that a layout is the same at every device scale. GUI thread.
class CFontFace
{
public:
    /// The library must know the family. height_ within CLimits.
    CFontFace(std::shared_ptr<CFontLibrary> library_, const std::string& family, int height_,
              const CFontDescription& description);
    CFontFace(const CFontFace&) = delete;
    CFontFace& operator=(const CFontFace&) = delete;
    ~CFontFace();

    double GetAscent() const { return ascent; }
    double GetDescent() const { return descent; }

    /// text is well-formed and not empty.
    std::shared_ptr<const CTextLayout> LayOut(std::string text, const CTextLayoutRequest& request) const;

private:
    std::shared_ptr<CFontLibrary> library;
    PangoContext* context;
    PangoFontDescription* wanted;
    bool underline;
    double ascent = 0.0;
    double descent = 0.0;
};

} // namespace Mirel::Graphics
