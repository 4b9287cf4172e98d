#pragma once

#include "Mirel/Graphics/CImage.h"
#include "Mirel/Graphics/CImageCatalog.h"

#include <memory>

namespace WidgetGallery
{

/// A small picture with transparent corners.
Mirel::Graphics::CSharedImage MakeBadge();

/// A catalog of film strips, frames on top of each other, one for each state of a widget: a knob that turns.
std::unique_ptr<Mirel::Graphics::CImageCatalog> MakeKnobStrips(int side, int framesCount);

/// The same of a column of lamps.
std::unique_ptr<Mirel::Graphics::CImageCatalog> MakeMeterStrips(Mirel::Graphics::CSize frame,
                                                                int framesCount);

/// The same of a button whose lamp is off in the first frame and on in the last.
std::unique_ptr<Mirel::Graphics::CImageCatalog> MakeButtonStrips(Mirel::Graphics::CSize frame,
                                                                 int framesCount);

/// The track of a slider, and its thumb.
std::unique_ptr<Mirel::Graphics::CImageCatalog> MakeTrack(Mirel::Graphics::CSize size, bool isLit);
std::unique_ptr<Mirel::Graphics::CImageCatalog> MakeThumb(Mirel::Graphics::CSize size);

} // namespace WidgetGallery
