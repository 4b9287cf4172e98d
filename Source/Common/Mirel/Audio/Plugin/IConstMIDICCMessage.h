#pragma once

namespace Mirel::Audio::Plugin
{

/// A controller message as a user sees it.
class IConstMIDICCMessage
{
public:
    /// 1 to 16.
    virtual int GetChannel() const = 0;

    /// The controller, 0 to 127.
    virtual int GetNumber() const = 0;

    /// 0 to 127.
    virtual int GetValue() const = 0;

    virtual ~IConstMIDICCMessage() = default;
};

} // namespace Mirel::Audio::Plugin
