#include "Mirel/SkinEngine/Language/CPublicState.h"

#include "Mirel/SkinEngine/Language/NamedAttributesStream.h"

namespace Mirel::SkinEngine
{

namespace
{

constexpr const char* rootFilePathKey = "rootFilePath";
constexpr const char* currentFileKey = "currentFile";

} // namespace

bool CPublicState::Serialize(Serialization::IWriteDataStream& stream) const
{
    const bool rootWritten = stream.Write(rootFilePathKey, rootFilePath.c_str());
    return stream.Write(currentFileKey, currentFile.c_str()) && rootWritten;
}

bool CPublicState::Deserialize(const Serialization::IReadDataStream& stream)
{
    const bool rootRead = ReadText(stream, rootFilePathKey, rootFilePath);
    return ReadText(stream, currentFileKey, currentFile) && rootRead;
}

} // namespace Mirel::SkinEngine
