#pragma once

#include "Mirel/Graphics/CColor.h"
#include "Mirel/Graphics/CFont.h"
#include "Mirel/Graphics/CTextFormat.h"
#include "Mirel/Graphics/CairoNames.h"
#include "Mirel/Graphics/Geometry.h"
#include "Mirel/Graphics/LineClip.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace Mirel::Graphics
{

class CBitmap;
class CBitmapAdapter;
class CBitmapContext;
class CImage;
class CLayer;

/// What everything is drawn on. Whole coordinates are pixels from the top left, y downward; lines run through
/// pixel centres, one pixel wide, antialiased, with ends cut at the end points: a line from one pixel centre
/// to another covers half of the pixels at its ends. A segment without length paints the pixel that it stands
/// on. Coordinates that are not finite draw nothing. A surface without a context ignores all drawing. GUI
/// thread.
class CDrawSurface
{
public:
    /// Takes over the caller's reference to the context, and sets its line width and caps. May be null.
    explicit CDrawSurface(cairo_t* context_);
    CDrawSurface(const CDrawSurface&) = delete;
    CDrawSurface& operator=(const CDrawSurface&) = delete;
    virtual ~CDrawSurface();

    /// The drawing library's context, owned by the surface; may be null.
    virtual cairo_t* GetNativeContext() const { return context; }

    /// The colour of lines and texts.
    virtual void SetPenColor(CColor color) { state.pen = color; }
    virtual CColor GetPenColor() const { return state.pen; }

    /// 0 solid, 1 dash, 2 dot, 3 dash and dot, 4 dash and two dots. Lines are solid whatever the style.
    virtual void SetPenStyle(std::uint32_t style);

    virtual void DrawLine(CPoint a, CPoint b);

    /// A line between each two successive points; nothing for fewer than two. Many lines are cheaper this way
    /// than one by one.
    virtual void DrawPolyline(const CPoint* points, int count);

    /// Covers half of the pixel.
    virtual void DrawPoint(CPoint point);
    virtual void DrawPoints(const CPoint* points, int count);

    /// The outline, inside of the rectangle; nothing for a rectangle without a pixel.
    virtual void DrawRect(const CRect& rect);

    virtual void DrawLineF(CPointF a, CPointF b);
    virtual void DrawPolylineF(const CPointF* points, int count);
    virtual void DrawPointF(CPointF point);
    virtual void DrawPointsF(const CPointF* points, int count);

    /// Separate lines, from each point of even index to the one after it: DrawLineF for each two, and the
    /// cheap way to draw the bars of a graph.
    virtual void DrawLinesF(const CPointF* ends, int count);

    virtual void SetFillColor(CColor color) { state.fill = color; }
    virtual void FillRect(const CRect& rect);

    /// Draws the part of that size at src with its corner at dst; what lies outside of the image is left out.
    virtual void DrawImage(const CImage& image, CPoint src, CPoint dst, CSize size);

    /// opacity from 0 to 255.
    virtual void DrawImageAlpha(const CImage& image, CPoint src, CPoint dst, CSize size, int opacity);

    /// The source part scaled to the destination; source pixels outside of the image are left out.
    virtual void StretchImage(const CImage& image, const CRect& src, const CRect& dst);

    virtual void DrawBitmap(const CBitmap& bitmap, CPoint src, CPoint dst, CSize size);
    virtual void DrawBitmapAlpha(const CBitmap& bitmap, CPoint src, CPoint dst, CSize size, int opacity);
    virtual void StretchBitmap(const CBitmap& bitmap, const CRect& src, const CRect& dst);

    virtual void DrawLayer(const CLayer& layer, CPoint point);
    virtual void DrawLayerAlpha(const CLayer& layer, CPoint point, int opacity);
    virtual void DrawLayerInRect(const CLayer& layer, const CRect& rect);

    /// The font of texts; none at first, and then texts are not drawn and have no extent.
    virtual void SetFont(CSharedFont newFont) { font = std::move(newFont); }
    virtual const CSharedFont& GetFont() const { return font; }

    /// One line in the pen's colour, its top left at the point, not turned. A text is UTF-8; one that is not,
    /// and null, are not drawn and have no extent; of one that is longer than CLimits allow, the beginning
    /// counts.
    virtual void DrawText(const char* text, CPoint point);

    /// Turned by the escapement of the font and aligned in the rectangle. Nothing without the wordBreak bit
    /// of the format.
    virtual void DrawTextInRect(const char* text, const CRect& rect, const CTextFormat& format);

    /// The size of a text as one line, turned by the escapement of the font: of the box around it.
    virtual CSize GetTextExtent(const char* text) const;

    /// The same as the format sets the text in a rectangle of that width; 0, 0 without its calculate bit.
    virtual CSize GetTextExtentInRect(const char* text, const CRect& rect, const CTextFormat& format) const;

    /// The size of a text as one line: its width, and the height of a line of the font, rounded up.
    virtual CSize GetTextExtentUnrotated(const char* text) const;

    /// True lets texts run out of their rectangles. False at first.
    virtual void SetTextNoClip(bool noClip) { textNoClip = noClip; }
    virtual bool GetTextNoClip() const { return textNoClip; }

    virtual void Translate(CPoint delta);

    /// Makes a whole coordinate as many pixels as the factor says, from the present origin.
    virtual void Scale(double factor);

    /// Pixels under a whole coordinate across; 1.0 without a context.
    virtual double GetScale() const;

    /// Where (0, 0) lies, from the top left of the whole surface: each coordinate plus 0.5 without its
    /// fraction, so what lies left or above comes out one pixel too far right or down.
    virtual CPoint GetTranslation() const;

    /// The bounding box of what can be drawn on.
    virtual CRect GetClipBox() const;
    virtual void ClipToRect(const CRect& rect);

    /// Keeps colours, origin and clip until the matching RestoreState; a RestoreState too many does nothing.
    virtual void SaveState();
    virtual void RestoreState();

    /// Device pixels that one pixel of the surface is wide and high: 1 to 4.
    virtual int GetDeviceScale() const;

    /// The pixels under the surface as a bitmap, owned by the surface; none if it has none in memory.
    virtual CBitmap* GetBitmap();
    virtual CBitmap* GetBitmapView() { return GetBitmap(); }

    /// Of all the pixels under the surface; 0, 0 if it has none in memory.
    virtual CSize GetContextSize() const;

private:
    struct CState
    {
        CColor pen;
        CColor fill;
    };

    void SetSource(CColor color);

    template <class SegmentAt>
    void StrokeAll(int count, const SegmentAt& segmentAt);
    void Stroke(const CSegment& segment);
    void PaintPart(CBitmapContext* pixels, const CRect& src, const CRect& dst, int opacity);

    cairo_t* context;
    CState state;
    std::vector<CState> saved;
    CSharedFont font;
    bool textNoClip = false;
    std::shared_ptr<CBitmapContext> view;
    std::unique_ptr<CBitmapAdapter> bitmap;
};

} // namespace Mirel::Graphics
