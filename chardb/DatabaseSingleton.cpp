#include "CharacterDatabase.h"
#include "FileCharacterDatabase.h"

namespace {
std::unique_ptr<CharacterDatabase>& Instance()
{
    static std::unique_ptr<CharacterDatabase> database;
    return database;
}
} // namespace

CharacterDatabase& GetDatabase()
{
    auto& database = Instance();
    if (!database)
        database = std::make_unique<FileCharacterDatabase>("database");
    return *database;
}

void ReleaseDatabase()
{
    Instance().reset();
}
