#pragma once

#include <cstdint>

/// What the module tells every host of itself.
namespace MirelExt::AAXPlugin
{

/// Four characters as the 32-bit number that hosts exchange: the first stands in the highest byte.
constexpr std::uint32_t FourCharacters(const char (&text)[5])
{
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
    {
        value = value << 8U | static_cast<unsigned char>(text[i]);
    }
    return value;
}

inline constexpr const char* ProductName = "Tarnwell's Scope Bank";
inline constexpr const char* ProductVersion = "1.7";
inline constexpr const char* ManufacturerName = "Tarnwell";
inline constexpr const char* LegalLine = "Licences of all parts stand in the folder \"Legal\".";

// Pages of the maker.
inline constexpr const char* WebsiteAddress = "https://www.tarnwell.com/scope-bank";
inline constexpr const char* UpdatesAddress = "https://www.tarnwell.com/scope-bank/updates";
inline constexpr const char* SkinsAddress = "https://www.tarnwell.com/scope-bank/skins";

/// The effect's identifier is this, followed by the module's file name.
inline constexpr const char* IdentifierPrefix = "com.tarnwell.";

inline constexpr std::uint32_t ManufacturerId = FourCharacters("tnwl");
inline constexpr std::uint32_t ProductId = FourCharacters("5846");
inline constexpr std::uint32_t MainPluginId = 0;
inline constexpr std::uint32_t MonoPluginId = 1;
inline constexpr std::uint32_t PackageVersion = 1;

/// How often output data is due, in hertz of audio time.
inline constexpr double DefaultRefreshRate = 50.0;

} // namespace MirelExt::AAXPlugin
