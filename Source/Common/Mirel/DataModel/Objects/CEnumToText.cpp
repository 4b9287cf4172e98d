#include "Mirel/DataModel/Objects/CEnumToText.h"

#include "Mirel/Core/NewText.h"
#include "Mirel/Core/Numeric.h"
#include "Mirel/DataModel/Objects/Limits.h"

#include <cstddef>
#include <string_view>
#include <utility>

namespace Mirel::DataModel::Objects
{

namespace
{

std::vector<std::string> WithinLimit(std::vector<std::string> names)
{
    if (names.size() > static_cast<std::size_t>(maxEnumNames))
    {
        names.resize(static_cast<std::size_t>(maxEnumNames));
    }
    return names;
}

} // namespace

CEnumToText::CEnumToText(std::vector<std::string> names_, float firstValue_)
    : names(WithinLimit(std::move(names_))),
      firstValue(firstValue_)
{
}

CEnumToText::CEnumToText(const CEnumToText& other)
    : IParamValueToText(),
      names(other.names),
      firstValue(other.firstValue)
{
}

void CEnumToText::ToText(float value, char*& text) const
{
    text = nullptr;
    const double rounded = Core::TruncateToInt32(static_cast<double>(value) + 0.5);
    const double index = rounded - static_cast<double>(firstValue);
    const bool named = index >= 0.0 && index < static_cast<double>(names.size());
    text = Core::NewText(named ? std::string_view(names[static_cast<std::size_t>(index)]) : "Out Of Bounds");
}

const char* CEnumToText::GetName(int index) const
{
    return index >= 0 && index < GetCount() ? names[static_cast<std::size_t>(index)].c_str() : "";
}

bool CEnumToText::SetName(int index, const char* name)
{
    if (index < 0 || index >= maxEnumNames)
    {
        return false;
    }
    const std::string_view text = name == nullptr ? "" : name;
    if (index < GetCount() && text == GetName(index))
    {
        return true;
    }
    std::string copy(text);
    if (index >= GetCount())
    {
        names.resize(static_cast<std::size_t>(index) + 1);
    }
    names[static_cast<std::size_t>(index)] = std::move(copy);
    changed.Notify();
    return true;
}

void CEnumToText::SetNames(std::vector<std::string> newNames)
{
    newNames = WithinLimit(std::move(newNames));
    if (names != newNames)
    {
        names = std::move(newNames);
        changed.Notify();
    }
}

void CEnumToText::SetFirstValue(float newFirstValue)
{
    if (firstValue < newFirstValue || firstValue > newFirstValue)
    {
        firstValue = newFirstValue;
        changed.Notify();
    }
}

} // namespace Mirel::DataModel::Objects
