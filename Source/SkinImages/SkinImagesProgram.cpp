#include "SkinImages/SkinImagesProgram.h"

#include "SkinImages/SImage.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <ostream>
#include <string>
#include <system_error>

namespace SkinImages
{

namespace
{

constexpr int cannotWrite = 1;
constexpr int wrongCommandLine = 2;

bool DrawAll(const std::filesystem::path& folder, std::ostream& errors)
{
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    for (const SImage& image : GetImages())
    {
        for (const EState state : image.states)
        {
            for (const int scale : {1, 2})
            {
                const std::string path = folder / FileNameOf(image, state, scale);
                if (!Draw(image, state, scale).Write(path))
                {
                    errors << "skin-images: cannot write " << path << '\n';
                    return false;
                }
            }
        }
    }
    return true;
}

} // namespace

int RunProgram(int argc, const char* const* argv, std::ostream& out, std::ostream& errors)
{
    std::string folder;
    CLI::App app("Draws the images of the factory skins.", "skin-images");
    app.add_option("OUTPUT_FOLDER", folder, "Where the PNG files go; made if it is missing")->required();
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error, out, errors) == 0 ? 0 : wrongCommandLine;
    }
    return DrawAll(folder, errors) ? 0 : cannotWrite;
}

} // namespace SkinImages
