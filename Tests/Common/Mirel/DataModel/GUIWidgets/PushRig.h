#pragma once

#include "Common/Mirel/DataModel/Controls/AxisInfos.h"
#include "Common/Mirel/GUI/GUIRig.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CImageCatalog.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <memory>
#include <string>
#include <vector>

namespace Tests
{

inline Mirel::Graphics::CSharedImage MakeFilled(Mirel::Graphics::CSize size,
                                                const std::vector<Mirel::Graphics::CColor>& rows)
{
    auto pixels = Mirel::Graphics::CBitmapContext::Create(size, 32);
    const auto access = pixels->CreatePixelAccess();
    const int rowHeight = size.height / static_cast<int>(rows.size());
    for (int y = 0; y < size.height; ++y)
    {
        for (int x = 0; x < size.width; ++x)
        {
            access->SetPixel(x, y, rows[static_cast<std::size_t>(y / rowHeight)]);
        }
    }
    return std::make_shared<Mirel::Graphics::CImage>(std::move(pixels), false);
}

/// Of state s and frame f the colour is 10 * s + 16 for red and 40 * f + 16 for green.
inline Mirel::Graphics::CColor ColorOf(int state, int frame = 0)
{
    return {static_cast<std::uint8_t>(10 * state + 16), static_cast<std::uint8_t>(40 * frame + 16), 100};
}

/// A catalog of strips with frames on top of each other, one for each state.
inline Mirel::Graphics::CImageCatalog* MakeCatalog(Mirel::Graphics::CSize frame, int framesCount = 1,
                                                   int statesCount = 5)
{
    auto catalog = std::make_unique<Mirel::Graphics::CImageCatalog>();
    for (int state = 0; state < statesCount; ++state)
    {
        std::vector<Mirel::Graphics::CColor> rows;
        rows.reserve(static_cast<std::size_t>(framesCount));
        for (int f = 0; f < framesCount; ++f)
        {
            rows.push_back(ColorOf(state, f));
        }
        catalog->SetEntry(state, std::make_unique<Mirel::Graphics::CNormalImageElement>(
                                     MakeFilled({frame.width, frame.height * framesCount}, rows)));
    }
    return catalog.release();
}

/// A parameter whose gestures and values are written down: "[" and "]" for the capture, values between.
class CNotedParam
{
public:
    explicit CNotedParam(const Mirel::DataModel::Objects::CParamInfo& info)
        : param(info),
          onBegin([this] { script += "["; }),
          onEnd([this] { script += "]"; }),
          onValue([this] { script.append(std::to_string(param.GetValue()), 0, 4).append(" "); })
    {
        param.GetBeginCaptureEventProvider().Connect(&onBegin);
        param.GetEndCaptureEventProvider().Connect(&onEnd);
        param.GetValueChangedEventProvider().Connect(&onValue);
    }
    CNotedParam(const CNotedParam&) = delete;
    CNotedParam& operator=(const CNotedParam&) = delete;
    ~CNotedParam()
    {
        param.GetBeginCaptureEventProvider().Disconnect(&onBegin);
        param.GetEndCaptureEventProvider().Disconnect(&onEnd);
        param.GetValueChangedEventProvider().Disconnect(&onValue);
    }

    std::string Take() { return std::exchange(script, std::string()); }

    Mirel::DataModel::Objects::CCaptureParam param;

private:
    std::string script;
    CFunctionCommand onBegin;
    CFunctionCommand onEnd;
    CFunctionCommand onValue;
};

/// A window with keys and modifiers in short words.
class CControlRig : public CLightRig
{
public:
    using CLightRig::CLightRig;

    static constexpr std::uint32_t shift = Mirel::GUI::ModifierFlags::shift;
    static constexpr std::uint32_t alternate = Mirel::GUI::ModifierFlags::alternate;

    void Down(Mirel::GUI::ENativeKey key, char32_t character = 0)
    {
        platform.PressKey(MakeKey(key, character));
    }
    void Up(Mirel::GUI::ENativeKey key, char32_t character = 0)
    {
        platform.ReleaseKey(MakeKey(key, character));
    }
    void Type(Mirel::GUI::ENativeKey key, char32_t character = 0)
    {
        Down(key, character);
        Up(key, character);
    }

    /// Within the widget at the place of the rig where nothing stands.
    void MoveAway() { Move(95, 95); }

    std::uint32_t Seen(int x, int y)
    {
        platform.Pump();
        return PixelAt(x, y);
    }

private:
    static Mirel::GUI::SNativeKeyEvent MakeKey(Mirel::GUI::ENativeKey key, char32_t character)
    {
        Mirel::GUI::SNativeKeyEvent event;
        event.key = key;
        event.character = character;
        return event;
    }
};

} // namespace Tests
