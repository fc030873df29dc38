#include "ConfigStore.h"
#include "HistoryDatabase.h"
#include "XmlConfigStore.h"

namespace {
std::unique_ptr<ConfigStore>& Store()
{
    static std::unique_ptr<ConfigStore> store;
    return store;
}

std::unique_ptr<HistoryDatabase>& History()
{
    static std::unique_ptr<HistoryDatabase> history;
    return history;
}
} // namespace

ConfigStore& GetConfigStore()
{
    auto& store = Store();
    if (!store)
        store = std::make_unique<XmlConfigStore>("config.xml", []() -> CharacterDatabase& { return GetDatabase(); });
    return *store;
}

LearningHistory& GetLearningHistory()
{
    auto& history = History();
    if (!history) {
        ConfigStore& store = GetConfigStore();
        history = std::make_unique<HistoryDatabase>("history.db");
        history->Attach(store);
    }
    return *history;
}

void ReleaseDataStores()
{
    ReleaseDatabase();
    History().reset();
    Store().reset();
}
