#include "ManualPdf/SBlock.h"

#include <algorithm>
#include <istream>
#include <utility>

namespace ManualPdf
{

namespace
{

using EKind = SBlock::EKind;

std::string Trimmed(const std::string& text)
{
    const std::size_t begin = text.find_first_not_of(" \t\r");
    return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(" \t\r") - begin + 1);
}

std::string Escaped(char character)
{
    switch (character)
    {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    default:
        return std::string(1, character);
    }
}

std::string WithoutMarks(const std::string& text)
{
    std::string plain = text;
    std::erase_if(plain, [](char character) { return character == '*' || character == '`'; });
    return plain;
}

SBlock MakeBlock(EKind kind, const std::string& text, int level = 0)
{
    SBlock block;
    block.kind = kind;
    block.level = level;
    block.text = ToMarkup(text);
    block.plain = WithoutMarks(text);
    return block;
}

std::vector<std::string> SplitCells(const std::string& line)
{
    std::vector<std::string> cells;
    std::size_t begin = 1;
    for (std::size_t end = line.find('|', begin); end != std::string::npos; end = line.find('|', begin))
    {
        cells.push_back(ToMarkup(Trimmed(line.substr(begin, end - begin))));
        begin = end + 1;
    }
    return cells;
}

bool IsRule(const std::string& line)
{
    return line.find_first_not_of("|-: ") == std::string::npos;
}

/// Collects the lines of blocks that may have several.
class CReader
{
public:
    void Take(const std::string& raw)
    {
        const std::string line = Trimmed(raw);
        const bool wasTable = std::exchange(inTable, !line.empty() && line.front() == '|');
        if (inTable)
        {
            TakeRow(line, !wasTable);
        }
        else if (line.empty())
        {
            End();
        }
        else if (line.front() == '#')
        {
            End();
            const std::size_t level = line.find_first_not_of('#');
            blocks.push_back(MakeBlock(EKind::Heading, Trimmed(line.substr(level)), static_cast<int>(level)));
        }
        else if (line.starts_with("!["))
        {
            TakePicture(line);
        }
        else if (line.starts_with("- "))
        {
            End();
            kind = EKind::Item;
            open = Trimmed(line.substr(2));
        }
        else
        {
            open += (open.empty() ? "" : " ") + line;
        }
    }

    std::vector<SBlock> Finish()
    {
        End();
        return std::move(blocks);
    }

private:
    void End()
    {
        if (!open.empty())
        {
            blocks.push_back(MakeBlock(kind, open));
        }
        open.clear();
        kind = EKind::Paragraph;
    }

    void TakeRow(const std::string& line, bool isFirst)
    {
        End();
        if (!IsRule(line))
        {
            SBlock row = MakeBlock(EKind::Row, "", isFirst ? 1 : 0);
            row.cells = SplitCells(line);
            blocks.push_back(std::move(row));
        }
    }

    void TakePicture(const std::string& line)
    {
        End();
        const std::size_t middle = line.find("](");
        const std::size_t end = line.find(')', middle);
        if (middle != std::string::npos && end != std::string::npos)
        {
            SBlock picture = MakeBlock(EKind::Picture, line.substr(2, middle - 2));
            picture.file = line.substr(middle + 2, end - middle - 2);
            blocks.push_back(std::move(picture));
        }
    }

    std::vector<SBlock> blocks;
    EKind kind = EKind::Paragraph;
    std::string open;
    bool inTable = false;
};

} // namespace

std::string ToMarkup(const std::string& text)
{
    std::string markup;
    bool isBold = false;
    bool isCode = false;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] == '`')
        {
            isCode = !isCode;
            markup += isCode ? "<tt>" : "</tt>";
        }
        else if (!isCode && text.compare(i, 2, "**") == 0)
        {
            isBold = !isBold;
            markup += isBold ? "<b>" : "</b>";
            ++i;
        }
        else
        {
            markup += Escaped(text[i]);
        }
    }
    // What was left open must not take the rest of the text with it.
    return markup + (isCode ? "</tt>" : "") + (isBold ? "</b>" : "");
}

std::vector<SBlock> ReadBlocks(std::istream& text)
{
    CReader reader;
    for (std::string line; std::getline(text, line);)
    {
        reader.Take(line);
    }
    return reader.Finish();
}

} // namespace ManualPdf
