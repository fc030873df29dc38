#pragma once

// A temporary data folder made current for the test (database and config.xml), with settings
// kept in the folder too.

#include "ConfigStore.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>

/// The seed of every random draw in a test, and the time every event is dated with.
inline std::uint32_t FixedSeed()
{
    return 99;
}
inline std::string FixedClock()
{
    return "2026-11-22T09:08:07+01:00";
}

class DataFolder {
public:
    explicit DataFolder(const char* config = "<Zavoren><Users/></Zavoren>")
    {
        m_previous = QDir::currentPath();
        QDir::setCurrent(m_dir.path());
        std::filesystem::copy_file(ZAVOREN_STANDARD_DATABASE, "database");
        WriteConfig(config);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.filePath(QStringLiteral("settings")));
        ReleaseDataStores();
    }
    ~DataFolder()
    {
        ReleaseDataStores();
        QDir::setCurrent(m_previous);
    }
    void WriteConfig(const char* text) { std::ofstream("config.xml", std::ios::trunc) << text; }
    std::string ReadConfig() const
    {
        std::ifstream file("config.xml");
        return std::string(std::istreambuf_iterator<char>(file), {});
    }
    QString Path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
    QString m_previous;
};
