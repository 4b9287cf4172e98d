#pragma once

#include "Mirel/Core/IEnable.h"
#include "Mirel/Core/IRefreshTime.h"
#include "Mirel/SkinEngine/Model/CElementBuild.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace Mirel::SkinEngine
{

/// What the handlers of model elements work with. Used by the thread that builds the model.
class CModelBuild : public CElementBuild
{
public:
    /// The parent is null but for an item of a collection. All must outlive the build.
    CModelBuild(CSkinParser& parser_, CoreUtilities::IMessageLog& log_, ISkinModel& model_,
                ISkinModel* parent_, std::shared_ptr<CSkinModelContext> context_);

    /// Null but for an item of a collection.
    ISkinModel* GetParent() const { return parent; }
    const SSkinModelServices& GetServices() const { return GetContext()->GetServices(); }
    const System::ITickSource& GetTickSource() const;

    /// To be done after counts are set.
    void QueueLink(std::unique_ptr<CModelCommand> command) { links.push_back(std::move(command)); }

    /// Have an object given to a target by a setter when all are there. O is the interface that it needs.
    template <class O, class T>
    void Connect(T& target, typename TPointerConnection<T, O>::Method method, const char* id)
    {
        QueueLink(std::make_unique<TConnectCommand<T, O>>(GetModel(), GetContext(), target, method, id));
    }

    template <class O, class T>
    void ConnectByRef(T& target, typename TConnectByRefCommand<T, O>::Method connect,
                      typename TConnectByRefCommand<T, O>::Method disconnect, const char* id)
    {
        QueueLink(std::make_unique<TConnectByRefCommand<T, O>>(GetModel(), GetContext(), target, connect,
                                                               disconnect, id));
    }

    template <class O, class T>
    void ConnectByRefWithId(T& target, typename TNamedConnection<T, O>::Connect connect,
                            typename TNamedConnection<T, O>::Disconnect disconnect, const char* id)
    {
        QueueLink(std::make_unique<TConnectByRefWithIdCommand<T, O>>(GetModel(), GetContext(), target,
                                                                     connect, disconnect, id));
    }

    template <class T>
    T& OwnLink(std::unique_ptr<T> link)
    {
        T& owned = *link;
        GetModel().AddLink(link.release());
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

    /// The end of the model. False if something could not be linked.
    bool Finish();

    /// Forgets what was to be done.
    void Drop();

private:
    bool AddToParent() const;

    ISkinModel* parent;
    CCommands links;
};

} // namespace Mirel::SkinEngine
