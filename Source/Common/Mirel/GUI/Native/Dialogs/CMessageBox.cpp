#include "Mirel/GUI/Native/Dialogs/CMessageBox.h"

#include <memory>
#include <optional>

namespace Mirel::GUI
{

EMessageAnswer CMessageBox::Run(const SMessage& message)
{
    const auto answer = std::make_shared<std::optional<EMessageAnswer>>();
    const IDialogs::DialogId id =
        dialogs.ShowMessage(message, owner, [answer](EMessageAnswer given) { *answer = given; });
    if (id == 0)
    {
        return EMessageAnswer::Cancel;
    }
    while (!answer->has_value())
    {
        loop.Pump(-1);
    }
    return **answer;
}

void CMessageBox::Show(const std::string& title, const std::string& text, EMessageKind kind)
{
    Run({title, text, kind, EMessageButtons::Ok});
}

} // namespace Mirel::GUI
