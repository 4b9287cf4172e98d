#pragma once

#include "Host/Live/CLivePlayer.h"
#include "Host/Live/IAudioDriver.h"

#include <memory>
#include <string>
#include <vector>

#include <jack/jack.h>

namespace Host
{

/// Has a JACK server drive the player and play what comes out. The player must outlive it.
class CJackDriver : public IAudioDriver
{
public:
    /// Null with one line in `error` if no server runs, or one at another sample rate or with longer blocks
    /// than the player's. No server is started.
    static std::unique_ptr<CJackDriver> Start(CLivePlayer& player, std::string& error);

private:
    struct CCloser
    {
        void operator()(jack_client_t* opened) const { jack_client_close(opened); }
    };

    explicit CJackDriver(CLivePlayer& player_) : player(player_) {}

    bool Open(std::string& error);
    bool AddPorts();
    void ConnectPorts() const;
    static int OnProcess(jack_nframes_t frames, void* driver);
    void Process(int frames) const;

    CLivePlayer& player;
    std::vector<jack_port_t*> ports;
    std::unique_ptr<jack_client_t, CCloser> client;
};

} // namespace Host
