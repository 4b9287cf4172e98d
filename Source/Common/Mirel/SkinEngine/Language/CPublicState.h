#pragma once

#include "Mirel/Serialization/DataStreams.h"

#include <string>

namespace Mirel::SkinEngine
{

/// Where a parser stands: what a second parser needs to find the same files. Saved under the keys
/// "rootFilePath" and "currentFile". Belongs to the parser's thread.
class CPublicState : public virtual Serialization::ISerializable
{
public:
    /// Folder of the main file, with its trailing "/"; empty outside a parse.
    const std::string& GetRootFilePath() const { return rootFilePath; }
    void SetRootFilePath(std::string path) { rootFilePath = std::move(path); }

    /// The file that is being read.
    const std::string& GetCurrentFile() const { return currentFile; }
    void SetCurrentFile(std::string path) { currentFile = std::move(path); }

    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// A missing key keeps what is held and gives false.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

private:
    std::string rootFilePath;
    std::string currentFile;
};

} // namespace Mirel::SkinEngine
