#include "Support/DataFolder.h"

namespace Tests
{

std::string GetDataFolder()
{
    return DATA_FOLDER;
}

} // namespace Tests
