#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/CLifeToken.h"
#include "Mirel/Core/IEnable.h"
#include "Mirel/Core/IUpdate.h"
#include "Mirel/Core/TCommand.h"
#include "Mirel/DataModel/CCascadeShare.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/Objects/LinkTransformation.h"
#include "Mirel/DataModel/Objects/ResponseCurves.h"

namespace Mirel::DataModel::Objects
{

/// A symmetric link between two parameters: a change of either is written to the other, from the first to the
/// second through the response, and back through its inverse and with the reversal undone first. Captures go
/// both ways.
///
/// Created disabled and without parameters, neither of which is owned; before one goes away the connection is
/// disabled, destroyed or given another. May be changed and destroyed by any listener of other objects, also
/// one that it has caused to run. GUI thread only.
class CCaptureParamConnection : public virtual Core::IEnable, public virtual Core::IUpdate
{
public:
    CCaptureParamConnection() = default;
    CCaptureParamConnection(const CCaptureParamConnection&) = delete;
    CCaptureParamConnection& operator=(const CCaptureParamConnection&) = delete;
    ~CCaptureParamConnection() override;

    ICaptureParam* GetFirst() const { return first.param; }
    ICaptureParam* GetSecond() const { return second.param; }

    /// Null for none. An enabled connection connects anew, as if it were enabled with the parameter.
    void SetFirst(ICaptureParam* param) { Exchange(first, param); }
    void SetSecond(ICaptureParam* param) { Exchange(second, param); }

    SResponsePair GetResponse() const { return response; }

    /// Neither function is owned; both must outlive their use here.
    void SetResponse(SResponsePair newResponse);

    bool IsReverse() const { return reverse; }
    void SetReverse(bool newReverse) { SetFlag(reverse, newReverse); }

    bool IsNormalized() const { return normalized; }
    void SetNormalized(bool newNormalized) { SetFlag(normalized, newNormalized); }

    bool IsDiff() const { return diff; }

    /// Hands movements over instead of values.
    void SetDiff(bool newDiff) { SetFlag(diff, newDiff); }

    bool AllowsFeedback() const { return allowsFeedback; }

    /// Whether the side that changed is corrected to what the other could take. True at first.
    void SetAllowsFeedback(bool allows) { SetFlag(allowsFeedback, allows); }

    bool IsEnabled() const override { return enabled; }
    Core::IEventProvider& GetEnableChangedEventProvider() const override { return changed; }

    /// An enabled connection passes on a capture that a side is in, and updates the second side.
    void Enable(bool enable) override;

    /// Fires after each change of the settings, the enable switch included.
    Core::IEventProvider& GetChangedEventProvider() const { return changed; }

    /// Writes the second side from the first.
    void Update() override { UpdateFrom(first, second); }

private:
    struct SSide
    {
        ICaptureParam* param = nullptr;
        float last = 0.0f;
        bool forwarded = false; ///< A capture of this side was passed on to the other.
    };

    void Exchange(SSide& side, ICaptureParam* param);
    void SetFlag(bool& flag, bool newValue);
    void ApplySettings();
    void Connect();
    void Disconnect();
    void CutConnections();

    void UpdateFrom(SSide& from, SSide& to);
    void WriteOther(SSide& from, SSide& to);
    float TransformFrom(const SSide& from, float value) const;

    static void ForwardBegin(SSide& from, const SSide& to);
    static void ForwardEnd(SSide& from, const SSide& to);

    void RunUpdate(SSide& from, SSide& to);
    void OnFirstChanged() { RunUpdate(first, second); }
    void OnSecondChanged() { RunUpdate(second, first); }
    void OnFirstBegun() { ForwardBegin(first, second); }
    void OnSecondBegun() { ForwardBegin(second, first); }
    void OnFirstEnded() { ForwardEnd(first, second); }
    void OnSecondEnded() { ForwardEnd(second, first); }

    using Command = Core::TCommand<CCaptureParamConnection>;

    SSide first;
    SSide second;
    SResponsePair response = GetResponsePair(linearResponseCurve);
    bool reverse = false;
    bool normalized = false;
    bool diff = false;
    bool allowsFeedback = true;
    bool enabled = false;
    bool connected = false;
    int updating = 0; ///< Updates under way, one inside the other.
    Core::CLifeToken life;
    CCascadeShare cascadeShare;
    mutable Core::CEventProvider changed; ///< Listening to a connection changes nothing of it.
    Command firstChanged{this, &CCaptureParamConnection::OnFirstChanged};
    Command secondChanged{this, &CCaptureParamConnection::OnSecondChanged};
    Command firstBegun{this, &CCaptureParamConnection::OnFirstBegun};
    Command secondBegun{this, &CCaptureParamConnection::OnSecondBegun};
    Command firstEnded{this, &CCaptureParamConnection::OnFirstEnded};
    Command secondEnded{this, &CCaptureParamConnection::OnSecondEnded};
};

} // namespace Mirel::DataModel::Objects
