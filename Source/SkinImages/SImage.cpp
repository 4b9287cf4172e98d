#include "SkinImages/SImage.h"

#include "SkinImages/ControlPainters.h"
#include "SkinImages/ScreenPainters.h"

namespace SkinImages
{

namespace
{

const char* EndingOf(EState state)
{
    switch (state)
    {
    case EState::Disabled:
        return "_disabled";
    case EState::Hover:
        return "_hover";
    case EState::Focus:
        return "_focus";
    case EState::Pushed:
        return "_pushed";
    case EState::Selected:
        return "_selected";
    default:
        return "";
    }
}

const std::vector<EState> buttonStates = {EState::Normal, EState::Disabled, EState::Hover, EState::Focus,
                                          EState::Pushed};
const std::vector<EState> thumbStates = {EState::Normal, EState::Disabled, EState::Hover,
                                         EState::Focus,  EState::Pushed,   EState::Selected};

} // namespace

const std::vector<SImage>& GetImages()
{
    static const std::vector<SImage> images = {
        {"button", 60, 24, &PaintButton, 1, buttonStates},
        {"choice", 92, 26, &PaintChoice, 1, buttonStates},
        {"switch", 44, 24, &PaintSwitch, 2, buttonStates},
        {"direction", 44, 26, &PaintDirection, 2, buttonStates},
        {"bypass", 72, 24, &PaintBypass, 2, buttonStates},
        {"knob", 44, 44, &PaintKnob, 65, buttonStates},
        {"slider_track", 120, 18, &PaintSliderTrack},
        {"slider_thumb", 11, 18, &PaintSliderThumb, 1, thumbStates},
        {"marker", 14, 11, &PaintMarker, 1, thumbStates},
        {"clip_lamp", 10, 10, &PaintClipLamp, 2},
        {"midi_lamp", 10, 10, &PaintMidiLamp, 9},
        {"preset_name", 144, 24, &PaintFieldButton, 1, buttonStates},
        {"preset_step", 24, 24, &PaintFieldButton, 1, buttonStates},
        {"divider", 1, 44, &PaintDivider},
        {"header", 1000, 40, &PaintHeader},
        {"footer", 1000, 76, &PaintFooter},
        {"screen", 813, 203, &PaintScreen},
        {"histogram_screen", 114, 203, &PaintScreen},
        {"compact_header", 400, 32, &PaintHeader},
        {"compact_screen", 383, 155, &PaintScreen},
        {"name_plate", 88, 18, &PaintPlate},
        {"xy_header", 443, 40, &PaintHeader},
        {"xy_footer", 443, 48, &PaintFooter},
        {"xy_screen", 403, 403, &PaintScreen},
    };
    return images;
}

std::string FileNameOf(const SImage& image, EState state, int scale)
{
    return image.name + EndingOf(state) + (scale == 1 ? "" : "@2x") + ".png";
}

CPicture Draw(const SImage& image, EState state, int scale)
{
    CPicture picture(image.width, image.height * image.frames, scale);
    cairo_t* context = picture.GetContext();
    for (int i = 0; i < image.frames; ++i)
    {
        cairo_save(context);
        cairo_rectangle(context, 0.0, i * image.height, image.width, image.height);
        cairo_clip(context);
        cairo_translate(context, 0.0, i * image.height);
        image.paint(context, {static_cast<double>(image.width), static_cast<double>(image.height), state, i,
                              image.frames});
        cairo_restore(context);
    }
    return picture;
}

} // namespace SkinImages
