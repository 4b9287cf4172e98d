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
        instance = MakeAnother(setup);
    }

    Host::CHostInstance& Get() { return *instance; }

    /// A further instance of the same module, to go before this object: a module has one host at a time.
    std::unique_ptr<Host::CHostInstance> MakeAnother(Host::CInstanceSetup setup = {})
    {
        auto made = Host::CHostInstance::Make(*session.GetCollection(), setup, error);
        EXPECT_NE(made, nullptr) << error;
        return made;
    }

    /// The normalised value of a parameter.
    static double GetValue(Host::CHostInstance& of, const char* id)
    {
        double value = -1.0;
        EXPECT_EQ(of.GetParameters().GetParameterValue(id, &value), AAXResult::Ok);
        return value;
    }

    std::string error;

private:
    Host::CPluginSession session;
    std::unique_ptr<Host::CHostInstance> instance;
};

} // namespace Tests
