#pragma once

#include <string_view>

namespace Mirel::DataModel::Objects
{

/// The prefix that texts of values give a power of a thousand ("k" for 1), or null for none. The prefixes are
/// this system's own: "p" stands for the power -3.
const char* MetricPrefixOf(int thousands);

/// Takes a prefix off the front of a text that a user typed and gives its power of a thousand. Besides what
/// MetricPrefixOf gives, "u" and the Greek letter are read as the micro sign, "n" as the power -3 and "K" as
/// "k". False, and nothing taken, if there is none.
bool TakeMetricPrefix(std::string_view& text, int& thousands);

} // namespace Mirel::DataModel::Objects
