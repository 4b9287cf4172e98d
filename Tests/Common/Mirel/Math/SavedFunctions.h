#pragma once

#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/Serialization/ItemStreams.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace Mirel::Math
{

/// The function that the stream holds under "f", created by its class key as an I; null if there is none.
template <class I>
std::unique_ptr<I> ReadFunction(const Serialization::IReadDataStream& stream)
{
    Serialization::TRuntimeDeSerializer<I> reader;
    stream.Read("f", static_cast<Serialization::IDeSerialize&>(reader));
    return std::unique_ptr<I>(reader.Detach());
}

/// Saves the function with its class and reads it back from memory.
template <class I>
std::unique_ptr<I> ThroughMemory(const I& function)
{
    Serialization::CMemDataObject object;
    EXPECT_TRUE(Serialization::WriteItem(object, "f", &function));
    return ReadFunction<I>(object);
}

/// The same by way of an XML document's text, in one of CXmlMode.
template <class I>
std::unique_ptr<I> ThroughXml(const I& function, int mode)
{
    Serialization::CXmlDataObject object("Functions", mode);
    EXPECT_TRUE(Serialization::WriteItem(object, "f", &function));
    std::string text;
    EXPECT_TRUE(object.SaveToText(text));
    Serialization::CXmlDataObject loaded("Functions", mode);
    EXPECT_TRUE(loaded.LoadFromMemory(text.data(), text.size()));
    return ReadFunction<I>(loaded);
}

/// The same by way of a memory object that is itself saved as XML, as the state of an instance is.
template <class I>
std::unique_ptr<I> ThroughMemoryInXml(const I& function)
{
    Serialization::CMemDataObject object;
    EXPECT_TRUE(Serialization::WriteItem(object, "f", &function));
    Serialization::CXmlDataObject document("State");
    EXPECT_TRUE(document.Write("state", static_cast<const Serialization::ISerialize&>(object)));
    std::string text;
    EXPECT_TRUE(document.SaveToText(text));
    Serialization::CXmlDataObject loaded("State");
    EXPECT_TRUE(loaded.LoadFromMemory(text.data(), text.size()));
    Serialization::CMemDataObject read;
    EXPECT_TRUE(loaded.Read("state", static_cast<Serialization::IDeSerialize&>(read)));
    return ReadFunction<I>(read);
}

/// Calls check(read) with what each of the ways gives back.
template <class I, class Check>
void ThroughEveryForm(const I& function, Check check)
{
    {
        SCOPED_TRACE("memory");
        check(ThroughMemory(function));
    }
    for (const int mode : {0, 1, 2})
    {
        SCOPED_TRACE(testing::Message() << "XML, mode " << mode);
        check(ThroughXml(function, mode));
    }
    {
        SCOPED_TRACE("memory in XML");
        check(ThroughMemoryInXml(function));
    }
}

} // namespace Mirel::Math
