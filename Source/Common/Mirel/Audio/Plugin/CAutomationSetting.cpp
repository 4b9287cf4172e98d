#include "Mirel/Audio/Plugin/CAutomationSetting.h"

namespace Mirel::Audio::Plugin
{

namespace
{

constexpr int FormatVersion = 1;

} // namespace

CAutomationSetting::CAutomationSetting(const CAutomationSetting& other)
    : ISerializable(other),
      enabled(other.IsEnabled())
{
}

CAutomationSetting& CAutomationSetting::operator=(const CAutomationSetting& other)
{
    SetEnabled(other.IsEnabled());
    return *this;
}

bool CAutomationSetting::Serialize(Serialization::IWriteDataStream& stream) const
{
    bool written = stream.Write("version", FormatVersion);
    written = stream.Write("enabled", IsEnabled()) && written;
    return written;
}

bool CAutomationSetting::Deserialize(const Serialization::IReadDataStream& stream)
{
    bool read = IsEnabled();
    if (!stream.Read("enabled", read))
    {
        return false;
    }
    SetEnabled(read);
    return true;
}

} // namespace Mirel::Audio::Plugin
