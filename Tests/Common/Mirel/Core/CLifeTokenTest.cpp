#include "Mirel/Core/CLifeToken.h"

#include <gtest/gtest.h>
#include <memory>

using Mirel::Core::CLifeToken;

TEST(CLifeToken, WatchesSeeTheEndOfTheirToken)
{
    auto token = std::make_unique<CLifeToken>();
    const CLifeToken::CWatch outer(*token);
    const CLifeToken::CWatch inner(*token);
    EXPECT_TRUE(outer.IsAlive());
    EXPECT_TRUE(inner.IsAlive());

    token.reset();
    EXPECT_FALSE(outer.IsAlive());
    EXPECT_FALSE(inner.IsAlive());
}

TEST(CLifeToken, WatchThatEndedIsForgotten)
{
    auto token = std::make_unique<CLifeToken>();
    const CLifeToken::CWatch outer(*token);
    {
        const CLifeToken::CWatch inner(*token);
        EXPECT_TRUE(inner.IsAlive());
    }

    token.reset();
    EXPECT_FALSE(outer.IsAlive());
}
