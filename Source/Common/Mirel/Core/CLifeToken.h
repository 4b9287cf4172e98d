#pragma once

namespace Mirel::Core
{

/// Tells code that calls out to listeners whether its own object still lives when the call returns: the
/// object has a token as a member, the code a watch on its stack. One thread only; a watch allocates nothing.
class CLifeToken
{
    struct SState
    {
        int references = 1;
        bool alive = true;
    };

public:
    class CWatch
    {
    public:
        explicit CWatch(const CLifeToken& token) : state(token.state)
        {
            ++state->references; // NOLINT(clang-analyzer-cplusplus.NewDelete): it does not follow the count.
        }
        CWatch(const CWatch&) = delete;
        CWatch& operator=(const CWatch&) = delete;
        ~CWatch() { Drop(state); }

        bool IsAlive() const
        {
            return state->alive; // NOLINT(clang-analyzer-cplusplus.NewDelete): as above.
        }

    private:
        SState* state;
    };

    CLifeToken() = default;
    CLifeToken(const CLifeToken&) = delete;
    CLifeToken& operator=(const CLifeToken&) = delete;

    ~CLifeToken()
    {
        state->alive = false;
        Drop(state);
    }

private:
    /// Out of line: where the optimiser sees through it, it takes the last reference for every one.
    static void Drop(SState* dropped);

    SState* state = new SState();
};

} // namespace Mirel::Core
