#pragma once

#include "Mirel/Core/IEnable.h"
#include "Mirel/Core/IRefreshTime.h"
#include "Mirel/Core/TDestroyAdapter.h"
#include "Mirel/SkinEngine/Model/ConnectCommands.h"
#include "Mirel/SkinEngine/Model/ISkinModel.h"
#include "Mirel/SkinEngine/Model/ModelAttributes.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{

class CSkinCollectionBase;
class CSkinParser;

/// What the handlers of model elements work with in the pass that builds: the model, what is wanted of it,
/// and what is left to be done when all objects are there. Used by the thread that builds the model.
class CModelBuild
{
public:
    /// The parent is null but for an item of a collection. All must outlive the build.
    CModelBuild(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, ISkinModel& model_,
                ISkinModel* parent_, std::shared_ptr<CSkinModelContext> context_);

    CSkinParser& GetParser() const { return parser; }
    ISkinModel& GetModel() const { return model; }

    /// Null but for an item of a collection.
    ISkinModel* GetParent() const { return parent; }

    /// The model whose dictionary and exposure count: that around all items.
    ISkinModel& GetWholeModel() const { return parent == nullptr ? model : *parent; }
    const ISkinModelExposure& GetExposure() const { return GetWholeModel().GetExposure(); }
    const std::shared_ptr<CSkinModelContext>& GetContext() const { return context; }
    const SSkinModelServices& GetServices() const { return context->GetServices(); }
    const System::ITickSource& GetTickSource() const;

    /// Return false, so that a handler can end with them.
    bool Fail(const std::string& message) const;
    void Warn(const std::string& message) const;
    void Inform(const char* message) const;

    /// Remembers an object that the element wants to be persistent or exposed.
    void Note(const char* id, const Containers::CNamedAttributes& attributes);
    void NotePersistent(const char* ids) { persistentIds += std::string(";") + ids; }
    void NoteExposed(const char* ids) { exposedIds += std::string(";") + ids; }

    // What is to be done at the end of the model: in this order, each list in its own.
    void QueuePreLink(std::unique_ptr<CModelCommand> command) { preLinks.push_back(std::move(command)); }
    void QueueCount(std::unique_ptr<CModelCommand> command) { counts.push_back(std::move(command)); }
    void QueueLink(std::unique_ptr<CModelCommand> command) { links.push_back(std::move(command)); }

    /// Have an object given to a target by a setter when all are there. O is the interface that it needs.
    template <class O, class T>
    void Connect(T& target, typename TPointerConnection<T, O>::Method method, const char* id)
    {
        QueueLink(std::make_unique<TConnectCommand<T, O>>(model, context, target, method, id));
    }

    template <class O, class T>
    void ConnectByRef(T& target, typename TConnectByRefCommand<T, O>::Method connect,
                      typename TConnectByRefCommand<T, O>::Method disconnect, const char* id)
    {
        QueueLink(
            std::make_unique<TConnectByRefCommand<T, O>>(model, context, target, connect, disconnect, id));
    }

    template <class O, class T>
    void ConnectByRefWithId(T& target, typename TNamedConnection<T, O>::Connect connect,
                            typename TNamedConnection<T, O>::Disconnect disconnect, const char* id)
    {
        QueueLink(std::make_unique<TConnectByRefWithIdCommand<T, O>>(model, context, target, connect,
                                                                     disconnect, id));
    }

    /// Hands an object that stands in no dictionary to the model.
    template <class T>
    T& Own(std::unique_ptr<T> object)
    {
        T& owned = *object;
        model.AddOwned(new Core::TDestroyAdapter<std::unique_ptr<T>>(std::move(object)));
        return owned;
    }

    template <class T>
    T& OwnLink(std::unique_ptr<T> link)
    {
        T& owned = *link;
        model.AddLink(link.release());
        return owned;
    }

    /// What is shown of a switch: the names of off and on, as "disabled;enabled", and its title.
    struct SSwitch
    {
        const char* suffix;
        const char* names;
        const char* title;
    };

    // Parameters for the settings of an object, named by its id and a suffix such as ".enabled". Without an
    // id, and where nobody wants them, there are none. The object must live as long as the model. False if
    // the name is taken.
    bool AddSwitch(const char* id, const SSwitch& shown, std::function<bool()> get,
                   std::function<void(bool)> set, Core::IEventProvider& changed);
    bool AddEnabledSwitch(const char* id, Core::IEnable& object);
    bool AddPausedSwitch(const char* id, Core::IEnable& object);
    bool AddRefreshTime(const char* id, Core::IRefreshTime& object);

    /// One more element. False, with a report for the first, where there may be none.
    bool TakeElement();

    /// Charges what is kept for an item to what all collections may hold. False if that is too much.
    bool TakeElements(int count);
    int GetElements() const { return elements; }

    /// The end of the model. False if something could not be linked.
    bool Finish();

    /// Forgets what was to be done.
    void Drop();

    CSkinCollectionBase* openCollection = nullptr; ///< Between start and end of its element.

private:
    bool AddToParent() const;
    void MakePersistent(const std::string& ids) const;
    void Expose(const std::string& ids) const;

    CSkinParser& parser;
    CoreUtilities::IMessageLog& log;
    ISkinModel& model;
    ISkinModel* parent;
    std::shared_ptr<CSkinModelContext> context;
    int builtElements = 0;
    int elements = 0; ///< Charged.
    std::string persistentIds;
    std::string exposedIds;
    std::vector<std::unique_ptr<CModelCommand>> preLinks;
    std::vector<std::unique_ptr<CModelCommand>> counts;
    std::vector<std::unique_ptr<CModelCommand>> links;
};

} // namespace Mirel::SkinEngine
