#pragma once

#include "Mirel/GUI/CFrameWindow.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenWindow.h"
#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Mirel/SkinEngine/UI/CGUISkinWindow.h"
#include "Support/CScriptedDialogs.h"
#include "Support/CTemporaryFolder.h"
#include "Support/DataFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <functional>
#include <memory>
#include <string>

namespace Mirel::SkinEngine
{

/// A window without a display, and skins in a folder of their own.
struct SkinWindowRig : testing::Test
{
    SkinWindowRig() { MakeWindow(); }

    void MakeWindow(std::function<void(ISkinModel&)> fillModel = {})
    {
        window.reset();
        SSkinWindowServices services;
        services.dataFolder = Tests::GetDataFolder();
        services.dialogs = &dialogs;
        services.tooltips = tooltips;
        services.fillModel = std::move(fillModel);
        window = std::make_unique<CGUISkinWindow>(platform, services);
        window->Show(true);
    }

    bool Open(const std::string& attributes, const std::string& body = {})
    {
        return OpenText("<SKIN " + attributes + ">" + body + "</SKIN>");
    }

    bool OpenText(const std::string& text)
    {
        folder.Write("skin.xml", text);
        window->SetSkinPath(folder.GetPath("skin.xml").c_str());
        return window->OpenSkin(&frame);
    }

    bool HasMessage(const std::string& text) const
    {
        for (const SSkinMessage& message : window->GetMessages())
        {
            if (message.text == text)
            {
                return true;
            }
        }
        return false;
    }

    std::string AllMessages() const
    {
        std::string all;
        for (const SSkinMessage& message : window->GetMessages())
        {
            all += std::to_string(message.kind) + " " + message.place + " " + message.text + "\n";
        }
        return all;
    }

    template <class I>
    const I* Find(const char* id) const
    {
        const Runtime::IDynamicObject* object = window->GetObjectsDictionary().Find(id);
        return object == nullptr ? nullptr : FindInterface<I>(*object);
    }

    float ParamValue(const char* id) const
    {
        const auto* param = Find<DataModel::Objects::IConstCaptureParam>(id);
        EXPECT_NE(param, nullptr) << id;
        return param == nullptr ? -1.0F : param->GetValue();
    }

    void PumpFor(int milliseconds)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
        while (std::chrono::steady_clock::now() < end)
        {
            loop.Pump(5);
        }
    }

    /// The colour of a pixel of the window, without alpha.
    std::uint32_t PixelAt(int x, int y)
    {
        const Graphics::CBitmap& picture = frame.PaintPicture();
        std::uint32_t pixel = 0;
        std::memcpy(&pixel,
                    picture.GetData() + std::ptrdiff_t{y} * picture.GetContext()->GetStride() +
                        std::ptrdiff_t{x} * 4,
                    sizeof(pixel));
        return pixel & 0xFFFFFFU;
    }

    Tests::CTemporaryFolder folder;
    Tests::CScriptedDialogs dialogs;
    GUI::CNativeRunLoop loop;
    GUI::COffscreenPlatform platform{loop};
    GUI::CFrameWindow frame{platform, "Test", {300, 200}};
    GUI::ITooltipPresenter* tooltips = nullptr; ///< Of the next window that is made.
    std::unique_ptr<CGUISkinWindow> window;
};

/// Names both objects of the window, so that they are there.
inline const char* const windowValues = "<PARAM_TEXT param_id=\"window.opacity\" width=\"40\" height=\"10\"/>"
                                        "<PARAM_TEXT param_id=\"window.loaded\" width=\"40\" height=\"10\"/>";

} // namespace Mirel::SkinEngine
