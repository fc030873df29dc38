#pragma once

// The databases the build makes with meanings in other languages, as the build lists them
// (ZAVOREN_LANGUAGE_DATABASES, paths separated by "|").

#include <sstream>
#include <string>
#include <vector>

inline std::vector<std::string> LanguageDatabases()
{
    std::vector<std::string> paths;
    std::stringstream list(ZAVOREN_LANGUAGE_DATABASES);
    for (std::string path; std::getline(list, path, '|');)
        paths.push_back(path);
    return paths;
}
