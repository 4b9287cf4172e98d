#pragma once

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/CSkinModel.h"
#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"
#include "Mirel/SkinEngine/Model/DescribeModel.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Support/CFakeTimerProvider.h"
#include "Support/CManualTickSource.h"
#include "Support/CTemporaryFolder.h"
#include "Support/TakeMessages.h"

#include <memory>
#include <string>
#include <vector>

namespace Tests
{

/// Writes down the pages that it is to open.
class CFakeUrlOpener : public Mirel::SkinEngine::IUrlOpener
{
public:
    void OpenUrl(const char* url) override { urls.emplace_back(url); }

    std::vector<std::string> urls;
};

/// A model that is built from the text of a file.
class CModelRig
{
public:
    /// The body of a MODEL element without attributes. With wanted all objects are built, otherwise those
    /// that the text marks.
    bool Build(const std::string& body, bool wanted = true)
    {
        return BuildFile("<MODEL>" + body + "</MODEL>", wanted);
    }

    bool BuildFile(const std::string& text, bool wanted = true)
    {
        folder.Write("test.model", text);
        return factory.Parse(folder.GetPath("test.model").c_str(), !wanted);
    }

    bool PreParse(const std::string& body)
    {
        folder.Write("test.model", "<MODEL>" + body + "</MODEL>");
        return factory.PreParse(folder.GetPath("test.model").c_str());
    }

    template <class I>
    I* Find(const std::string& id)
    {
        return Mirel::SkinEngine::FindObject<I>(model.GetObjects(), id.c_str());
    }

    bool Has(const std::string& id) { return model.GetObjects().Find(id.c_str()) != nullptr; }

    Mirel::DataModel::Objects::ICaptureParam& Param(const std::string& id)
    {
        auto* param = Find<Mirel::DataModel::Objects::ICaptureParam>(id);
        return param == nullptr ? model.GetParamNotFound() : *param;
    }

    /// What a read-only parameter holds; -999 if there is none.
    float Value(const std::string& id)
    {
        const auto* param = Find<Mirel::DataModel::Objects::IConstCaptureParam>(id);
        return param == nullptr ? -999.0f : param->GetValue();
    }

    std::string Text(const std::string& id)
    {
        const auto* string = Find<Mirel::DataModel::Objects::IConstCaptureString>(id);
        return string == nullptr ? "(none)" : string->GetValue();
    }

    /// All objects, a line each.
    std::vector<std::string> Lines() const
    {
        std::vector<std::string> lines;
        for (const auto& object : Mirel::SkinEngine::DescribeObjects(model))
        {
            lines.push_back(Mirel::SkinEngine::ToLine(object));
        }
        return lines;
    }

    /// Since the last call.
    std::vector<std::string> TakeMessages(bool withInfos = false)
    {
        return Tests::TakeMessages(log, withInfos);
    }

    CTemporaryFolder folder;
    CFakeTimerProvider timer;
    CManualTickSource clock;
    CFakeUrlOpener opener;
    Mirel::CoreUtilities::CMemMessageLog log;
    Mirel::SkinEngine::CSkinModel model{&log};
    Mirel::SkinEngine::CSkinParser parser{log};
    Mirel::SkinEngine::CSkinModelFactory factory{parser, log, model, {&timer, &clock, &opener}};
};

} // namespace Tests
