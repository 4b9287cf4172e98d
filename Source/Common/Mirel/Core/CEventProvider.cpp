#include "Mirel/Core/CEventProvider.h"

#include <iterator>

namespace Mirel::Core
{

void CEventProvider::Connect(ICommand* command)
{
    items.push_back({command, false});
}

void CEventProvider::Connect(ICommand& command)
{
    Connect(&command);
}

void CEventProvider::Disconnect(ICommand*& command, bool destroyCommand)
{
    if (command == nullptr)
    {
        return;
    }
    Disconnect(command);
    if (destroyCommand)
    {
        delete command; // the caller hands the listener over with this form
        command = nullptr;
    }
}

void CEventProvider::Disconnect(ICommand* command)
{
    for (auto item = items.begin(); item != items.end();)
    {
        if (item->command != command)
        {
            ++item;
        }
        else if (item->running)
        {
            // The delivery on the stack still needs the item's link to go on from.
            item->command = nullptr;
            ++item;
        }
        else
        {
            item = items.erase(item);
        }
    }
}

void CEventProvider::Notify() const
{
    for (auto item = items.begin(); item != items.end();)
    {
        if (item->running)
        {
            ++item;
            continue;
        }
        item->running = true;
        item->command->Execute();
        item->running = false;
        item = item->command == nullptr ? items.erase(item) : std::next(item);
    }
}

} // namespace Mirel::Core
