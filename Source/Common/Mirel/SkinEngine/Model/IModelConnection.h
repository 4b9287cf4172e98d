#pragma once

#include "Mirel/Core/IDestroy.h"

#include <utility>

namespace Mirel::SkinEngine
{

/// Something that points to objects of a model without being a switched link, as a formula does to the
/// objects that it reads.
class IModelConnection : public Core::IDestroy
{
public:
    /// Lets go of all objects, which are about to be destroyed. Runs once.
    virtual void LetGo() = 0;
};

/// A connection that is let go of by a call, as `[curve] { curve->SetSource(nullptr); }` would be.
template <class F>
class TModelConnection : public IModelConnection
{
public:
    explicit TModelConnection(F letGo_) : letGo(std::move(letGo_)) {}
    void LetGo() override { letGo(); }

private:
    F letGo;
};

} // namespace Mirel::SkinEngine
