#pragma once

namespace Mirel::CoreUtilities
{

/// The kinds of message, as they are stored and posted.
struct CMessageKind
{
    enum : int
    {
        Error = 0,
        Warning = 1,
        Info = 2
    };

    /// "error", "warning" or "info".
    static const char* GetName(int kind)
    {
        return kind == Error ? "error" : kind == Warning ? "warning" : "info";
    }
};

/// Where a run that reads skins, models or settings reports what it met.
class IMessageLog
{
public:
    /// kind is one of CMessageKind; the text is copied, null counts as empty. verbosity, taken as unsigned,
    /// is 0 for what must be seen and grows with the detail.
    virtual void Post(int kind, const char* text, int verbosity) = 0;
    virtual ~IMessageLog() = default;
};

} // namespace Mirel::CoreUtilities
