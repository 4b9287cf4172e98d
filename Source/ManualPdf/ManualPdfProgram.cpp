#include "ManualPdf/ManualPdfProgram.h"

#include "ManualPdf/CPages.h"
#include "ManualPdf/SBlock.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>

namespace ManualPdf
{

namespace
{

constexpr int failed = 1;
constexpr int wrongCommandLine = 2;

int SetDocument(const std::filesystem::path& source, const std::string& target, std::ostream& errors)
{
    std::ifstream text(source);
    if (!text)
    {
        errors << "manual-pdf: cannot read " << source.string() << '\n';
        return failed;
    }
    CPages pages(target);
    for (const SBlock& block : ReadBlocks(text))
    {
        if (!pages.Add(block, source.parent_path().string()))
        {
            errors << "manual-pdf: cannot read the picture " << block.file << '\n';
            return failed;
        }
    }
    if (!pages.Finish())
    {
        errors << "manual-pdf: cannot write " << target << '\n';
        return failed;
    }
    return 0;
}

} // namespace

int RunProgram(int argc, const char* const* argv, std::ostream& out, std::ostream& errors)
{
    std::string source;
    std::string target;
    CLI::App app("Sets a manual as PDF.", "manual-pdf");
    app.add_option("SOURCE", source, "The text, in Markdown: headings, paragraphs, lists, tables, pictures")
        ->required();
    app.add_option("TARGET", target, "The PDF file")->required();
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error, out, errors) == 0 ? 0 : wrongCommandLine;
    }
    return SetDocument(source, target, errors);
}

} // namespace ManualPdf
