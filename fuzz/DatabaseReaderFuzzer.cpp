// libFuzzer target: the reader must turn any file into loads or DatabaseLoadException, never a
// crash, an overread or undefined behaviour.

#include "DatabaseLoadException.h"
#include "FileCharacterDatabase.h"

#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string path = "/tmp/zavoren-fuzz-" + std::to_string(getpid());
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file)
        return 0;
    std::fwrite(data, 1, size, file);
    std::fclose(file);
    try {
        FileCharacterDatabase database(path);
        try {
            database.Preload(nullptr);
        } catch (const ZavorenCommon::DatabaseLoadException&) {
        } catch (const std::out_of_range&) {
            // A composed form naming a form its element lacks.
        }
        // Every category id up to and including the count (the boundary reads one entry more).
        for (std::uint32_t id = 0; id <= database.CategoryCount(); ++id) {
            try {
                const auto category = database.LoadCategory(static_cast<std::uint16_t>(id));
                for (std::uint16_t code : category->Characters()) {
                    if (database.CharacterExists(code))
                        (void)database.LoadElement(database.LoadCharacter(code)->ElementId());
                }
            } catch (const ZavorenCommon::DatabaseLoadException&) {
            } catch (const std::out_of_range&) {
            }
        }
    } catch (const ZavorenCommon::DatabaseLoadException&) {
    }
    return 0;
}
