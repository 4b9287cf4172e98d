#pragma once

#include "Host/WidgetGallery/CGalleryPage.h"
#include "Host/WidgetGallery/IGallerySection.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace WidgetGallery
{

/// Curve graphs in every way that they draw, with grids and rulers.
class CCurvesSection : public IGallerySection
{
public:
    CCurvesSection();

    void Fill(CGalleryPage& page);

private:
    using CCurve = DataModel::Objects::CCaptureCurve;

    CCurve& MakeCurve(std::function<float(float)> code);
    void AddGraph(CGalleryPage& page, const std::string& caption, const CCurve& curve, bool isBargraph,
                  bool antiAlias, float sampleRate = 1.0F, bool isMinMax = false);
    void AddVertical(CGalleryPage& page);
    void AddStops(CGalleryPage& page);
    void AddXY(CGalleryPage& page, bool isCurve);
    void AddScope(CGalleryPage& page);
    void AddGrids(CGalleryPage& page);
    void AddRulers(CGalleryPage& page);

    std::vector<std::unique_ptr<CCurve>> curves;
};

} // namespace WidgetGallery
