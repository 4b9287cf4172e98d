#pragma once

namespace Mirel::Audio::Plugin
{

/// The state of an instance under a name, as it came with the plug-in.
class IPreset
{
public:
    /// Never null; valid as long as the preset.
    virtual const char* GetName() const = 0;

    /// Puts the instance into that state; false, with nothing changed, if the preset has none. Any thread but
    /// the audio thread.
    virtual bool Load() = 0;

    virtual ~IPreset() = default;
};

/// The factory presets of an instance. The list is immutable.
class IPresets
{
public:
    virtual int GetCount() const = 0;

    /// Owned by the list. The index is in range.
    virtual IPreset& GetPreset(int index) = 0;

    virtual ~IPresets() = default;
};

} // namespace Mirel::Audio::Plugin
