#pragma once

#include "Mirel/Graphics/Geometry.h"

namespace Mirel::DataModel::GUIWidgets
{

/// How a sweep over a curve goes: the pixels between two samples, along either axis of the graph, and how
/// many samples make a line.
struct CCurveSteps
{
    int count = 0;
    float xStep = 0.0F;
    float yStep = 0.0F;
};

/// visiblePositions: the stops of the curve in view, fractions allowed, or -1 for a continuous curve, which
/// is sampled sampleRate times a pixel. False if there is nothing to draw: no area, no rate, a single sample.
bool GetCurveSteps(Graphics::CSize size, bool vertical, float visiblePositions, float sampleRate,
                   CCurveSteps& steps);

} // namespace Mirel::DataModel::GUIWidgets
