// Writes, in the folder given, the config.xml of a learner "Anna" with ten years of practice
// (TenYears.h) as the program wrote it before the history had a database of its own: the
// events in her record. bench/startup.sh starts the program on it.
//   ten_years_learner FOLDER DATABASE

#include "FileCharacterDatabase.h"
#include "TenYears.h"
#include "XmlConfigStore.h"

#include <cstdio>
#include <fstream>
#include <string>

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: ten_years_learner FOLDER DATABASE\n");
        return 2;
    }
    const std::string config = std::string(argv[1]) + "/config.xml";
    std::ofstream(config) << "<?xml version=\"1.0\"?>\n<Zavoren><Users currentUser=\"Anna\"/></Zavoren>\n";
    FileCharacterDatabase database(argv[2]);
    XmlConfigStore store(config, database);
    store.AddUser("Anna");
    auto anna = store.LoadUser("Anna");
    for (LearnerEvent& e : TenYearsOfPractice(database, *anna))
        anna->AddEvent(std::move(e));
    store.SaveUser(*anna);
    std::printf("%zu events\n", anna->History().size());
    return 0;
}
