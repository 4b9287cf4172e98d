#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/DataModel/Objects/IParamValueToText.h"

#include <string>
#include <string_view>

namespace Mirel::DataModel::Objects
{

/// Prints a value with a printf format inside a pattern: "{value}" in the pattern stands for the number, any
/// other text in braces for itself.
class CParamValueToText : public virtual IParamValueToText
{
public:
    /// format takes exactly one double ("%.0f"); one that does not is kept but never printed with: "%.2f"
    /// takes its place, and DescribeFormatFault tells what whoever passed it on should report. With
    /// metric a prefix between "p" and "T" follows the number. Null texts count as empty.
    CParamValueToText(const char* format_, bool metric_, const char* pattern_);

    /// A copy has no listeners.
    CParamValueToText(const CParamValueToText& other);
    CParamValueToText& operator=(const CParamValueToText&) = delete;
    ~CParamValueToText() override = default;

    void ToText(float value, char*& text) const override;
    CParamValueToText* Clone() const override { return new CParamValueToText(*this); }

    /// Fires when a setter has changed something.
    Core::IEventProvider& GetChangedEventProvider() const { return changed; }

    const char* GetPattern() const { return pattern.c_str(); }
    void SetPattern(const char* newPattern);

    const char* GetFormat() const { return format.c_str(); }
    void SetFormat(const char* newFormat);

    /// The message about a format that would not be used, for the log of the file that it came from; empty
    /// for one that would.
    static std::string DescribeFormatFault(const char* format);

    bool IsMetric() const { return metric; }
    void SetMetric(bool newMetric);

    /// The digits that a value is rounded to before it is printed; 0 or less leaves it as it is. With digits
    /// a value of 0 is printed as minus one.
    int GetSignificantDigits() const { return significantDigits; }
    void SetSignificantDigits(int digits);

protected:
    /// What a placeholder, given with its braces, stands for; appends it to the result.
    virtual void AppendPlaceholder(std::string_view placeholder, float value, std::string& result) const;

    /// The number without the pattern.
    std::string NumberToText(float value) const;

    void NotifyChanged() const { changed.Notify(); }

private:
    void SetText(std::string& field, const char* newText);

    std::string pattern;
    std::string format;
    bool metric;
    mutable Core::CEventProvider changed; ///< Listening to a converter changes nothing of it.
    int significantDigits = -1;
};

} // namespace Mirel::DataModel::Objects
