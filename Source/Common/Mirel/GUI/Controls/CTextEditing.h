#pragma once

#include <cstddef>
#include <string>

namespace Mirel::GUI
{

/// One line of text being typed: the text, the caret and what is selected. Positions are bytes of UTF-8,
/// always between characters. GUI thread only.
class CTextEditing
{
public:
    enum class EUnit
    {
        Character,
        Word,
        Line
    };

    const std::string& GetText() const { return text; }

    /// The caret goes to the end. What is not UTF-8 is left out.
    void SetText(const std::string& newText);

    /// Bytes that the text may have; 0 for any number. A longer text is cut between characters.
    void SetMaxLength(std::size_t newMaxLength) { maxLength = newMaxLength; }

    std::size_t GetCaret() const { return caret; }

    /// First and last position of what is selected; the same if nothing is.
    std::size_t GetSelectionBegin() const { return caret < anchor ? caret : anchor; }
    std::size_t GetSelectionEnd() const { return caret < anchor ? anchor : caret; }
    bool HasSelection() const { return caret != anchor; }
    std::string GetSelectedText() const;

    void SelectAll();

    /// Moves the caret to a position; with extend the selection grows with it.
    void MoveTo(std::size_t position, bool extend);

    /// Selects the word that a position is in.
    void SelectWordAt(std::size_t position);

    /// Moves the caret by a unit, back or forward. A selection that is not extended is left at its end.
    void Move(EUnit unit, bool forward, bool extend);

    /// Replaces what is selected. Line breaks and tabs become blanks, other control characters go; a text
    /// that is not UTF-8 is left out. False if nothing changed.
    bool Insert(const std::string& inserted);

    /// Takes away what is selected, else a unit before or after the caret. False if nothing changed.
    bool Delete(EUnit unit, bool forward);

    /// The next character boundary; the ends stay where they are.
    std::size_t Step(std::size_t from, bool forward) const;

private:
    std::size_t StepWord(std::size_t from, bool forward) const;
    std::size_t Find(EUnit unit, bool forward) const;
    void Replace(std::size_t begin, std::size_t end, const std::string& by);

    std::string text;
    std::size_t maxLength = 0;
    std::size_t caret = 0;
    std::size_t anchor = 0;
};

} // namespace Mirel::GUI
