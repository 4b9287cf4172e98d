#include "SkinCheck/CCheckReport.h"

#include "SkinCheck/JsonText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <ostream>

namespace SkinCheck
{

namespace
{

/// The shortest text that reads back as the number; for no number "nan", whatever its sign.
std::string NumberText(float value)
{
    if (std::isnan(value))
    {
        return "nan";
    }
    char text[32];
    const std::to_chars_result result = std::to_chars(std::begin(text), std::end(text), value);
    return {text, result.ptr};
}

const char* NameOf(CCheckReport::ESeverity severity)
{
    return severity == CCheckReport::ESeverity::Error ? "error" : "warning";
}

std::string Joined(const std::vector<std::string>& texts)
{
    std::string joined;
    for (const std::string& text : texts)
    {
        joined.append(joined.empty() ? "" : ", ").append(text);
    }
    return joined;
}

} // namespace

void CCheckReport::AddText(std::string name, const std::string& text)
{
    facts.push_back({std::move(name), text, JsonText(text)});
}

void CCheckReport::AddBool(std::string name, bool value)
{
    facts.push_back({std::move(name), value ? "yes" : "no", value ? "true" : "false"});
}

void CCheckReport::AddNumber(std::string name, float value)
{
    const std::string text = NumberText(value);
    facts.push_back({std::move(name), text, std::isfinite(value) ? text : "null"});
}

void CCheckReport::AddList(std::string name, const std::vector<std::string>& texts)
{
    std::vector<std::string> quoted;
    std::transform(texts.begin(), texts.end(), std::back_inserter(quoted), &JsonText);
    facts.push_back({std::move(name), Joined(texts), std::string("[").append(Joined(quoted)).append("]")});
}

void CCheckReport::AddMessage(ESeverity severity, std::string text)
{
    messages.emplace_back(severity, std::move(text));
}

int CCheckReport::GetExitCode() const
{
    if (messages.empty())
    {
        return 0;
    }
    const bool hasErrors = std::any_of(messages.begin(), messages.end(),
                                       [](const auto& message) { return message.first == ESeverity::Error; });
    return hasErrors ? 2 : 1;
}

void CCheckReport::Print(std::ostream& out) const
{
    for (const CFact& fact : facts)
    {
        if (!fact.plain.empty())
        {
            std::string name = fact.name;
            std::replace(name.begin(), name.end(), '_', ' ');
            out << name << ": " << fact.plain << '\n';
        }
    }
    for (const auto& [severity, text] : messages)
    {
        out << NameOf(severity) << ": " << text << '\n';
    }
}

void CCheckReport::PrintJson(std::ostream& out) const
{
    out << "{\n";
    for (const CFact& fact : facts)
    {
        out << "  \"" << fact.name << "\": " << fact.json << ",\n";
    }
    out << "  \"messages\": [";
    const char* separator = "";
    for (const auto& [severity, text] : messages)
    {
        out << separator << "{\"severity\": \"" << NameOf(severity) << "\", \"text\": " << JsonText(text)
            << "}";
        separator = ", ";
    }
    out << "]\n}\n";
}

} // namespace SkinCheck
