#include "Mirel/GUI/Native/Dialogs/CFileDialog.h"

#include <memory>
#include <optional>

namespace Mirel::GUI
{

bool CFileDialog::Run(bool isSave)
{
    request.isSave = isSave;
    path.clear();
    const auto answer = std::make_shared<std::optional<std::string>>();
    const IDialogs::DialogId id =
        dialogs.ChooseFile(request, owner, [answer](const std::string& chosen) { *answer = chosen; });
    while (id != 0 && !answer->has_value())
    {
        loop.Pump(-1);
    }
    path = answer->value_or(std::string());
    return !path.empty();
}

} // namespace Mirel::GUI
