#include "Mirel/GUI/DrawnDialogs/CBlockingDialogs.h"

#include <utility>

namespace Mirel::GUI
{

/// Lasts as long as one dialog. Its receiver holds it too, since an answer may come before the id is known.
struct CBlockingDialogs::SBlock
{
    explicit SBlock(CWindowBase& window_) : window(window_), watch(window_.GetLifeToken())
    {
        window.SetInputBlocked(true);
    }
    SBlock(const SBlock&) = delete;
    SBlock& operator=(const SBlock&) = delete;
    ~SBlock() { End(); }

    void End()
    {
        if (!std::exchange(isOver, true) && watch.IsAlive())
        {
            window.SetInputBlocked(false);
        }
    }

    CWindowBase& window;
    Core::CLifeToken::CWatch watch;
    bool isOver = false;
};

CBlockingDialogs::CBlockingDialogs(IDialogs& dialogs_, CWindowBase& window_)
    : dialogs(dialogs_),
      window(window_)
{
}

CBlockingDialogs::~CBlockingDialogs()
{
    while (!open.empty())
    {
        CBlockingDialogs::Cancel(open.begin()->first);
    }
}

template <typename TAsk>
IDialogs::DialogId CBlockingDialogs::Ask(const TAsk& ask)
{
    std::erase_if(open, [](const auto& dialog) { return dialog.second->isOver; });
    const auto block = std::make_shared<SBlock>(window);
    const DialogId id = ask(block);
    if (id == 0)
    {
        block->End();
    }
    else if (!block->isOver)
    {
        open[id] = block;
    }
    return id;
}

IDialogs::DialogId CBlockingDialogs::ShowMessage(const SMessage& message, NativeWindowId owner,
                                                 MessageReceiver receiver)
{
    return Ask(
        [&](const std::shared_ptr<SBlock>& block)
        {
            return dialogs.ShowMessage(message, owner,
                                       [block, receiver](EMessageAnswer answer)
                                       {
                                           block->End();
                                           if (receiver)
                                           {
                                               receiver(answer);
                                           }
                                       });
        });
}

IDialogs::DialogId CBlockingDialogs::ChooseFile(const SFileRequest& request, NativeWindowId owner,
                                                FileReceiver receiver)
{
    return Ask(
        [&](const std::shared_ptr<SBlock>& block)
        {
            return dialogs.ChooseFile(request, owner,
                                      [block, receiver](const std::string& path)
                                      {
                                          block->End();
                                          if (receiver)
                                          {
                                              receiver(path);
                                          }
                                      });
        });
}

void CBlockingDialogs::Cancel(DialogId id)
{
    if (const auto place = open.find(id); place != open.end())
    {
        place->second->End();
        open.erase(place);
        dialogs.Cancel(id);
    }
}

} // namespace Mirel::GUI
