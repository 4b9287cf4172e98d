#pragma once

#include "Mirel/Core/TReturnCommand.h"
#include "Mirel/SkinEngine/Model/ISkinModel.h"
#include "Mirel/SkinEngine/Model/TObjectConnection.h"

#include <memory>
#include <utility>

namespace Mirel::SkinEngine
{

// What is run when all objects of a model are there: each looks an identifier up and hands its object to a
// target. The connection then stays with the model, and takes the object back when that goes. The target is
// not owned; it belongs to the model as well. False, with a report, if there is no object of that kind.

/// Something to be run once, that may fail.
using CModelCommand = Core::TIReturnCommand<bool>;

/// The common part: runs a connection and hands it to the model.
template <class C>
class TResolveCommand : public CModelCommand
{
public:
    bool Execute() override
    {
        C& running = *connection;
        model.AddConnection(connection.release());
        return running.Resolve();
    }

protected:
    TResolveCommand(ISkinModel& model_, std::unique_ptr<C> connection_)
        : model(model_),
          connection(std::move(connection_))
    {
    }

private:
    ISkinModel& model;
    std::unique_ptr<C> connection;
};

/// Gives the object by a setter that takes null when the object goes.
template <class T, class O>
class TPointerConnection : public TObjectConnection<O>
{
public:
    using Method = void (T::*)(O*);

    TPointerConnection(std::shared_ptr<CSkinModelContext> context_, T& target_, Method method_,
                       const char* id_)
        : TObjectConnection<O>(std::move(context_), id_),
          target(target_),
          method(method_)
    {
    }

private:
    void Give(O& given) override { (target.*method)(&given); }
    void Take(O&) override { (target.*method)(nullptr); }

    T& target;
    Method method;
};

template <class T, class O>
class TConnectCommand : public TResolveCommand<TPointerConnection<T, O>>
{
public:
    TConnectCommand(ISkinModel& model_, std::shared_ptr<CSkinModelContext> context_, T& target_,
                    typename TPointerConnection<T, O>::Method method_, const char* id_)
        : TResolveCommand<TPointerConnection<T, O>>(
              model_, std::make_unique<TPointerConnection<T, O>>(std::move(context_), target_, method_, id_))
    {
    }
};

/// Gives and takes the object by two operations.
template <class T, class O>
class TReferenceConnection : public TObjectConnection<O>
{
public:
    using Method = void (T::*)(O&);

    TReferenceConnection(std::shared_ptr<CSkinModelContext> context_, T& target_, Method connect_,
                         Method disconnect_, const char* id_)
        : TObjectConnection<O>(std::move(context_), id_),
          target(target_),
          connect(connect_),
          disconnect(disconnect_)
    {
    }

private:
    void Give(O& given) override { (target.*connect)(given); }
    void Take(O& taken) override { (target.*disconnect)(taken); }

    T& target;
    Method connect;
    Method disconnect;
};

template <class T, class O>
class TConnectByRefCommand : public TResolveCommand<TReferenceConnection<T, O>>
{
public:
    using Method = typename TReferenceConnection<T, O>::Method;

    TConnectByRefCommand(ISkinModel& model_, std::shared_ptr<CSkinModelContext> context_, T& target_,
                         Method connect_, Method disconnect_, const char* id_)
        : TResolveCommand<TReferenceConnection<T, O>>(
              model_, std::make_unique<TReferenceConnection<T, O>>(std::move(context_), target_, connect_,
                                                                   disconnect_, id_))
    {
    }
};

/// The same for a target that knows its objects by their identifiers. Who follows the counts of others is
/// connected when the model is linked or never: what came later could stand in items of its own.
template <class T, class O>
class TNamedConnection : public TObjectConnection<O>
{
public:
    using Connect = void (T::*)(O&, const char*);
    using Disconnect = void (T::*)(O&, const char*);

    TNamedConnection(std::shared_ptr<CSkinModelContext> context_, T& target_, Connect connect_,
                     Disconnect disconnect_, const char* id_, bool comesBack_)
        : TObjectConnection<O>(std::move(context_), id_, comesBack_),
          target(target_),
          connect(connect_),
          disconnect(disconnect_)
    {
    }

private:
    void Give(O& given) override { (target.*connect)(given, this->GetObjectId().c_str()); }
    void Take(O& taken) override { (target.*disconnect)(taken, this->GetObjectId().c_str()); }

    T& target;
    Connect connect;
    Disconnect disconnect;
};

template <class T, class O>
class TConnectByRefWithIdCommand : public TResolveCommand<TNamedConnection<T, O>>
{
public:
    using CConnection = TNamedConnection<T, O>;

    TConnectByRefWithIdCommand(ISkinModel& model_, std::shared_ptr<CSkinModelContext> context_, T& target_,
                               typename CConnection::Connect connect_,
                               typename CConnection::Disconnect disconnect_, const char* id_,
                               bool comesBack_ = true)
        : TResolveCommand<CConnection>(model_,
                                       std::make_unique<CConnection>(std::move(context_), target_, connect_,
                                                                     disconnect_, id_, comesBack_))
    {
    }
};

} // namespace Mirel::SkinEngine
