#pragma once

#include "ManualPdf/SBlock.h"

#include <cairo.h>
#include <pango/pangocairo.h>

#include <memory>
#include <string>

namespace ManualPdf
{

/// Sets blocks one below the other on pages of a PDF document, with numbers and an outline. One thread.
class CPages
{
public:
    explicit CPages(const std::string& path);

    /// Pictures are looked for in the folder. False for one that cannot be read.
    bool Add(const SBlock& block, const std::string& folder);

    /// Writes the document. False if it cannot be written.
    bool Finish();

private:
    struct CDestroySurface
    {
        void operator()(cairo_surface_t* owned) const { cairo_surface_destroy(owned); }
    };
    struct CDestroyContext
    {
        void operator()(cairo_t* owned) const { cairo_destroy(owned); }
    };
    struct CUnref
    {
        void operator()(PangoLayout* layout) const { g_object_unref(layout); }
    };
    using CSurface = std::unique_ptr<cairo_surface_t, CDestroySurface>;
    using CLayout = std::unique_ptr<PangoLayout, CUnref>;

    CLayout LayOut(const std::string& markup, double size, bool bold, double width) const;
    static double HeightOf(PangoLayout* layout);
    void Show(PangoLayout* layout, double x, double top, double grey);

    void AddHeading(const SBlock& block);
    void AddText(const SBlock& block);
    void AddRow(const SBlock& block);
    bool AddPicture(const SBlock& block, const std::string& folder);

    /// Goes to the next page if so much does not fit on this one.
    void Reserve(double height);
    void EndPage();

    CSurface surface;
    std::unique_ptr<cairo_t, CDestroyContext> context;
    double y;
    int page = 1;
};

} // namespace ManualPdf
