#pragma once

#include "AAXPlugin/Interface/AAX_CString.h"
#include "Mirel/DataModel/Objects/IParamValueToText.h"

#include <memory>

namespace MirelExt::AAXPlugin
{

/// Gives the host the text of a parameter's value, as the parameter's description has it, and reads one back.
/// Any thread: it keeps a converter of its own.
class CAAXPluginDisplayDelegate
{
public:
    /// Clones the converter; null makes a delegate without texts.
    explicit CAAXPluginDisplayDelegate(const Mirel::DataModel::Objects::IParamValueToText* valueToText_);
    CAAXPluginDisplayDelegate(const CAAXPluginDisplayDelegate&) = delete;
    CAAXPluginDisplayDelegate& operator=(const CAAXPluginDisplayDelegate&) = delete;
    virtual ~CAAXPluginDisplayDelegate() = default;

    /// A new copy, owned by the caller.
    virtual CAAXPluginDisplayDelegate* Clone() const;

    /// Always true; without a converter or a target nothing is written.
    virtual bool ValueToString(float value, AAX_CString* text) const;

    /// Reads a real number, with a point whatever the locale; blanks before it and anything after it, such as
    /// a unit, are passed over. False, with the target left alone, if there is none or it is not finite.
    virtual bool StringToValue(const AAX_CString& text, float* value) const;

private:
    std::unique_ptr<const Mirel::DataModel::Objects::IParamValueToText> valueToText;
};

} // namespace MirelExt::AAXPlugin
