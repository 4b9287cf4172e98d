#pragma once

#include "Mirel/Graphics/CDrawSurface.h"

#include <string>
#include <vector>

namespace Tests
{

/// Draws nothing and keeps what it was asked for.
class CRecordingSurface : public Mirel::Graphics::CDrawSurface
{
public:
    enum EKind
    {
        Line,
        Polyline,
        PolylineF,
        Points,
        PointsF,
        LinesF,
        Text
    };

    struct COperation
    {
        EKind kind;
        std::vector<Mirel::Graphics::CPointF> points;
        Mirel::Graphics::CColor color;
        std::string text;
    };

    CRecordingSurface() : CDrawSurface(nullptr) {}

    void DrawLine(Mirel::Graphics::CPoint a, Mirel::Graphics::CPoint b) override
    {
        const Mirel::Graphics::CPoint points[] = {a, b};
        Add(Line, points, 2);
    }
    void DrawPolyline(const Mirel::Graphics::CPoint* points, int count) override
    {
        Add(Polyline, points, count);
    }
    void DrawPolylineF(const Mirel::Graphics::CPointF* points, int count) override
    {
        Add(PolylineF, points, count);
    }
    void DrawPoints(const Mirel::Graphics::CPoint* points, int count) override { Add(Points, points, count); }
    void DrawPointsF(const Mirel::Graphics::CPointF* points, int count) override
    {
        Add(PointsF, points, count);
    }
    void DrawLinesF(const Mirel::Graphics::CPointF* points, int count) override
    {
        Add(LinesF, points, count);
    }
    void DrawText(const char* text, Mirel::Graphics::CPoint point) override
    {
        Add(Text, &point, 1);
        operations.back().text = text;
    }
    void SetPenStyle(std::uint32_t style) override { penStyle = style; }

    std::vector<COperation> operations;
    std::uint32_t penStyle = 0;

private:
    template <class Point>
    void Add(EKind kind, const Point* points, int count)
    {
        operations.push_back({kind, {}, GetPenColor(), ""});
        for (int i = 0; i < count; ++i)
        {
            operations.back().points.push_back(
                {static_cast<float>(points[i].x), static_cast<float>(points[i].y)});
        }
    }
};

} // namespace Tests
