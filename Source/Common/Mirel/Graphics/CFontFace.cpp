#include "Mirel/Graphics/CFontFace.h"

#include "Mirel/Graphics/CFontLibrary.h"

#include <algorithm>
#include <pango/pangocairo.h>
#include <utility>

namespace Mirel::Graphics
{

namespace
{

double ToPixels(int units)
{
    return static_cast<double>(units) / PANGO_SCALE;
}

void SetOptions(PangoContext* context, EFontQuality quality)
{
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, quality == EFontQuality::NoAntiAlias ? CAIRO_ANTIALIAS_NONE
                                                                                   : CAIRO_ANTIALIAS_GRAY);
    // Only heights are fitted to pixels: strokes are crisp, and widths stay what the font file says.
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context, options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(context, FALSE);
    // What the user's language is makes no difference.
    pango_context_set_language(context, pango_language_from_string("en"));
    pango_context_set_base_dir(context, PANGO_DIRECTION_LTR);
}

/// Line breaks in all their forms become one kind, or blanks; other control characters become blanks.
void PlainControls(std::string& text, bool keepLineBreaks)
{
    std::size_t to = 0;
    for (std::size_t from = 0; from < text.size(); ++from)
    {
        const char c = text[from];
        const bool isBreak = c == '\n' || c == '\r';
        if (c == '\r' && from + 1 < text.size() && text[from + 1] == '\n')
        {
            ++from;
        }
        const bool isControl = static_cast<unsigned char>(c) < ' ' || c == '\x7f';
        text[to++] = isBreak && keepLineBreaks ? '\n' : isControl ? ' ' : c;
    }
    text.resize(to);
}

} // namespace

CFontFace::CFontFace(std::shared_ptr<CFontLibrary> library_, const std::string& family, int height_,
                     const CFontDescription& description)
    : library(std::move(library_)),
      context(library->CreateContext()),
      wanted(pango_font_description_new()),
      underline(description.underline)
{
    SetOptions(context, description.quality);
    pango_font_description_set_family(wanted, family.c_str());
    pango_font_description_set_absolute_size(wanted, static_cast<double>(height_) * PANGO_SCALE);
    pango_font_description_set_weight(
        wanted, description.weight == CFontDescription::boldWeight ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_style(wanted, description.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    PangoFontMetrics* metrics =
        pango_context_get_metrics(context, wanted, pango_context_get_language(context));
    ascent = ToPixels(pango_font_metrics_get_ascent(metrics));
    descent = ToPixels(pango_font_metrics_get_descent(metrics));
    pango_font_metrics_unref(metrics);
}

CFontFace::~CFontFace()
{
    pango_font_description_free(wanted);
    g_object_unref(context);
}

std::shared_ptr<const CTextLayout> CFontFace::LayOut(std::string text,
                                                     const CTextLayoutRequest& request) const
{
    const bool multiline = (request.flags & CTextFormat::multiline) != 0;
    const bool wraps = multiline && (request.flags & CTextFormat::noWrap) == 0;
    const bool shortens = (request.flags & CTextFormat::ellipsis) != 0;
    PlainControls(text, multiline);
    PangoLayout* layout = pango_layout_new(context);
    pango_layout_set_font_description(layout, wanted);
    pango_layout_set_auto_dir(layout, FALSE);
    pango_layout_set_single_paragraph_mode(layout, multiline ? FALSE : TRUE);
    if (request.width >= 0 && (wraps || shortens))
    {
        constexpr int widest = G_MAXINT / PANGO_SCALE;
        pango_layout_set_width(layout, std::min(request.width, widest) * PANGO_SCALE);
        pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
        pango_layout_set_ellipsize(layout, shortens && !wraps ? PANGO_ELLIPSIZE_END : PANGO_ELLIPSIZE_NONE);
    }
    if (underline)
    {
        PangoAttrList* attributes = pango_attr_list_new();
        pango_attr_list_insert(attributes, pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
        pango_layout_set_attributes(layout, attributes);
        pango_attr_list_unref(attributes);
    }
    pango_layout_set_text(layout, text.data(), static_cast<int>(text.size()));
    return std::make_shared<CTextLayout>(layout, ascent, descent);
}

} // namespace Mirel::Graphics
