// libFuzzer target: any file given as an exported learner or as config.xml must be read, or
// refused (LearnerFile's problem, ConfigException), never a crash, an overread or undefined
// behaviour; a config.xml that opens is then used as the program uses it: every learner loaded,
// their history brought over to a history database and read back, their record saved.

#include "ConfigException.h"
#include "DatabaseWriter.h"
#include "FileCharacterDatabase.h"
#include "HistoryDatabase.h"
#include "LearnerFile.h"
#include "XmlConfigStore.h"

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <unistd.h>

namespace {

/// A database of three categories of two characters, written once per process.
CharacterDatabase& Database()
{
    static std::unique_ptr<FileCharacterDatabase> database = [] {
        DatabaseWriter writer;
        Form form(109, 109);
        form.AppendStroke(Stroke(Point{1, 1}));
        const auto element = writer.AddStrokeElement(form);
        writer.AddCharacter(element, "a", "b", "c");
        writer.AddCharacter(element, "d", "e", "f");
        for (int i = 0; i < 3; ++i)
            writer.AddCategory("Category " + std::to_string(i), {0, 1});
        const auto bytes = writer.Serialize();
        const std::string path = "/tmp/zavoren-fuzz-database-" + std::to_string(getpid());
        std::ofstream(path, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return std::make_unique<FileCharacterDatabase>(path);
    }();
    return *database;
}

void Write(const std::string& path, const std::uint8_t* data, std::size_t size)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string path = "/tmp/zavoren-fuzz-learner-" + std::to_string(getpid()) + ".xml";
    CharacterDatabase& database = Database();

    Write(path, data, size);
    LearnerFile::Imported imported = LearnerFile::Import(path, database);
    if (imported.learner && imported.learner->History().size() > 1000000)
        std::abort(); // more events than the file could spell

    Write(path, data, size);
    try {
        // The history in a database of its own in memory: brought over, read, written.
        XmlConfigStore store(path, database);
        HistoryDatabase history(":memory:");
        history.Attach(store);
        for (std::uint16_t i = 0; i < store.UserCount(); ++i) {
            const std::string name = store.UserName(i);
            auto learner = store.LoadUser(name);
            if (!learner)
                continue;
            (void)history.Events(*learner);
            history.Record(*learner, {{"2026-11-23T10:00:00+01:00", LearnerEvent::Lesson, 0, 1, -1}});
            (void)history.Memories(*learner);
            store.SaveUser(*learner);
        }
    } catch (const ZavorenCommon::ConfigException&) {
    }
    return 0;
}
