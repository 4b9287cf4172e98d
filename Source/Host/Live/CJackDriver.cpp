#include "Host/Live/CJackDriver.h"

#include <algorithm>
#include <cstring>

namespace Host
{

std::unique_ptr<CJackDriver> CJackDriver::Start(CLivePlayer& player, std::string& error)
{
    std::unique_ptr<CJackDriver> driver(new CJackDriver(player));
    return driver->Open(error) ? std::move(driver) : nullptr;
}

bool CJackDriver::Open(std::string& error)
{
    // Without this the library writes to the error stream what is told in one line here.
    jack_set_error_function([](const char*) {});
    jack_set_info_function([](const char*) {});
    client.reset(jack_client_open("scope-bank", JackNoStartServer, nullptr));
    if (client == nullptr)
    {
        error = "no JACK server runs";
        return false;
    }
    const jack_nframes_t rate = jack_get_sample_rate(client.get());
    if (static_cast<double>(rate) != player.GetSampleRate())
    {
        error = "the JACK server runs at " + std::to_string(rate) + " Hz, the audio at " +
                std::to_string(static_cast<int>(player.GetSampleRate())) + " Hz";
        return false;
    }
    const bool longBlocks =
        jack_get_buffer_size(client.get()) > static_cast<jack_nframes_t>(player.GetMostFrames());
    if (longBlocks || !AddPorts() || jack_set_process_callback(client.get(), &OnProcess, this) != 0 ||
        jack_activate(client.get()) != 0)
    {
        error = "the JACK server does not take the client";
        return false;
    }
    ConnectPorts();
    return true;
}

bool CJackDriver::AddPorts()
{
    for (int channel = 0; channel < player.GetChannelCount(); ++channel)
    {
        const std::string name = "out_" + std::to_string(channel + 1);
        ports.push_back(
            jack_port_register(client.get(), name.c_str(), JACK_DEFAULT_AUDIO_TYPE, JackPortIsOutput, 0));
    }
    return std::find(ports.begin(), ports.end(), nullptr) == ports.end();
}

void CJackDriver::ConnectPorts() const
{
    const char** speakers =
        jack_get_ports(client.get(), nullptr, JACK_DEFAULT_AUDIO_TYPE, JackPortIsPhysical | JackPortIsInput);
    if (speakers == nullptr)
    {
        return;
    }
    // A single channel is heard on both sides.
    for (std::size_t i = 0; i < 2 && speakers[i] != nullptr; ++i)
    {
        jack_connect(client.get(), jack_port_name(ports[std::min(i, ports.size() - 1)]), speakers[i]);
    }
    jack_free(static_cast<void*>(speakers));
}

int CJackDriver::OnProcess(jack_nframes_t frames, void* driver)
{
    static_cast<const CJackDriver*>(driver)->Process(static_cast<int>(frames));
    return 0;
}

void CJackDriver::Process(int frames) const
{
    const int count = std::min(frames, player.GetMostFrames()); // the server may have changed its mind
    player.Process(count);
    for (std::size_t channel = 0; channel < ports.size(); ++channel)
    {
        auto* out =
            static_cast<float*>(jack_port_get_buffer(ports[channel], static_cast<jack_nframes_t>(frames)));
        std::fill(std::copy_n(player.GetOutputs()[channel], count, out), out + frames, 0.0F);
    }
}

} // namespace Host
