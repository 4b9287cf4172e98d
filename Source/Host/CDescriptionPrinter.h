#pragma once

#include "Host/CRecordingCollection.h"

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace Host
{

/// Prints what a module declared, one declaration a line, in the order declared. A line is a path of words
/// and numbers that says where the declaration belongs, then its values; texts stand in double quotes.
/// Effects and components are numbered from 0 in the order added.
class CDescriptionPrinter
{
public:
    explicit CDescriptionPrinter(std::ostream& out_);

    void Print(const CRecordingCollection& collection);

private:
    void PrintEffect(const std::string& path, const CAddedEffect& added);
    void PrintComponent(const std::string& path, const CRecordingComponent& component);
    void PrintProperties(const std::string& path, const CRecordingPropertyMap& map);

    std::ostream& out;
};

/// In double quotes, with quotes, backslashes and control characters escaped, so that it is one line.
std::string Quoted(std::string_view text);

} // namespace Host
