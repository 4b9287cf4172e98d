#pragma once

// Only for the sources of the INI data objects: the library's header brings its whole implementation.

#include <cstring>
#include <cwchar>

// No wide characters, hence no conversion library; the implementation is compiled with our instance of it.
#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <SimpleIni.h>

namespace Mirel::Serialization
{

/// The library's plain converter, with the form of the stored text as a part of its type.
template <class Character, bool storesUtf8>
class SI_ConvertA : public ::SI_ConvertA<Character>
{
public:
    explicit SI_ConvertA(bool utf8 = storesUtf8) : ::SI_ConvertA<Character>(utf8) {}
};

/// The sections and entries of an INI file. Line breaks and outer blanks of values are kept.
class CIniStore : public CSimpleIniTempl<char, SI_NoCase<char>, SI_ConvertA<char, true>>
{
public:
    CIniStore() : CSimpleIniTempl(true, false, true) { SetSpaces(false); }
};

} // namespace Mirel::Serialization
