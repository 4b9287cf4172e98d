#pragma once

#include "SkinImages/Palette.h"

#include <cairo.h>

#include <memory>
#include <string>

namespace SkinImages
{

/// Pixels that are drawn on in the units of the plain image, whatever the scale. One thread.
class CPicture
{
public:
    CPicture(int width, int height, int scale);

    cairo_t* GetContext() const { return context.get(); }

    /// As a PNG file. False if it cannot be written.
    bool Write(const std::string& path) const;

private:
    struct CDestroySurface
    {
        void operator()(cairo_surface_t* owned) const { cairo_surface_destroy(owned); }
    };
    struct CDestroyContext
    {
        void operator()(cairo_t* owned) const { cairo_destroy(owned); }
    };

    std::unique_ptr<cairo_surface_t, CDestroySurface> surface;
    std::unique_ptr<cairo_t, CDestroyContext> context;
};

void SetColor(cairo_t* context, CRgb color, double alpha = 1.0);

/// The colour that stands at `share` of the way from one to the other.
CRgb Mix(CRgb from, CRgb to, double share);

/// Adds a rectangle with round corners to the path.
void AddRoundRectangle(cairo_t* context, double x, double y, double width, double height, double radius);

/// How an edge is drawn; the width in pixels.
struct SEdge
{
    CRgb color;
    double width = 1.0;
};

/// Fills a rectangle with round corners, with an edge inside it.
void DrawFace(cairo_t* context, double width, double height, double radius, CRgb fill, SEdge edge);

} // namespace SkinImages
