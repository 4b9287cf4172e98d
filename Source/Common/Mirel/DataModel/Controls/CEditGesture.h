#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/Core/CEventProvider.h"

namespace Mirel::DataModel::Controls
{

/// What all controls have beside their viewer: whether the user may edit, and the gesture of an edit, which
/// captures the object that is edited. A gesture still open at the end of the control is closed. GUI thread
/// only.
class CEditGesture
{
public:
    /// The target is not owned and must outlive this object.
    explicit CEditGesture(Core::ICapture& target_) : target(target_) {}
    CEditGesture(const CEditGesture&) = delete;
    CEditGesture& operator=(const CEditGesture&) = delete;
    ~CEditGesture() { End(); }

    void SetEditable(bool newEditable)
    {
        if (editable != newEditable)
        {
            editable = newEditable;
            editableChanged.Notify();
        }
    }

    bool IsEditable() const { return editable; }
    Core::IEventProvider& GetEditableChangedEventProvider() const { return editableChanged; }

    /// The control's own capture: held from Begin to End.
    const Core::IConstCapture& GetCapture() const { return capture; }

    /// Gestures do not nest.
    void Begin()
    {
        if (!capture.IsCaptured())
        {
            capture.BeginCapture();
            // A listener that ended the gesture at once must not leave the target captured.
            if (capture.IsCaptured())
            {
                target.BeginCapture();
            }
        }
    }

    void End()
    {
        if (capture.IsCaptured())
        {
            capture.EndCapture();
            target.EndCapture();
        }
    }

private:
    Core::ICapture& target;
    bool editable = true;
    mutable Core::CEventProvider editableChanged; ///< Listening changes nothing of the control.
    Core::CCapture capture;
};

} // namespace Mirel::DataModel::Controls
