#include "Mirel/GUI/Controls/CTextEditing.h"

#include "Mirel/Serialization/Utf8.h"

#include <algorithm>

namespace Mirel::GUI
{

namespace
{

using Serialization::IsUtf8Continuation;

/// Letters, digits and all that is not ASCII make words.
bool IsOfWord(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x80U || (value >= '0' && value <= '9') || (value >= 'A' && value <= 'Z') ||
           (value >= 'a' && value <= 'z') || value == '_';
}

std::string ToOneLine(const std::string& text)
{
    std::string line;
    for (const char byte : text)
    {
        const auto value = static_cast<unsigned char>(byte);
        if (byte == '\n' || byte == '\t')
        {
            line += ' ';
        }
        else if (value >= 0x20U && value != 0x7FU)
        {
            line += byte;
        }
    }
    return line;
}

} // namespace

void CTextEditing::SetText(const std::string& newText)
{
    text.clear();
    caret = 0;
    anchor = 0;
    Insert(newText);
}

std::string CTextEditing::GetSelectedText() const
{
    return text.substr(GetSelectionBegin(), GetSelectionEnd() - GetSelectionBegin());
}

void CTextEditing::SelectAll()
{
    anchor = 0;
    caret = text.size();
}

void CTextEditing::MoveTo(std::size_t position, bool extend)
{
    caret = std::min(position, text.size());
    while (caret > 0 && caret < text.size() && IsUtf8Continuation(text[caret]))
    {
        --caret;
    }
    anchor = extend ? anchor : caret;
}

void CTextEditing::SelectWordAt(std::size_t position)
{
    MoveTo(position, false);
    const bool isWord = caret < text.size() ? IsOfWord(text[caret]) : caret > 0 && IsOfWord(text[caret - 1]);
    while (anchor > 0 && IsOfWord(text[anchor - 1]) == isWord)
    {
        --anchor;
    }
    while (caret < text.size() && IsOfWord(text[caret]) == isWord)
    {
        ++caret;
    }
}

void CTextEditing::Move(EUnit unit, bool forward, bool extend)
{
    if (HasSelection() && !extend && unit == EUnit::Character)
    {
        MoveTo(forward ? GetSelectionEnd() : GetSelectionBegin(), false);
    }
    else
    {
        MoveTo(Find(unit, forward), extend);
    }
}

bool CTextEditing::Insert(const std::string& inserted)
{
    std::string line = Serialization::IsUtf8(inserted) ? ToOneLine(inserted) : std::string();
    if (maxLength > 0)
    {
        const std::size_t kept = text.size() - (GetSelectionEnd() - GetSelectionBegin());
        std::size_t room = maxLength - std::min(maxLength, kept);
        while (room > 0 && room < line.size() && IsUtf8Continuation(line[room]))
        {
            --room;
        }
        line.resize(std::min(line.size(), room));
    }
    if (line.empty() && !HasSelection())
    {
        return false;
    }
    Replace(GetSelectionBegin(), GetSelectionEnd(), line);
    return true;
}

bool CTextEditing::Delete(EUnit unit, bool forward)
{
    if (!HasSelection())
    {
        caret = Find(unit, forward);
    }
    if (!HasSelection())
    {
        return false;
    }
    Replace(GetSelectionBegin(), GetSelectionEnd(), {});
    return true;
}

std::size_t CTextEditing::Step(std::size_t from, bool forward) const
{
    std::size_t position = from;
    do
    {
        if (position == (forward ? text.size() : 0))
        {
            return position;
        }
        position = forward ? position + 1 : position - 1;
    } while (position < text.size() && IsUtf8Continuation(text[position]));
    return position;
}

/// Over what is between words, then over the word.
std::size_t CTextEditing::StepWord(std::size_t from, bool forward) const
{
    std::size_t position = from;
    for (const bool isWord : {false, true})
    {
        while (forward ? position < text.size() && IsOfWord(text[position]) == isWord
                       : position > 0 && IsOfWord(text[position - 1]) == isWord)
        {
            position = forward ? position + 1 : position - 1;
        }
    }
    return position;
}

std::size_t CTextEditing::Find(EUnit unit, bool forward) const
{
    switch (unit)
    {
    case EUnit::Character:
        return Step(caret, forward);
    case EUnit::Word:
        return StepWord(caret, forward);
    default:
        return forward ? text.size() : 0;
    }
}

void CTextEditing::Replace(std::size_t begin, std::size_t end, const std::string& by)
{
    text.replace(begin, end - begin, by);
    caret = begin + by.size();
    anchor = caret;
}

} // namespace Mirel::GUI
