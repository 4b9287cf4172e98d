#pragma once

namespace Mirel::SkinEngine
{

/// The identifiers that anybody wants of a model: marked while files are looked through, asked before objects
/// are built. Belongs to the thread that loads.
class ISkinModelExposure
{
public:
    /// Marks an identifier, or, if it contains a "*", a pattern in which each "*" stands for any run of
    /// characters. Null and the empty text mark nothing.
    virtual void Use(const char* id) = 0;

    // What is wanted of an object of that identifier and of its sub-objects: EObjectFlags, 0 for nothing.
    virtual int GetParamFlags(const char* id) const = 0;
    virtual int GetStringOrActionFlags(const char* id) const = 0;
    virtual int GetCurveFlags(const char* id) const = 0;
    virtual int GetSurfaceFlags(const char* id) const = 0;

    /// Whether that very identifier was marked or a pattern matches it. False for null.
    virtual bool IsWanted(const char* id) const = 0;

    virtual ~ISkinModelExposure() = default;
};

} // namespace Mirel::SkinEngine
