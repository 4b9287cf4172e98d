#pragma once

#include "Mirel/DataModel/Objects/CCaptureParam.h"
#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"

namespace Mirel::DataModel::Objects
{

/// A text that gives the present value of a parameter its name: each text set becomes the name of that value,
/// and the names become the parameter's converter. Values below 0 and from maxEnumNames on get no name.
/// GUI thread only.
class CParamTextEnumValueBuilderString : public CCaptureString
{
public:
    /// The parameter is not owned and must outlive this object; null for none.
    explicit CParamTextEnumValueBuilderString(CCaptureParam* param_) : param(param_) {}
    CParamTextEnumValueBuilderString(CCaptureParam* param_, const IConstStringInfo& info_)
        : CCaptureString(info_),
          param(param_)
    {
    }

    /// The parameter keeps a copy of the names.
    ~CParamTextEnumValueBuilderString() override;

protected:
    void OnTextStored(const char* storedText) override;

private:
    bool IsConverterInUse() const;

    CCaptureParam* param;
    CEnumToText names;
};

} // namespace Mirel::DataModel::Objects
