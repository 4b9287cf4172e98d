#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TValueFactory.h"
#include "Support/CFunctionCommand.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>

using namespace Mirel::Core;
using Tests::CFunctionCommand;

namespace
{

class IShape
{
public:
    virtual int GetSides() const = 0;
    virtual IShape* Clone() const = 0;
    virtual ~IShape() = default;
};

class CShape : public IShape
{
public:
    explicit CShape(int sides_) : sides(sides_) {}
    int GetSides() const override { return sides; }
    IShape* Clone() const override { return new CShape(sides); }

private:
    int sides;
};

template <class T>
using Value = TValue<T, CEventProvider>;

} // namespace

TEST(TValue, ChangeIsStoredBeforeTheEventAndReadFromTheSource)
{
    Value<int> value(3);
    int seen = 0;
    CFunctionCommand listener([&] { seen = value.GetValue(); });
    value.GetValueChangedEventProvider().Connect(listener);

    value.SetValue(4);

    EXPECT_EQ(seen, 4);
}

TEST(TValue, UnchangedValueDoesNotNotify)
{
    Value<float> number(1.5F);
    Value<double> wide(1.5);
    Value<bool> flag(true);
    Value<const char*> text("a");
    int events = 0;
    CFunctionCommand listener([&] { ++events; });
    for (const IValueChangedEventProvider* source :
         std::initializer_list<const IValueChangedEventProvider*>{&number, &wide, &flag, &text})
    {
        source->GetValueChangedEventProvider().Connect(listener);
    }

    number.SetValue(1.5F);
    wide.SetValue(1.5);
    flag.SetValue(true);
    text.SetValue(std::string("a").c_str());
    EXPECT_EQ(events, 0);

    number.SetValue(std::nextafter(1.5F, 2.0F));
    wide.SetValue(std::nextafter(1.5, 1.0));
    flag.SetValue(false);
    text.SetValue("b");
    EXPECT_EQ(events, 4);
}

TEST(TValue, NotANumberCountsAsUnchanged)
{
    Value<float> value(2.0F);
    int events = 0;
    CFunctionCommand listener([&] { ++events; });
    value.GetValueChangedEventProvider().Connect(listener);

    value.SetValue(std::numeric_limits<float>::quiet_NaN());

    EXPECT_EQ(events, 0);
    EXPECT_EQ(value.GetValue(), 2.0F);
}

TEST(TValue, OwnsItsCopyOfATextAndTellsNullFromEmpty)
{
    Value<const char*> value;
    int events = 0;
    CFunctionCommand listener([&] { ++events; });
    value.GetValueChangedEventProvider().Connect(listener);
    EXPECT_EQ(value.GetValue(), nullptr);

    std::string text = "first";
    value.SetValue(text.c_str());
    text = "other";
    EXPECT_STREQ(value.GetValue(), "first");

    value.SetValue("");
    EXPECT_STREQ(value.GetValue(), "");
    value.SetValue(nullptr);
    EXPECT_EQ(value.GetValue(), nullptr);
    value.SetValue(nullptr);
    EXPECT_EQ(events, 3);
}

TEST(TValue, TextMayBeSetToAPartOfItself)
{
    Value<const char*> value("long enough to stand on the heap, not in the object");

    value.SetValue(value.GetValue() + 5);

    EXPECT_STREQ(value.GetValue(), "enough to stand on the heap, not in the object");
}

TEST(TValue, KeepsACloneOfAnObjectBehindAReference)
{
    auto shape = std::make_unique<CShape>(3);
    Value<const IShape&> value(*shape);
    int events = 0;
    CFunctionCommand listener([&] { ++events; });
    value.GetValueChangedEventProvider().Connect(listener);
    shape = std::make_unique<CShape>(4);
    EXPECT_EQ(value.GetValue().GetSides(), 3);

    value.SetValue(*shape);
    shape.reset();
    EXPECT_EQ(value.GetValue().GetSides(), 4);
    EXPECT_EQ(events, 1);

    value.SetValue(value.GetValue());
    EXPECT_EQ(events, 1);
}

TEST(TValueFactory, EveryFaceOfTheFactoryMakesAValue)
{
    const TValueFactory<float, CEventProvider> factory;
    const TIValueFactory<float>& writable = factory;
    const TIConstValueFactory<float>& readable = factory;

    const std::unique_ptr<TIConstValue<float>> a(readable.CreateValue(1.0F));
    const std::unique_ptr<TIValue<float>> b(writable.CreateValue(2.0F));
    const std::unique_ptr<TValue<float, CEventProvider>> c(factory.CreateValue(3.0F));
    b->SetValue(4.0F);

    EXPECT_EQ(a->GetValue(), 1.0F);
    EXPECT_EQ(b->GetValue(), 4.0F);
    EXPECT_EQ(c->GetValue(), 3.0F);
}
