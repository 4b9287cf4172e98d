#include "Mirel/SkinEngine/Model/CSkinModelState.h"

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CFunctionProxy.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/Serialization/IndexedKey.h"
#include "Mirel/Serialization/Limits.h"
#include "Mirel/Serialization/ReadText.h"
#include "StateRig.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using namespace Serialization;
using namespace Tests;
using Math::CConstantBinaryFunction;
using Math::CConstantFunction;

/// Reads a nested object for a look at its keys.
class CNested : public IDeSerialize
{
public:
    explicit CNested(const IReadDataStream& stream, const char* key) { found = stream.Read(key, *this); }
    explicit CNested(const CNested& outer, const char* key) : CNested(outer.content, key) {}

    bool Deserialize(const IReadDataStream& stream) override
    {
        // Data objects of the memory kind hand themselves out.
        CMemDataObject copy;
        return dynamic_cast<const CMemDataObject&>(stream).Serialize(copy) && content.Deserialize(copy);
    }

    template <class T>
    T Get(const char* key) const
    {
        T value{};
        EXPECT_TRUE(content.Read(key, value)) << key;
        return value;
    }

    std::string GetText(const char* key) const
    {
        std::string text;
        EXPECT_TRUE(ReadText(content, key, text)) << key;
        return text;
    }

    bool Exists(const char* key) const { return content.Exists(key); }

    bool found = false;

private:
    CMemDataObject content;
};

/// A stream that is a document of its own making.
template <class Write>
class TWriter : public ISerialize
{
public:
    explicit TWriter(Write write_) : write(std::move(write_)) {}
    bool Serialize(IWriteDataStream& stream) const override
    {
        write(stream);
        return true;
    }

private:
    Write write;
};

template <class Write>
void WriteObject(IWriteDataStream& stream, const char* key, Write write)
{
    const TWriter<Write> writer(std::move(write));
    stream.Write(key, static_cast<const ISerialize&>(writer));
}

TEST(CSkinModelState, StandsUnderItsKeyInVersion2)
{
    CSkinModel model;
    AddParam(model, "volume").SetValue(0.25f);
    AddString(model, "title").SetValue("Scope & <Bank>");
    AddCount(model, "bands").SetCount(3);
    for (const char* id : {"volume", "title", "bands"})
    {
        ASSERT_TRUE(model.MakePersistent(id, true));
    }
    CMemDataObject saved;
    ASSERT_TRUE(model.Serialize(saved));

    const CNested state(saved, "state");
    ASSERT_TRUE(state.found);
    EXPECT_EQ(state.Get<int>("version"), 2);
    const CNested params(state, "paramStates");
    EXPECT_EQ(params.Get<int>("paramCount"), 1);
    const CNested param(params, "param0");
    EXPECT_EQ(param.GetText("name"), "volume");
    EXPECT_EQ(param.Get<float>("value"), 0.25f);
    EXPECT_EQ(CNested(state, "curveStates").Get<int>("curveCount"), 0);
    EXPECT_EQ(CNested(state, "surfaceStates").Get<int>("surfaceCount"), 0);
    const CNested strings(state, "stringStates");
    EXPECT_EQ(strings.Get<int>("stringCount"), 1);
    EXPECT_EQ(CNested(strings, "string0").GetText("value"), "Scope & <Bank>");
    const CNested collections(state, "collectionCountStates");
    EXPECT_EQ(collections.Get<int>("collectionCount"), 1);
    const CNested collection(collections, "collection0");
    EXPECT_EQ(collection.GetText("name"), "bands.count");
    EXPECT_EQ(collection.Get<int>("value"), 3);
}

TEST(CSkinModelState, AFunctionIsWrittenWithItsClassKeyAndContent)
{
    CSkinModel model;
    AddCurve(model, "shape").SetValue(CConstantFunction(0.5f));
    AddSurface(model, "map").SetValue(CConstantBinaryFunction(0.75f));
    model.MakePersistent("shape", false);
    model.MakePersistent("map", false);
    CMemDataObject saved;
    model.Serialize(saved);

    const CNested state(saved, "state");
    const CNested curve(CNested(CNested(state, "curveStates"), "curve0"), "value");
    EXPECT_FALSE(curve.Get<bool>("isNull"));
    EXPECT_EQ(curve.GetText("type"), CConstantFunction::classKey);
    EXPECT_TRUE(curve.Exists("content"));
    const CNested surface(CNested(CNested(state, "surfaceStates"), "surface0"), "value");
    EXPECT_EQ(surface.GetText("type"), CConstantBinaryFunction::classKey);
}

TEST(CSkinModelState, ANullFunctionIsWrittenAsNullAloneAndReadsBackAsNull)
{
    CSkinModelState state;
    state.curves.push_back({"shape", nullptr});
    state.surfaces.push_back({"map", nullptr});
    CMemDataObject saved;
    ASSERT_TRUE(state.Serialize(saved));
    const CNested value(CNested(CNested(saved, "curveStates"), "curve0"), "value");
    EXPECT_TRUE(value.Get<bool>("isNull"));
    EXPECT_FALSE(value.Exists("type"));
    EXPECT_FALSE(value.Exists("content"));

    CSkinModelState read;
    EXPECT_TRUE(read.Deserialize(saved));
    ASSERT_EQ(read.curves.size(), 1U);
    EXPECT_EQ(read.curves[0].name, "shape");
    EXPECT_EQ(read.curves[0].value, nullptr);
    ASSERT_EQ(read.surfaces.size(), 1U);
    EXPECT_EQ(read.surfaces[0].value, nullptr);
}

TEST(CSkinModelState, ANullFunctionGivesACurveItsDefault)
{
    CSkinModel model;
    CCaptureCurve& curve = AddCurve(model, "shape");
    curve.GetInfo().GetYInfo().SetDefault(0.125f);
    curve.SetValue(CConstantFunction(5.0f));
    model.MakePersistent("shape", false);
    CSkinModelState state;
    state.curves.push_back({"shape", nullptr});
    model.RestoreState(state);
    EXPECT_EQ(curve.GetValue()(0.0f), 0.125f);
}

TEST(CSkinModelState, ReadingClearsWhatWasThere)
{
    CSkinModelState state;
    state.params.push_back({"old", 1.0f});
    state.strings.push_back({"old", "text"});
    state.collections.push_back({"old.count", 1});
    EXPECT_FALSE(state.Deserialize(CMemDataObject()));
    EXPECT_TRUE(state.params.empty());
    EXPECT_TRUE(state.strings.empty());
    EXPECT_TRUE(state.collections.empty());
}

TEST(CSkinModelState, AStateOfBeforeVersion2LoadsAndLeavesCountsAsTheyAre)
{
    for (const int version : {0, 1, 2})
    {
        CSkinModelState state;
        state.params.push_back({"volume", 0.5f});
        state.collections.push_back({"bands.count", 7});
        CMemDataObject saved;
        state.Serialize(saved);
        version == 0 ? saved.Remove("version") : static_cast<void>(saved.Write("version", version));

        CSkinModel model;
        CCaptureParam& volume = AddParam(model, "volume");
        CTestCount& bands = AddCount(model, "bands");
        bands.SetCount(2);
        model.MakePersistent("volume", false);
        model.MakePersistent("bands", false);
        CSkinModelState read;
        EXPECT_TRUE(read.Deserialize(saved)) << version;
        model.RestoreState(read);
        EXPECT_EQ(volume.GetValue(), 0.5f) << version;
        EXPECT_EQ(bands.GetCount(), version < 2 ? 2 : 7) << version;
    }
}

TEST(CSkinModelState, AVersion1StateWithoutTheListOfCountsIsComplete)
{
    CMemDataObject saved;
    CSkinModelState().Serialize(saved);
    saved.Remove("collectionCountStates");
    CSkinModelState state;
    EXPECT_FALSE(state.Deserialize(saved));
    saved.Write("version", 1);
    EXPECT_TRUE(state.Deserialize(saved));
}

TEST(CSkinModelState, UnknownNamesAndOtherKindsAreSkippedInSilence)
{
    CoreUtilities::CMemMessageLog log;
    CSkinModel model(&log);
    CCaptureParam& volume = AddParam(model, "volume");
    CCaptureString& title = AddString(model, "title");
    CTestCount& bands = AddCount(model, "bands");
    for (const char* id : {"volume", "title", "bands"})
    {
        model.MakePersistent(id, false);
    }
    CSkinModelState state;
    state.params.push_back({"nobody", 1.0f});
    state.params.push_back({"title", 1.0f});
    state.curves.push_back({"volume", std::make_unique<CConstantFunction>(1.0f)});
    state.surfaces.push_back({"title", nullptr});
    state.strings.push_back({"volume", "text"});
    state.collections.push_back({"volume.count", 3});
    state.collections.push_back({"bands", 3});
    state.collections.push_back({".count", 3});
    state.collections.push_back({"", 3});
    state.params.push_back({"volume", 0.75f});
    model.RestoreState(state);
    EXPECT_EQ(volume.GetValue(), 0.75f);
    EXPECT_STREQ(title.GetValue(), "");
    EXPECT_EQ(bands.sets, 0);
    EXPECT_FALSE(log.HasMessages());
}

TEST(CSkinModelState, ObjectsThatAreNotPersistentAreNeitherSavedNorRestored)
{
    CSkinModel model;
    CCaptureParam& param = AddParam(model, "volume");
    param.SetValue(1.0f);
    CSkinModelState state;
    model.TakeState(state);
    EXPECT_TRUE(state.params.empty());
    state.params.push_back({"volume", 2.0f});
    model.RestoreState(state);
    EXPECT_EQ(param.GetValue(), 1.0f);
}

TEST(CSkinModelState, ReadOnlyObjectsAreNotPartOfAState)
{
    CSkinModel model;
    model.AddConstParam("meter", new CCaptureParam, objectItself, true);
    ASSERT_TRUE(model.MakePersistent("meter", false));
    CSkinModelState state;
    model.TakeState(state);
    EXPECT_TRUE(state.params.empty());
}

TEST(CSkinModelState, AModelWithoutASavedStateKeepsItsValues)
{
    CSkinModel model;
    AddParam(model, "volume").SetValue(0.5f);
    model.MakePersistent("volume", false);
    EXPECT_FALSE(model.Deserialize(CMemDataObject()));
    EXPECT_EQ(AddParam(model, "other").GetValue(), 0.0f);
    CSkinModelState state;
    model.TakeState(state);
    EXPECT_EQ(state.params.at(0).value, 0.5f);
}

TEST(CSkinModelState, ValuesAreKeptToTheRangeOfTheModel)
{
    CSkinModel model;
    auto* param = new CCaptureParam;
    param->GetInfo().SetMax(1.0f);
    model.AddParam("volume", param, objectItself, true);
    model.MakePersistent("volume", false);
    CSkinModelState state;
    state.params.push_back({"volume", 1e30f});
    model.RestoreState(state);
    EXPECT_EQ(param->GetValue(), 1.0f);
}

/// A collection whose items are collections, and have a parameter each.
class CNestingCount : public CTestCount
{
public:
    CNestingCount(CSkinModel& model_, std::string id_) : model(model_), id(std::move(id_)) {}

    void SetCount(int newCount) override
    {
        for (int i = GetCount(); i < newCount; ++i)
        {
            const std::string itemId = id + "[" + std::to_string(i) + "]";
            items.push_back(&AddCount(model, (itemId + ".parts").c_str()));
            model.MakePersistent((itemId + ".parts").c_str(), true);
            params.push_back(&AddParam(model, (itemId + ".gain").c_str()));
            model.MakePersistent((itemId + ".gain").c_str(), true);
        }
        CTestCount::SetCount(newCount);
    }

    CSkinModel& model;
    std::string id;
    std::vector<CTestCount*> items;
    std::vector<CCaptureParam*> params;
};

TEST(CSkinModelState, CountsComeBackBeforeTheObjectsOfTheItems)
{
    CSkinModel model;
    CNestingCount& bands = AddCount(model, "bands", std::make_unique<CNestingCount>(model, "bands"));
    model.MakePersistent("bands", true);
    CSkinModelState state;
    // The inner collection first, as a map would give it that keeps no order.
    state.collections.push_back({"bands[1].parts.count", 4});
    state.collections.push_back({"bands.count", 2});
    state.params.push_back({"bands[1].gain", 0.5f});
    model.RestoreState(state);
    ASSERT_EQ(bands.params.size(), 2U);
    EXPECT_EQ(bands.params[1]->GetValue(), 0.5f);
    EXPECT_EQ(bands.items[1]->GetCount(), 4);
    EXPECT_EQ(bands.items[0]->GetCount(), 0);
    EXPECT_FALSE(model.IsStateModified());
}

TEST(CSkinModelState, ACountOfTwoThousandMillionCostsNeitherMemoryNorTime)
{
    for (const int count : {2000000000, CLimits::maxItems, -1, -2000000000})
    {
        CMemDataObject saved;
        saved.Write("version", 2);
        const char* const lists[][2] = {{"paramStates", "paramCount"},
                                        {"curveStates", "curveCount"},
                                        {"surfaceStates", "surfaceCount"},
                                        {"stringStates", "stringCount"},
                                        {"collectionCountStates", "collectionCount"}};
        for (const auto& [list, countKey] : lists)
        {
            WriteObject(saved, list,
                        [key = countKey, count](IWriteDataStream& stream) { stream.Write(key, count); });
        }
        CSkinModelState state;
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(state.Deserialize(saved), count < 0);
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
        EXPECT_TRUE(state.params.empty());
        EXPECT_EQ(state.params.capacity() + state.curves.capacity() + state.strings.capacity(), 0U);
    }
}

TEST(CSkinModelState, MissingAndDamagedItemsLeaveTheOthers)
{
    CSkinModelState state;
    for (int i = 0; i < 5; ++i)
    {
        state.params.push_back({IndexedKey("p", i), static_cast<float>(i)});
    }
    CMemDataObject list;
    CMemDataObject saved;
    state.Serialize(saved);
    WriteObject(saved, "paramStates",
                [](IWriteDataStream& stream)
                {
                    stream.Write("paramCount", 5);
                    WriteObject(stream, "param0",
                                [](IWriteDataStream& item)
                                {
                                    item.Write("name", "p0");
                                    item.Write("value", 7.0f);
                                });
                    // param1 is missing, param2 has no value, param3 no name and one of the wrong kind.
                    WriteObject(stream, "param2", [](IWriteDataStream& item) { item.Write("name", "p2"); });
                    WriteObject(stream, "param3", [](IWriteDataStream& item) { item.Write("value", 3.0f); });
                    WriteObject(stream, "param4",
                                [](IWriteDataStream& item)
                                {
                                    item.Write("name", "p4");
                                    item.Write("value", 4.0f);
                                });
                });
    CSkinModelState read;
    EXPECT_TRUE(read.Deserialize(saved));
    ASSERT_EQ(read.params.size(), 2U);
    EXPECT_EQ(read.params[0].name, "p0");
    EXPECT_EQ(read.params[1].name, "p4");
    EXPECT_EQ(read.params[1].value, 4.0f);
}

TEST(CSkinModelState, AFunctionOfAnUnknownClassIsLeftOut)
{
    CSkinModelState state;
    state.curves.push_back({"known", std::make_unique<CConstantFunction>(1.0f)});
    CMemDataObject saved;
    state.Serialize(saved);
    WriteObject(saved, "curveStates",
                [](IWriteDataStream& stream)
                {
                    stream.Write("curveCount", 1);
                    WriteObject(stream, "curve0",
                                [](IWriteDataStream& item)
                                {
                                    item.Write("name", "shape");
                                    WriteObject(item, "value",
                                                [](IWriteDataStream& value)
                                                {
                                                    value.Write("isNull", false);
                                                    value.Write("type", "{no such class}");
                                                    WriteObject(value, "content", [](IWriteDataStream&) {});
                                                });
                                });
                });
    CSkinModelState read;
    EXPECT_TRUE(read.Deserialize(saved));
    EXPECT_TRUE(read.curves.empty());
}

TEST(CSkinModelState, FunctionsWithinFunctionsComeBackAsFarAsADocumentNests)
{
    for (const int depth : {50, 100000})
    {
        // Each level is written as two elements, the function and its content.
        std::string text = "<Root><version>2</version><paramStates><paramCount>0</paramCount></paramStates>"
                           "<curveStates><curveCount>1</curveCount><curve0><name>shape</name>";
        std::string end;
        for (int i = 0; i < depth; ++i)
        {
            text += std::string("<value><isNull>0</isNull><type>") + Math::CFunctionProxy::classKey +
                    "</type><content>";
            end += "</content></value>";
        }
        text += "<value><isNull>1</isNull></value>" + end + "</curve0></curveStates></Root>";
        CXmlDataObject document("Root");
        EXPECT_EQ(document.LoadFromMemory(text.data(), text.size()), depth == 50);
        CSkinModelState state;
        state.Deserialize(document);
        // A proxy without a function is none.
        EXPECT_TRUE(state.curves.empty());
    }
    std::unique_ptr<Math::IFunction> nested = std::make_unique<CConstantFunction>(0.5f);
    for (int i = 0; i < 50; ++i)
    {
        nested = std::make_unique<Math::CFunctionProxy>(
            Math::TFunctionHolder<Math::IFunction>(nested.release(), true));
    }
    CSkinModelState state;
    state.curves.push_back({"shape", std::move(nested)});
    CXmlDataObject document("Root");
    ASSERT_TRUE(state.Serialize(document));
    std::string text;
    ASSERT_TRUE(document.SaveToText(text));
    CXmlDataObject read("Root");
    ASSERT_TRUE(read.LoadFromMemory(text.data(), text.size()));
    CSkinModelState restored;
    ASSERT_TRUE(restored.Deserialize(read));
    ASSERT_EQ(restored.curves.size(), 1U);
    EXPECT_EQ((*restored.curves[0].value)(7.0f), 0.5f);
}

} // namespace
} // namespace Mirel::SkinEngine
