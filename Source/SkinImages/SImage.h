#pragma once

#include "SkinImages/CPicture.h"

#include <string>
#include <vector>

namespace SkinImages
{

/// The looks of a control; skins find an image of each by the ending of its name.
enum class EState
{
    Normal,
    Disabled,
    Hover,
    Focus,
    Pushed,
    Selected ///< Of a slider's thumb.
};

/// What a painter draws: one frame of one state, in a box whose top left corner is the origin.
struct SFrame
{
    double width = 0.0;
    double height = 0.0;
    EState state = EState::Normal;
    int index = 0;
    int count = 1;

    /// From 0 for the first frame to 1 for the last.
    double GetPosition() const { return count > 1 ? static_cast<double>(index) / (count - 1) : 0.0; }
};

using CPainter = void (*)(cairo_t* context, const SFrame& frame);

/// One image of the skins: a strip of frames, one above the other, in each of its states.
struct SImage
{
    std::string name;
    int width = 0; ///< Of a frame.
    int height = 0;
    CPainter paint = nullptr;
    int frames = 1;
    std::vector<EState> states = {EState::Normal};
};

/// All images of the factory skins.
const std::vector<SImage>& GetImages();

/// "knob_hover.png", or "knob_hover@2x.png" at twice the size.
std::string FileNameOf(const SImage& image, EState state, int scale);

CPicture Draw(const SImage& image, EState state, int scale);

} // namespace SkinImages
