#pragma once

#include "Host/CHostInstance.h"
#include "Host/CPluginSession.h"
#include "Host/TestFiles.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace Tests
{

/// An instance of the product's module, loaded as a host loads it.
class CInstanceRig
{
public:
    explicit CInstanceRig(Host::CInstanceSetup setup = {})
    {
        EXPECT_TRUE(session.Open(ScopeBankModule(), error)) << error;
        instance = Host::CHostInstance::Make(*session.GetCollection(), setup, error);
        EXPECT_NE(instance, nullptr) << error;
    }

    Host::CHostInstance& Get() { return *instance; }

    /// The normalised value of a parameter.
    double GetValue(const char* id)
    {
        double value = -1.0;
        EXPECT_EQ(instance->GetParameters().GetParameterValue(id, &value), AAXResult::Ok);
        return value;
    }

    std::string error;

private:
    Host::CPluginSession session;
    std::unique_ptr<Host::CHostInstance> instance;
};

} // namespace Tests
