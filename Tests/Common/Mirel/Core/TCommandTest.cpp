#include "Mirel/Core/TCommand.h"
#include "Mirel/Core/IDestroy.h"
#include "Mirel/Core/IUpdate.h"
#include "Mirel/Core/TArgCommand.h"
#include "Mirel/Core/TArgCommandWrapper.h"
#include "Mirel/Core/TArgReturnCommand.h"
#include "Mirel/Core/TDestroyAdapter.h"
#include "Mirel/Core/TReturnCommand.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using namespace Mirel::Core;

namespace
{

struct SRectangle
{
    int width;
    int height;
    bool operator==(const SRectangle&) const = default;
};

class CTarget : public IUpdate
{
public:
    void Update() override { ++updates; }
    void Count() const { ++counts; }
    void SetText(const char* value) { text = value; }
    void SetRectangle(const SRectangle& value) { area = value.width * value.height; }
    void Add(int value) { sum += value; }
    void Look(int value) const { looked = value; }
    bool IsBig() { return area > 10; }
    bool IsEqual(int value) { return sum == value; }

    int updates = 0;
    mutable int counts = 0;
    mutable int looked = 0;
    int sum = 0;
    int area = 0;
    std::string text;
};

} // namespace

TEST(TCommand, CallsTheMemberFunctionOfItsTarget)
{
    CTarget target;
    TCommand<IUpdate> command(&target, &IUpdate::Update);

    static_cast<ICommand&>(command).Execute();

    EXPECT_EQ(target.updates, 1);
}

TEST(TCommand, ConstFormCallsAConstMemberFunction)
{
    const CTarget target;
    TConstCommand<CTarget> command(&target, &CTarget::Count);

    static_cast<ICommand&>(command).Execute();

    EXPECT_EQ(target.counts, 1);
}

TEST(TArgCommand, CallsTheMemberFunctionWithTheArgument)
{
    CTarget target;
    TArgCommand<CTarget, int> add(&target, &CTarget::Add);
    TConstArgCommand<CTarget, int> look(&target, &CTarget::Look);

    for (TIArgCommand<int>* command :
         {static_cast<TIArgCommand<int>*>(&add), static_cast<TIArgCommand<int>*>(&look)})
    {
        command->Execute(6);
    }

    EXPECT_EQ(target.sum, 6);
    EXPECT_EQ(target.looked, 6);
}

TEST(TArgCommandWrapper, IsAPlainCommandThatCarriesItsArgument)
{
    CTarget target;
    using Command = TArgCommand<CTarget, int>;
    std::unique_ptr<ICommand> command =
        std::make_unique<TArgCommandWrapper<Command>>(Command(&target, &CTarget::Add), 4);

    command->Execute();
    command->Execute();

    EXPECT_EQ(target.sum, 8);
}

TEST(TArgCommandWrapper, KeepsItsOwnCopyOfATextAndOfAnObject)
{
    CTarget target;
    std::string text = "before";
    SRectangle rectangle{2, 3};
    using TextCommand = TArgCommand<CTarget, const char*>;
    using RectangleCommand = TArgCommand<CTarget, const SRectangle&>;
    TArgCommandWrapper<TextCommand> setText(TextCommand(&target, &CTarget::SetText), text.c_str());
    TArgCommandWrapper<RectangleCommand> setRectangle(RectangleCommand(&target, &CTarget::SetRectangle),
                                                      rectangle);
    text = "after!";
    rectangle = {100, 100};

    setText.Execute();
    setRectangle.Execute();

    EXPECT_EQ(target.text, "before");
    EXPECT_EQ(target.area, 6);
}

TEST(TReturnCommand, HandsTheResultBack)
{
    CTarget target;
    TReturnCommand<CTarget, bool> command(&target, &CTarget::IsBig);
    TIReturnCommand<bool>& interface = command;

    EXPECT_FALSE(interface.Execute());
    target.area = 11;
    EXPECT_TRUE(interface.Execute());
}

TEST(TArgReturnCommand, HandsTheArgumentOverAndTheResultBack)
{
    CTarget target;
    target.sum = 9;
    TArgReturnCommand<CTarget, bool, int> command(&target, &CTarget::IsEqual);
    TIArgReturnCommand<bool, int>& interface = command;

    EXPECT_FALSE(interface.Execute(8));
    EXPECT_TRUE(interface.Execute(9));
}

TEST(TDestroyAdapter, OneListOwnsObjectsOfUnrelatedClasses)
{
    auto shared = std::make_shared<int>(1);
    std::vector<std::unique_ptr<IDestroy>> list;
    list.push_back(std::make_unique<TDestroyAdapter<std::shared_ptr<int>>>(shared));
    list.push_back(std::make_unique<TDestroyAdapter<std::vector<std::shared_ptr<int>>>>(3U, shared));
    ASSERT_EQ(shared.use_count(), 5);

    list.clear();

    EXPECT_EQ(shared.use_count(), 1);
}

TEST(TDestroyAdapter, GivesAccessToItsObject)
{
    TDestroyAdapter<std::string> adapter("text");

    adapter.Get() += 's';

    EXPECT_EQ(std::as_const(adapter).Get(), "texts");
}
