#include "Mirel/DataModel/Objects/CMultipleCaptureStringLink.h"

#include "Mirel/DataModel/Objects/Limits.h"
#include "Mirel/DataModel/Objects/PatternExpansion.h"

#include <utility>

namespace Mirel::DataModel::Objects
{

void CMultipleCaptureStringLink::SetSeparator(const char* newSeparator)
{
    auto wanted = newSeparator == nullptr ? std::nullopt : std::optional<std::string>(newSeparator);
    if (separator != wanted)
    {
        separator = std::move(wanted);
        ApplySettings();
    }
}

void CMultipleCaptureStringLink::UpdateFrom(const IConstCaptureString* changedSource)
{
    if (GetSources().empty())
    {
        return;
    }
    if (separator)
    {
        HandOnJoined(changedSource);
    }
    else
    {
        HandOn(changedSource == nullptr ? *GetSources().front() : *changedSource);
    }
}

void CMultipleCaptureStringLink::HandOn(const IConstCaptureString& source)
{
    // Read for each target: a listener of one may have given the source another text.
    ForEachTarget(&source, [&source](ICaptureString& target) { target.SetValue(source.GetValue()); });
}

void CMultipleCaptureStringLink::HandOnJoined(const IConstCaptureString* changedSource)
{
    std::string joined;
    const char* before = "";
    for (const IConstCaptureString* source : GetSources())
    {
        (joined += before) += source->GetValue();
        before = separator->c_str();
        if (joined.size() > maxJoinedText)
        {
            CutToWholeCharacters(joined, maxJoinedText);
            break;
        }
    }
    ForEachTarget(changedSource,
                  [this, &joined](ICaptureString& target)
                  {
                      if (!IsSource(target))
                      {
                          target.SetValue(joined.c_str());
                      }
                  });
}

} // namespace Mirel::DataModel::Objects
