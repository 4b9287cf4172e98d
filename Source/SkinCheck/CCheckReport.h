#pragma once

#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

namespace SkinCheck
{

/// What a check found: facts about the thing checked, in order, and messages about what is wrong with it.
/// Printed as lines for people or as one JSON object.
class CCheckReport
{
public:
    enum class ESeverity
    {
        Error,
        Warning
    };

    /// A fact, under a name in the style of JSON keys: "valid_as". A list may be empty.
    void AddText(std::string name, const std::string& text);
    void AddBool(std::string name, bool value);
    void AddNumber(std::string name, float value);
    void AddList(std::string name, const std::vector<std::string>& texts);

    void AddMessage(ESeverity severity, std::string text);

    /// 0 without messages, 1 with warnings alone, 2 with errors.
    int GetExitCode() const;

    void Print(std::ostream& out) const;
    void PrintJson(std::ostream& out) const;

private:
    struct CFact
    {
        std::string name;
        std::string plain; ///< For people; empty facts are left out there.
        std::string json;
    };

    std::vector<CFact> facts;
    std::vector<std::pair<ESeverity, std::string>> messages;
};

} // namespace SkinCheck
