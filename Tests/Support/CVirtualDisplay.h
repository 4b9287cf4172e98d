#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace Tests
{

/// An X server without a screen, on a display number that was free, for as long as the object lives. It ends
/// with the test program too, however that ends.
class CVirtualDisplay
{
public:
    /// The further arguments go to the server.
    explicit CVirtualDisplay(const std::vector<std::string>& arguments = {});
    CVirtualDisplay(const CVirtualDisplay&) = delete;
    CVirtualDisplay& operator=(const CVirtualDisplay&) = delete;
    ~CVirtualDisplay() { Stop(); }

    /// Such as ":99"; empty if no server could be started.
    const std::string& GetName() const { return name; }

    /// Kills the server as a crash would.
    void Stop();

private:
    pid_t process = -1;
    std::string name;
};

} // namespace Tests
