#include "DisplayCheck.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>
#include <vector>

namespace {

bool IsSet(const char* name)
{
    const char* value = std::getenv(name);
    return value && *value;
}

struct HeldMessage {
    QtMsgType type;
    QByteArray file, function, category;
    int line;
    QString text;
};

// One watch at a time, at start-up, before any other thread exists.
QtMessageHandler g_previous = nullptr;
std::vector<HeldMessage>* g_held = nullptr;
int g_exitCode = 2;
bool g_quiet = false;

std::string DisplayName()
{
    std::string names;
    for (const char* name : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
        if (!IsSet(name))
            continue;
        if (!names.empty())
            names += ", ";
        names += std::string(name) + "=" + std::getenv(name);
    }
    return names;
}

void HoldOrLeave(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg) {
        // Qt cannot open the display and is about to abort: say so plainly and leave.
        if (!g_quiet) {
            const std::string line = "Zavoren! could not open a graphical display (" + DisplayName() + ")\n";
            const ssize_t written = ::write(STDERR_FILENO, line.data(), line.size());
            (void)written;
        }
        ::_exit(g_exitCode);
    }
    if (g_held)
        g_held->push_back(HeldMessage{type, QByteArray(context.file), QByteArray(context.function),
            QByteArray(context.category), context.line, text});
}

} // namespace

std::string MissingDisplayProblem(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "-platform") == 0)
            return {};
    if (IsSet("QT_QPA_PLATFORM") || IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY"))
        return {};
    return "Zavoren! needs a graphical display (DISPLAY or WAYLAND_DISPLAY is not set)";
}

DisplayStartWatch::DisplayStartWatch(int exitCode, bool quiet)
{
    g_exitCode = exitCode;
    g_quiet = quiet;
    g_held = new std::vector<HeldMessage>;
    g_previous = qInstallMessageHandler(HoldOrLeave);
}

DisplayStartWatch::~DisplayStartWatch()
{
    Started();
}

void DisplayStartWatch::Started()
{
    if (!g_held)
        return;
    qInstallMessageHandler(g_previous);
    std::vector<HeldMessage>* held = g_held;
    g_held = nullptr;
    for (const HeldMessage& message : *held) {
        const QMessageLogContext context(message.file.isNull() ? nullptr : message.file.constData(), message.line,
            message.function.isNull() ? nullptr : message.function.constData(),
            message.category.isNull() ? nullptr : message.category.constData());
        qt_message_output(message.type, context, message.text);
    }
    delete held;
}
