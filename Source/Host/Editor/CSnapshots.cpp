#include "Host/Editor/CSnapshots.h"

#include <filesystem>
#include <ostream>
#include <sstream>

namespace Host
{

namespace
{

/// Longer than any timer that brings an instance's outputs to its editor.
constexpr int MillisecondsToCatchUp = 120;

} // namespace

bool CSnapshots::Open(CHostInstance& instance, const CRunOptions& options, std::ostream& messages,
                      std::string& error)
{
    editor = CHostEditor::Make(instance, error);
    if (editor == nullptr || !editor->OpenOffscreen(1, error))
    {
        return false;
    }
    const bool loaded = options.skinFile.empty() || editor->LoadSkin(options.skinFile);
    PrintSkinMessages(*editor, messages);
    if (!loaded)
    {
        error = "cannot load the skin \"" + options.skinFile + '"';
        return false;
    }
    if (options.pictureSize)
    {
        editor->SetSize(options.pictureSize->width, options.pictureSize->height);
    }
    return true;
}

bool CSnapshots::Take(const std::string& path, std::string& error)
{
    editor->WakeFor(MillisecondsToCatchUp);
    return WritePicture(editor->TakePicture(), path, error);
}

std::string CSnapshots::NameAt(const std::string& path, double seconds)
{
    const std::filesystem::path file(path);
    std::ostringstream name;
    name << file.stem().string() << '-' << seconds << 's' << file.extension().string();
    return (file.parent_path() / name.str()).string();
}

void PrintSkinMessages(const CHostEditor& editor, std::ostream& out)
{
    std::istringstream lines(editor.GetSkinMessages());
    for (std::string line; std::getline(lines, line);)
    {
        const std::size_t place = line.find('\t');
        const std::size_t text = place == std::string::npos ? place : line.find('\t', place + 1);
        if (text != std::string::npos && line.compare(0, place, "info") != 0)
        {
            const std::string where = line.substr(place + 1, text - place - 1);
            out << "skin: " << line.substr(0, place) << ": " << where << (where.empty() ? "" : ": ")
                << line.substr(text + 1) << '\n';
        }
    }
}

} // namespace Host
