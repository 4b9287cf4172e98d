#pragma once

#include "Mirel/GUI/Native/Dialogs/IDialogs.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Tests
{

/// Answers as the test has laid down beforehand, at once; keeps what it was asked. A question without an
/// answer laid down stays open until the test answers it, or it is cancelled.
class CScriptedDialogs : public Mirel::GUI::IDialogs
{
public:
    std::deque<Mirel::GUI::EMessageAnswer> answers;
    std::deque<std::string> paths; ///< empty for a user who gives up
    std::vector<Mirel::GUI::SMessage> messages;
    std::vector<Mirel::GUI::SFileRequest> requests;
    std::vector<std::string> pages;
    std::vector<DialogId> cancelled;
    bool canShow = true; ///< false: nothing can be shown or opened

    DialogId ShowMessage(const Mirel::GUI::SMessage& message, Mirel::GUI::NativeWindowId,
                         MessageReceiver receiver) override
    {
        messages.push_back(message);
        return Ask(answers, openMessages, std::move(receiver));
    }

    DialogId ChooseFile(const Mirel::GUI::SFileRequest& request, Mirel::GUI::NativeWindowId,
                        FileReceiver receiver) override
    {
        requests.push_back(request);
        return Ask(paths, openFiles, std::move(receiver));
    }

    void Cancel(DialogId id) override
    {
        cancelled.push_back(id);
        openMessages.erase(id);
        openFiles.erase(id);
    }

    bool OpenPage(const std::string& address) override
    {
        pages.push_back(address);
        return canShow;
    }

    /// Answers the message that has been open for longest. False if none is.
    bool Answer(Mirel::GUI::EMessageAnswer answer) { return AnswerFirst(openMessages, answer); }

    /// The same for files.
    bool Answer(const std::string& path) { return AnswerFirst(openFiles, path); }

private:
    template <typename TAnswer, typename TReceiver>
    DialogId Ask(std::deque<TAnswer>& script, std::map<DialogId, TReceiver>& open, TReceiver receiver)
    {
        if (!canShow)
        {
            return 0;
        }
        const DialogId id = ++lastId;
        if (script.empty())
        {
            open[id] = std::move(receiver);
            return id;
        }
        const TAnswer answer = script.front();
        script.pop_front();
        receiver(answer);
        return id;
    }

    template <typename TAnswer, typename TReceiver>
    bool AnswerFirst(std::map<DialogId, TReceiver>& open, const TAnswer& answer)
    {
        if (open.empty())
        {
            return false;
        }
        const TReceiver receiver = std::move(open.begin()->second);
        open.erase(open.begin());
        receiver(answer);
        return true;
    }

    DialogId lastId = 0;
    std::map<DialogId, MessageReceiver> openMessages;
    std::map<DialogId, FileReceiver> openFiles;
};

} // namespace Tests
