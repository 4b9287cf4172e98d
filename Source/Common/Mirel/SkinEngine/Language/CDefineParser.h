#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/Containers/TStringMap.h"
#include "Mirel/CoreUtilities/IMessageLog.h"
#include "Mirel/Serialization/DataStreams.h"

namespace Mirel::SkinEngine
{

/// The definitions of a skin: new names for elements, with default attributes. Belongs to the thread that
/// parses.
class CDefineParser : public virtual Serialization::ISerializable
{
public:
    /// The log is not owned.
    explicit CDefineParser(CoreUtilities::IMessageLog& log_) : log(&log_) {}

    /// Defines the element, or writes the attributes over those of an earlier definition. False, with an
    /// error in the log, without a "base_type" or with one that is the name itself.
    bool Define(const char* name, const Containers::CNamedAttributes& attributes);

    /// Adds the definition's attributes to those of a use, which win, and gives the base type, owned by the
    /// definition. Null if the name is not defined.
    const char* TranslateStart(const char* name, Containers::CNamedAttributes& attributes) const;

    /// The base type of a defined name, else null.
    const char* TranslateEnd(const char* name) const;

    /// An unknown name is ignored.
    void Undefine(const char* name);

    void Clear() { definitions.clear(); }

    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// Takes the place of all definitions held.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

private:
    CoreUtilities::IMessageLog* log;
    Containers::TStringMap<Containers::CNamedAttributes> definitions;
};

} // namespace Mirel::SkinEngine
