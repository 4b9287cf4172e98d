#include "Host/WidgetGallery/CGallery.h"
#include "Host/WidgetGallery/Snapshot.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/NativePlatformFactory.h"
#include "Mirel/Graphics/CFontManager.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <string>

namespace
{

struct SOptions
{
    std::string snapshot;
    std::string data;
    int scale = 0;
};

int Show(const SOptions& options, const Mirel::GUI::CPopupLook& look)
{
    Mirel::GUI::CNativeRunLoop loop;
    Mirel::GUI::SNativePlatformOptions platformOptions;
    platformOptions.scale = options.scale;
    const auto platform = Mirel::GUI::CreateNativePlatform(loop, platformOptions);
    if (!platform->HasDisplay())
    {
        std::cerr << "There is no display to open a window on; --snapshot writes a picture instead.\n";
        return 1;
    }
    WidgetGallery::CGallery(*platform, look, false).Run();
    return 0;
}

int WritePicture(const SOptions& options, const Mirel::GUI::CPopupLook& look)
{
    if (!WidgetGallery::WriteSnapshot(options.snapshot, options.scale == 0 ? 1 : options.scale, look))
    {
        std::cerr << "Could not write \"" << options.snapshot << "\".\n";
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    constexpr int largestScale = 4;
    SOptions options;
    CLI::App app("Shows every widget and layout of the toolkit.");
    app.add_option("--snapshot", options.snapshot, "Write a PNG file instead of opening a window")
        ->type_name("FILE");
    app.add_option("--scale", options.scale, "Device pixels per pixel, 1 to 4")
        ->check(CLI::Range(1, largestScale));
    app.add_option("--data", options.data, "The product's data folder, for its fonts")->type_name("FOLDER");
    CLI11_PARSE(app, argc, argv);
    Mirel::Graphics::CFontManager fonts(Mirel::Graphics::GetFontsFolder(options.data));
    const Mirel::GUI::CPopupLook look = Mirel::GUI::MakePopupLook(fonts);
    return options.snapshot.empty() ? Show(options, look) : WritePicture(options, look);
}
