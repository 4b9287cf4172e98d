#include "Mirel/GUI/DrawnDialogs/CDrawnDialogs.h"

#include "Mirel/GUI/DrawnDialogs/CAlertDialog.h"
#include "Mirel/GUI/DrawnDialogs/CDrawnFileDialog.h"

#include <utility>

namespace Mirel::GUI
{

CDrawnDialogs::CDrawnDialogs(INativePlatform& platform_, const CPopupLook& look_, CWindowBase* window_)
    : platform(platform_),
      look(look_),
      window(window_)
{
}

CDrawnDialogs::~CDrawnDialogs() = default;

IDialogs::DialogId CDrawnDialogs::ShowMessage(const SMessage& message, NativeWindowId owner,
                                              MessageReceiver receiver)
{
    const DialogId id = ++lastId;
    const auto answered = [this, id, receiver = std::move(receiver)](EMessageAnswer answer)
    {
        open.erase(id);
        if (receiver)
        {
            receiver(answer);
        }
    };
    return Open(id, std::make_unique<CAlertDialog>(platform, look, message, MakeOwner(owner), answered));
}

IDialogs::DialogId CDrawnDialogs::ChooseFile(const SFileRequest& request, NativeWindowId owner,
                                             FileReceiver receiver)
{
    const DialogId id = ++lastId;
    const auto answered = [this, id, receiver = std::move(receiver)](const std::string& path)
    {
        open.erase(id);
        if (receiver)
        {
            receiver(path);
        }
    };
    return Open(id, std::make_unique<CDrawnFileDialog>(platform, look, request, MakeOwner(owner), answered));
}

void CDrawnDialogs::Cancel(DialogId id)
{
    open.erase(id);
}

bool CDrawnDialogs::OpenPage(const std::string& /*address*/)
{
    return false;
}

CDrawnDialog* CDrawnDialogs::Find(DialogId id) const
{
    const auto place = open.find(id);
    return place == open.end() ? nullptr : place->second.get();
}

SDialogOwner CDrawnDialogs::MakeOwner(NativeWindowId owner) const
{
    SDialogOwner made;
    made.window = window;
    made.id = window == nullptr ? owner : 0;
    return made;
}

IDialogs::DialogId CDrawnDialogs::Open(DialogId id, std::unique_ptr<CDrawnDialog> dialog)
{
    CDrawnDialog& opening = *dialog;
    open[id] = std::move(dialog);
    if (!opening.Open())
    {
        open.erase(id);
        return 0;
    }
    return id;
}

} // namespace Mirel::GUI
