#include "ManualPdf/CPages.h"

#include <cairo-pdf.h>

#include <algorithm>
#include <filesystem>

namespace ManualPdf
{

namespace
{

// A4, in points.
constexpr double pageWidth = 595.0;
constexpr double pageHeight = 842.0;
constexpr double margin = 64.0;
constexpr double textWidth = pageWidth - 2.0 * margin;

constexpr double bodySize = 10.0;
constexpr double smallSize = 8.5;
constexpr double headingSizes[] = {24.0, 15.0, 11.5};
constexpr double gap = 7.0;
constexpr double itemIndent = 14.0;
constexpr double cellGap = 10.0;
constexpr double ink = 0.1;
constexpr double faint = 0.45;

/// The share of a table's first columns; the last takes the rest.
constexpr double columnShare = 0.28;

} // namespace

CPages::CPages(const std::string& path)
    : surface(cairo_pdf_surface_create(path.c_str(), pageWidth, pageHeight)),
      context(cairo_create(surface.get())),
      y(margin)
{
    // The same text gives the same file.
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATE_DATE, "2026-01-01T00:00:00Z");
}

bool CPages::Add(const SBlock& block, const std::string& folder)
{
    switch (block.kind)
    {
    case SBlock::EKind::Heading:
        AddHeading(block);
        return true;
    case SBlock::EKind::Row:
        AddRow(block);
        return true;
    case SBlock::EKind::Picture:
        return AddPicture(block, folder);
    default:
        AddText(block);
        return true;
    }
}

bool CPages::Finish()
{
    EndPage();
    context.reset();
    cairo_surface_finish(surface.get());
    return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS;
}

CPages::CLayout CPages::LayOut(const std::string& markup, double size, bool bold, double width) const
{
    CLayout layout(pango_cairo_create_layout(context.get()));
    PangoFontDescription* font = pango_font_description_from_string("DejaVu Sans");
    pango_font_description_set_absolute_size(font, size * PANGO_SCALE);
    pango_font_description_set_weight(font, bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_layout_set_font_description(layout.get(), font);
    pango_font_description_free(font);
    constexpr float lines = 1.25F;
    pango_layout_set_line_spacing(layout.get(), lines);
    pango_layout_set_width(layout.get(), static_cast<int>(width * PANGO_SCALE));
    pango_layout_set_markup(layout.get(), markup.c_str(), -1);
    return layout;
}

double CPages::HeightOf(PangoLayout* layout)
{
    PangoRectangle extents;
    pango_layout_get_extents(layout, nullptr, &extents);
    return static_cast<double>(extents.height) / PANGO_SCALE;
}

void CPages::Show(PangoLayout* layout, double x, double top, double grey)
{
    cairo_set_source_rgb(context.get(), grey, grey, grey);
    cairo_move_to(context.get(), x, top);
    pango_cairo_show_layout(context.get(), layout);
}

void CPages::AddHeading(const SBlock& block)
{
    const int level = std::clamp(block.level, 1, 3);
    const CLayout layout = LayOut(block.text, headingSizes[level - 1], true, textWidth);
    const double height = HeightOf(layout.get());
    constexpr double linesAfter = 60.0; // A heading does not stand alone at the end of a page.
    Reserve(height + 2.0 * gap + linesAfter);
    y += y > margin ? 2.0 * gap : 0.0;
    if (level == 1)
    {
        cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, block.plain.c_str());
    }
    else
    {
        const std::string place = "page=" + std::to_string(page) + " pos=[0 " + std::to_string(y) + "]";
        cairo_pdf_surface_add_outline(surface.get(), CAIRO_PDF_OUTLINE_ROOT, block.plain.c_str(),
                                      place.c_str(), static_cast<cairo_pdf_outline_flags_t>(0));
    }
    Show(layout.get(), margin, y, ink);
    y += height + gap;
}

void CPages::AddText(const SBlock& block)
{
    const double indent = block.kind == SBlock::EKind::Item ? itemIndent : 0.0;
    const CLayout layout = LayOut(block.text, bodySize, false, textWidth - indent);
    Reserve(HeightOf(layout.get()));
    if (indent > 0.0)
    {
        Show(LayOut("•", bodySize, false, indent).get(), margin + 2.0, y, faint);
    }
    Show(layout.get(), margin + indent, y, ink);
    y += HeightOf(layout.get()) + (indent > 0.0 ? gap / 2.0 : gap);
}

void CPages::AddRow(const SBlock& block)
{
    const std::size_t last = block.cells.empty() ? 0 : block.cells.size() - 1;
    const double column = last == 0 ? 0.0 : textWidth * columnShare;
    std::vector<CLayout> layouts;
    double height = 0.0;
    for (std::size_t i = 0; i < block.cells.size(); ++i)
    {
        const double width = i == last ? textWidth - column * static_cast<double>(last) : column;
        layouts.push_back(LayOut(block.cells[i], smallSize, block.level == 1, width - cellGap));
        height = std::max(height, HeightOf(layouts.back().get()));
    }
    Reserve(height + gap);
    for (std::size_t i = 0; i < layouts.size(); ++i)
    {
        Show(layouts[i].get(), margin + column * static_cast<double>(i), y, ink);
    }
    y += height + gap / 2.0;
    constexpr double line = 0.5;
    constexpr double lineGrey = 0.8;
    cairo_set_source_rgb(context.get(), lineGrey, lineGrey, lineGrey);
    cairo_set_line_width(context.get(), line);
    cairo_move_to(context.get(), margin, y);
    cairo_line_to(context.get(), margin + textWidth, y);
    cairo_stroke(context.get());
    y += gap / 2.0;
}

bool CPages::AddPicture(const SBlock& block, const std::string& folder)
{
    const CSurface picture(
        cairo_image_surface_create_from_png((std::filesystem::path(folder) / block.file).c_str()));
    if (cairo_surface_status(picture.get()) != CAIRO_STATUS_SUCCESS)
    {
        return false;
    }
    const double width = cairo_image_surface_get_width(picture.get());
    const double height = cairo_image_surface_get_height(picture.get());
    constexpr double usualScale = 0.6;
    const double scale = std::min(usualScale, textWidth / width);
    const CLayout caption = LayOut(block.text, smallSize, false, textWidth);
    Reserve(height * scale + HeightOf(caption.get()) + 2.0 * gap);
    cairo_save(context.get());
    cairo_translate(context.get(), margin, y);
    cairo_scale(context.get(), scale, scale);
    cairo_set_source_surface(context.get(), picture.get(), 0.0, 0.0);
    cairo_paint(context.get());
    cairo_restore(context.get());
    y += height * scale + gap / 2.0;
    Show(caption.get(), margin, y, faint);
    y += HeightOf(caption.get()) + 2.0 * gap;
    return true;
}

void CPages::Reserve(double height)
{
    if (y > margin && y + height > pageHeight - margin)
    {
        EndPage();
    }
}

void CPages::EndPage()
{
    const CLayout number = LayOut(std::to_string(page), smallSize, false, textWidth);
    pango_layout_set_alignment(number.get(), PANGO_ALIGN_CENTER);
    Show(number.get(), margin, pageHeight - margin * 0.6, faint);
    cairo_show_page(context.get());
    ++page;
    y = margin;
}

} // namespace ManualPdf
