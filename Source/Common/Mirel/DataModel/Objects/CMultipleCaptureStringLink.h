#pragma once

#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/TMultipleCaptureObjectLink.h"

#include <optional>
#include <string>

namespace Mirel::DataModel::Objects
{

/// A link from many strings to many. Without a separator each target gets the text that has changed, or the
/// first one if none has in particular; with one, all texts in the order of the sources with the separator
/// between them, as far as they fit into maxJoinedText. The changed string itself is not written. GUI thread
/// only.
class CMultipleCaptureStringLink : public TMultipleCaptureObjectLink<IConstCaptureString, ICaptureString>
{
public:
    /// Null, as at first, for none; an empty one counts.
    const char* GetSeparator() const { return separator ? separator->c_str() : nullptr; }

    /// Takes a copy. A target that is a source as well is then not written: its text would be made of itself
    /// and grow with every update.
    void SetSeparator(const char* newSeparator);

protected:
    void UpdateFrom(const IConstCaptureString* changedSource) override;

private:
    void HandOn(const IConstCaptureString& source);
    void HandOnJoined(const IConstCaptureString* changedSource);

    std::optional<std::string> separator;
};

} // namespace Mirel::DataModel::Objects
