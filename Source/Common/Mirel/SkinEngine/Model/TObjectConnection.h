#pragma once

#include "Mirel/SkinEngine/Model/CSkinModelContext.h"
#include "Mirel/SkinEngine/Model/IModelConnection.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace Mirel::SkinEngine
{

/// Holds the object of an identifier for somebody, from Resolve on: takes it away when it goes, and gives the
/// one that comes under the same identifier. An object that has come late is given then; whoever needs it has
/// failed nevertheless. O is the interface, const where it is only read. GUI thread only.
template <class O>
class TObjectConnection : public IModelConnection, public IObjectWatcher
{
    using I = std::remove_const_t<O>;

public:
    TObjectConnection(const TObjectConnection&) = delete;
    TObjectConnection& operator=(const TObjectConnection&) = delete;
    ~TObjectConnection() override { EndWatch(); }

    /// False, with a report, if there is no object of that kind.
    bool Resolve()
    {
        place = context->GetWatch().Add(id, *this);
        watching = true;
        object = ResolveObject<I>(context->GetDictionary(), id.c_str());
        if (object != nullptr)
        {
            Give(*object);
        }
        return object != nullptr;
    }

    void LetGo() override
    {
        EndWatch();
        OnObjectRemoved();
    }

    void OnObjectAdded(Runtime::IDynamicObject& newObject) override
    {
        if (object == nullptr && comesBack)
        {
            object = FindInterface<I>(newObject);
            if (object != nullptr)
            {
                Give(*object);
            }
        }
    }

    void OnObjectRemoved() override
    {
        if (O* gone = std::exchange(object, nullptr))
        {
            Take(*gone);
        }
    }

protected:
    /// Without comesBack an object is not given once the model is linked.
    TObjectConnection(std::shared_ptr<CSkinModelContext> context_, const char* id_, bool comesBack_ = true)
        : context(std::move(context_)),
          id(id_),
          comesBack(comesBack_)
    {
    }

    const std::string& GetObjectId() const { return id; }

    virtual void Give(O& given) = 0;
    virtual void Take(O& taken) = 0;

private:
    void EndWatch()
    {
        if (std::exchange(watching, false))
        {
            context->GetWatch().Remove(id, place);
        }
    }

    std::shared_ptr<CSkinModelContext> context;
    std::string id;
    O* object = nullptr;
    CObjectWatch::CPlace place;
    bool comesBack;
    bool watching = false;
};

} // namespace Mirel::SkinEngine
