#pragma once

#include "Mirel/Runtime/CObjectsFactory.h"
#include "Mirel/Runtime/TObjectFactory.h"

namespace Mirel::Runtime
{

/// Registers class C in static initialisation: once under its own key as both class and interface, and once
/// for each interface that it is created as. C and the interfaces give their keys as static texts classKey.
///
/// The modules are static libraries, and a linker takes from those only the object files that somebody refers
/// to: a registration object in a source file of its own would silently be left out. So it is an inline
/// variable in a header, after the class:
///
///     inline const Runtime::TClassRegistration<CDataBuffer, IDataHolder> dataBufferRegistration;
///
/// Then every object file that includes the header carries the registration along, and the program runs it
/// once, however many object files bring it. A family of classes that are known by key alone, whose headers
/// nobody includes, makes its registrations in one function of a source file; the header of the family's
/// interface calls that function for the value of an inline variable, and so no reader can do without it.
template <class C, class... Interfaces>
class TClassRegistration
{
public:
    TClassRegistration()
    {
        RegisterAs<C>();
        (RegisterAs<Interfaces>(), ...);
    }

private:
    template <class I>
    static void RegisterAs()
    {
        static const TObjectFactory<C, I> factory;
        CObjectsFactory::Instance().Register(C::classKey, I::classKey, factory);
    }
};

} // namespace Mirel::Runtime
