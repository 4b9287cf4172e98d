#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace ManualPdf
{

/// A piece of a document, with its texts in the markup of the text library.
struct SBlock
{
    enum class EKind
    {
        Heading,
        Paragraph,
        Item, ///< Of a list.
        Row,  ///< Of a table.
        Picture
    };

    EKind kind = EKind::Paragraph;
    int level = 0;                  ///< Of a heading, from 1. Of a row 1 for the head of the table.
    std::string text;               ///< Of a picture what stands below it.
    std::string plain;              ///< The same without markup.
    std::vector<std::string> cells; ///< Of a row.
    std::string file;               ///< Of a picture, as the document names it.
};

/// Reads headings ("# "), paragraphs, lists ("- "), tables ("|"), pictures ("![text](file)"), and in all
/// texts
/// **bold** and `code`. The lines of a paragraph or item run on.
std::vector<SBlock> ReadBlocks(std::istream& text);

/// With markup for bold and code, and without meaning for everything else.
std::string ToMarkup(const std::string& text);

} // namespace ManualPdf
