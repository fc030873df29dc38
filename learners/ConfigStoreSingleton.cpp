#include "ConfigStore.h"
#include "XmlConfigStore.h"

namespace {
std::unique_ptr<ConfigStore>& Instance()
{
    static std::unique_ptr<ConfigStore> store;
    return store;
}
} // namespace

ConfigStore& GetConfigStore()
{
    auto& store = Instance();
    if (!store)
        store = std::make_unique<XmlConfigStore>(
            "config.xml", []() -> CharacterDatabase& { return GetDatabase(); }, "history.db");
    return *store;
}

void ReleaseDataStores()
{
    ReleaseDatabase();
    Instance().reset();
}
