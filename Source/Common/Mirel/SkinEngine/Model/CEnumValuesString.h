#pragma once

#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"

namespace Mirel::SkinEngine
{

/// The names of an enumeration's values as one text, "low;high": a text that is set becomes the names of the
/// description, from its minimum on. The range stays. GUI thread only.
class CEnumValuesString : public DataModel::Objects::CCaptureString
{
public:
    /// The description is not owned; texts set after it has gone are the caller's error.
    explicit CEnumValuesString(DataModel::Objects::CParamInfo& info_);

protected:
    void OnTextStored(const char* storedText) override;

private:
    void SetNames(const char* names);

    DataModel::Objects::CParamInfo& paramInfo;
};

} // namespace Mirel::SkinEngine
