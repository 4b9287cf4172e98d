#pragma once

#include "Common/Mirel/Graphics/PngFile.h"
#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/DataModel/Objects/CAction.h"
#include "Mirel/DataModel/Objects/CCaptureCurve.h"
#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/GUI/CLightWidgetAdapter.h"
#include "Mirel/GUI/CLightWidgetLayoutCell.h"
#include "Mirel/GUI/CWidgetLayoutCell.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Mirel/SkinEngine/UI/CGUISkinData.h"
#include "Mirel/SkinEngine/UI/CSkinUIElementsHandler.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CTemporaryFolder.h"
#include "Support/DataFolder.h"
#include "Support/TakeMessages.h"

#include <memory>
#include <string>
#include <vector>

namespace Tests
{

/// A skin that is built from the text of a file into widgets that stand in no window.
class CUIRig : private Mirel::SkinEngine::ISkinRoot
{
public:
    using ICaptureParam = Mirel::DataModel::Objects::ICaptureParam;
    using IConstCaptureParam = Mirel::DataModel::Objects::IConstCaptureParam;

    CUIRig() { window.Show(true); }

    /// The body of a SKIN element. With wanted all properties are exposed, otherwise those that the text
    /// marks.
    bool Build(const std::string& body, bool wanted = true)
    {
        return BuildFile("<SKIN>" + body + "</SKIN>", wanted);
    }

    bool BuildFile(const std::string& text, bool wanted = true)
    {
        folder.Write("test.xml", text);
        parser = std::make_unique<Mirel::SkinEngine::CSkinParser>(log);
        Mirel::SkinEngine::CSkinUIElementsHandler handler(*parser, log, *data, services, *this);
        return handler.Parse(folder.GetPath("test.xml").c_str(), !wanted);
    }

    void Close() { data->Clear(); }

    void WriteImage(const std::string& name, int width, int height, std::uint32_t color = 0xFF808080U)
    {
        WritePng(folder.GetPath(name), width, height, false, [color](int, int) { return color; });
    }

    ICaptureParam& AddParam(const std::string& id, float min = 0.0f, float max = 1.0f)
    {
        using namespace Mirel::DataModel::Objects;
        auto param =
            std::make_unique<CCaptureParam>(CParamInfo(ValueKindReal, min, max, min, id.c_str(), "", ""));
        ICaptureParam& added = *param;
        model.AddParam(id.c_str(), param.release(), Mirel::SkinEngine::allObjectFlags, true);
        return added;
    }

    Mirel::DataModel::Objects::CCaptureCurve& AddCurve(const std::string& id)
    {
        auto* curve = new Mirel::DataModel::Objects::CCaptureCurve();
        curve->GetInfo().GetXInfo().SetMax(10.0f);
        curve->GetInfo().GetYInfo().SetMax(1.0f);
        model.AddCurve(id.c_str(), curve, Mirel::SkinEngine::allObjectFlags, true);
        return *curve;
    }

    Mirel::DataModel::Objects::CCaptureString& AddString(const std::string& id, const char* text)
    {
        auto* string = new Mirel::DataModel::Objects::CCaptureString();
        string->SetValue(text);
        model.AddString(id.c_str(), string, Mirel::SkinEngine::objectItself, true);
        return *string;
    }

    template <class I>
    I* Find(const std::string& id)
    {
        return Mirel::SkinEngine::FindObject<I>(model.GetObjects(), id.c_str());
    }

    std::vector<std::string> GetIds() const
    {
        const Mirel::SkinEngine::CSkinModel& seen = model;
        std::vector<std::string> ids;
        for (const std::unique_ptr<Mirel::SkinEngine::ISkinDynamicObjectsConstIterator> each(
                 seen.GetObjects().CreateIterator());
             each->IsValid(); each->Next())
        {
            ids.emplace_back(each->GetId());
        }
        return ids;
    }

    bool Has(const std::string& id) { return model.GetObjects().Find(id.c_str()) != nullptr; }

    ICaptureParam& Param(const std::string& id)
    {
        auto* param = Find<ICaptureParam>(id);
        return param == nullptr ? model.GetParamNotFound() : *param;
    }

    /// What a parameter holds; -999 if there is none.
    float Value(const std::string& id)
    {
        const auto* param = Find<IConstCaptureParam>(id);
        return param == nullptr ? -999.0f : param->GetValue();
    }

    /// A light widget by its place in the tree, below the root.
    template <class T = Mirel::GUI::CLightWidget>
    T* Widget(int index = 0, int inner = -1)
    {
        Mirel::GUI::CLightWidget* widget = light.GetChild(index);
        widget = widget != nullptr && inner >= 0 ? widget->GetChild(inner) : widget;
        return dynamic_cast<T*>(widget);
    }

    /// Where a widget stands: x, y, width, height.
    static std::vector<int> Place(const Mirel::GUI::CLightWidget* widget)
    {
        if (widget == nullptr)
        {
            return {};
        }
        return {widget->GetPosition().x, widget->GetPosition().y, widget->GetSize().width,
                widget->GetSize().height};
    }

    std::vector<int> Place(int index = 0, int inner = -1) { return Place(Widget(index, inner)); }

    /// Since the last call.
    std::vector<std::string> TakeMessages(bool withInfos = false)
    {
        return Tests::TakeMessages(log, withInfos);
    }

    CTemporaryFolder folder;
    CFakeTimerProvider timer;
    Mirel::CoreUtilities::CMemMessageLog log;
    Mirel::SkinEngine::CSkinModel model{&log};
    Mirel::Graphics::CGraphicResourcesManager images;
    Mirel::Graphics::CFontManager fonts{Mirel::Graphics::GetFontsFolder(GetDataFolder())};
    Mirel::SkinEngine::SSkinUIServices services{images, fonts, {&timer}};
    Mirel::GUI::CWidget window;
    Mirel::GUI::CLightWidget light;
    Mirel::GUI::CLightWidgetAdapter adapter{&light, false};
    Mirel::SkinEngine::SSkinRootAttributes root; ///< As the skin gave it.
    std::unique_ptr<Mirel::SkinEngine::CSkinParser> parser;
    std::unique_ptr<Mirel::SkinEngine::CGUISkinData> data =
        std::make_unique<Mirel::SkinEngine::CGUISkinData>(model);

private:
    /// 400 by 300, whatever the skin says.
    Mirel::SkinEngine::SSkinPlace OpenRoot(Mirel::SkinEngine::SSkinRootAttributes attributes) override
    {
        root = std::move(attributes);
        if (root.lightMode && !root.systemWidget)
        {
            light.GetCell().SetFixedSize({400, 300});
            return {&light, &window, &light.GetCell()};
        }
        window.GetCell().SetFixedSize({400, 300});
        return {nullptr, &window, &window.GetCell()};
    }
};

} // namespace Tests
