#pragma once

#include "Mirel/Audio/Plugin/CAudioPluginInternalsBase.h"
#include "Mirel/Audio/Plugin/CPluginSkinModel.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"
#include "Plugins/Oscilloscope/CreateTopLevelFilter.h"
#include "Support/CTemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>

namespace Tests
{

/// The product's data beside a module, and an instance that finds it.
class CProductInstance
{
public:
    CProductInstance()
    {
        std::filesystem::create_directories(folder.GetPath("plugins"));
        std::filesystem::copy(PRODUCT_DATA_FOLDER, folder.GetPath("plugins/Scope data"),
                              std::filesystem::copy_options::recursive);
        auto filter = PluginsFilters::CreateTopLevelFilter();
        auto settings = std::make_unique<Mirel::Audio::Plugin::CAudioPluginDefaultSettings>(
            folder.GetPath("plugins/Scope.module"), filter->GetInputParamsInfo(),
            filter->GetOutputParamsInfo(), folder.GetPath("config"));
        internals = std::make_unique<Mirel::Audio::Plugin::CAudioPluginInternalsBase>(std::move(filter),
                                                                                      std::move(settings), 0);
        EXPECT_TRUE(internals->InitFilter(44100.0));
    }

    Mirel::Audio::Plugin::CAudioPluginInternalsBase& operator*() { return *internals; }
    Mirel::Audio::Plugin::CAudioPluginInternalsBase* operator->() { return internals.get(); }

    float GetInput(int index) { return internals->GetInputValues()[index].GetValue(); }

private:
    CTemporaryFolder folder;
    std::unique_ptr<Mirel::Audio::Plugin::CAudioPluginInternalsBase> internals;
};

} // namespace Tests
