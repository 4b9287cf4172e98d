#pragma once

#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXAutomationDelegate.h"

#include <string>
#include <vector>

namespace Tests
{

/// Writes down what is posted, and changes nothing.
class CRecordingAutomation : public TACFObject<IAAXAutomationDelegate>
{
public:
    std::vector<std::string> calls;
    std::int32_t result = AAXResult::Ok;

    std::int32_t PostTouch(const char* id) override { return Call("touch " + std::string(id)); }
    std::int32_t PostRelease(const char* id) override { return Call("release " + std::string(id)); }
    std::int32_t PostValue(const char* id, double normalized) override
    {
        return Call("value " + std::string(id) + " " + std::to_string(normalized));
    }

private:
    std::int32_t Call(const std::string& text)
    {
        calls.push_back(text);
        return result;
    }
};

} // namespace Tests
