#include "CrashHandler.h"

#include "Prompt.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <typeinfo>

#include <cxxabi.h>
#include <execinfo.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

constexpr int FatalSignals[] = {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};
constexpr int MaxFrames = 128;

/// Set up before any fault, so that the handlers allocate nothing.
char g_helperPath[4096];
std::atomic<bool> g_handling{false};
char g_alternateStack[64 * 1024];

// Async-signal-safe output helpers: fixed buffers and write(2) only.
void WriteText(int fd, const char* text)
{
    std::size_t length = 0;
    while (text[length])
        ++length;
    while (length > 0) {
        const ssize_t n = ::write(fd, text, length);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return;
        text += n;
        length -= static_cast<std::size_t>(n);
    }
}

void WriteNumber(int fd, unsigned long long value, int base)
{
    char digits[32];
    int i = 0;
    do {
        const int d = static_cast<int>(value % static_cast<unsigned>(base));
        digits[i++] = static_cast<char>(d < 10 ? '0' + d : 'a' + d - 10);
        value /= static_cast<unsigned>(base);
    } while (value && i < 31);
    char out[40];
    int o = 0;
    if (base == 16) {
        out[o++] = '0';
        out[o++] = 'x';
    }
    while (i > 0)
        out[o++] = digits[--i];
    out[o] = '\0';
    WriteText(fd, out);
}

void CopyFile(int to, const char* path)
{
    const int from = ::open(path, O_RDONLY | O_CLOEXEC);
    if (from < 0)
        return;
    char buffer[4096];
    for (;;) {
        const ssize_t n = ::read(from, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        ssize_t done = 0;
        while (done < n) {
            const ssize_t w = ::write(to, buffer + done, static_cast<std::size_t>(n - done));
            if (w <= 0)
                break;
            done += w;
        }
    }
    ::close(from);
}

const char* SignalName(int signal)
{
    switch (signal) {
    case SIGSEGV: return "SIGSEGV (segmentation fault)";
    case SIGBUS: return "SIGBUS (bus error)";
    case SIGILL: return "SIGILL (illegal instruction)";
    case SIGFPE: return "SIGFPE (floating-point error)";
    case SIGABRT: return "SIGABRT (abort)";
    }
    return "fatal signal";
}

/// Starts the helper with a pipe on its standard input; returns the write end, or -1.
int StartHelper(pid_t& helper)
{
    int fds[2];
    if (::pipe2(fds, O_CLOEXEC) != 0)
        return -1;
    helper = ::fork();
    if (helper < 0) {
        ::close(fds[0]);
        ::close(fds[1]);
        return -1;
    }
    if (helper == 0) {
        ::dup2(fds[0], STDIN_FILENO);
        char mode[] = "--crash-report";
        char* argv[] = {g_helperPath, mode, nullptr};
        ::execve(g_helperPath, argv, environ);
        ::_exit(127);
    }
    ::close(fds[0]);
    return fds[1];
}

/// Writes the thread, the stack and the modules, then waits for the helper to finish.
void FinishReport(int fd, pid_t helper)
{
    WriteText(fd, "Process: ");
    WriteNumber(fd, static_cast<unsigned long long>(::getpid()), 10);
    WriteText(fd, "\nThread: ");
    WriteNumber(fd, static_cast<unsigned long long>(::syscall(SYS_gettid)), 10);
    WriteText(fd, "\n\nStack trace:\n");
    void* frames[MaxFrames];
    const int count = ::backtrace(frames, MaxFrames);
    ::backtrace_symbols_fd(frames, count, fd);
    WriteText(fd, "\nLoaded modules (address ranges):\n");
    CopyFile(fd, "/proc/self/maps");
    ::close(fd);
    int status = 0;
    while (::waitpid(helper, &status, 0) < 0 && errno == EINTR) {
    }
}

void OnFatalSignal(int signal, siginfo_t* info, void*)
{
    if (!g_handling.exchange(true)) {
        pid_t helper = 0;
        const int fd = StartHelper(helper);
        if (fd >= 0) {
            WriteText(fd, "Zavoren! crash report\n\nWhat happened: signal ");
            WriteNumber(fd, static_cast<unsigned long long>(signal), 10);
            WriteText(fd, " ");
            WriteText(fd, SignalName(signal));
            WriteText(fd, " at address ");
            WriteNumber(fd, reinterpret_cast<unsigned long long>(info ? info->si_addr : nullptr), 16);
            WriteText(fd, "\n");
            FinishReport(fd, helper);
        }
    }
    // End the process as the signal would have: default action, and the signal unblocked (it is
    // blocked while its handler runs, so raising it alone would only leave it pending).
    ::signal(signal, SIG_DFL);
    sigset_t only;
    sigemptyset(&only);
    sigaddset(&only, signal);
    ::sigprocmask(SIG_UNBLOCK, &only, nullptr);
    ::raise(signal);
    ::_exit(128 + signal);
}

[[noreturn]] void OnTerminate()
{
    // Not in a signal: describing the exception may allocate.
    const char* type = "unknown exception";
    std::string what;
    if (std::exception_ptr current = std::current_exception()) {
        if (const std::type_info* info = abi::__cxa_current_exception_type())
            type = info->name();
        try {
            std::rethrow_exception(current);
        } catch (const std::exception& e) {
            what = e.what();
        } catch (...) {
        }
    }
    int status = 0;
    char* readable = abi::__cxa_demangle(type, nullptr, nullptr, &status);
    const std::string typeName = status == 0 && readable ? readable : type;
    std::free(readable);
    std::fprintf(stderr, "Zavoren!: fatal error: uncaught %s: %s\n", typeName.c_str(), what.c_str());
    std::fflush(stderr);
    if (!g_handling.exchange(true)) {
        pid_t helper = 0;
        const int fd = StartHelper(helper);
        if (fd >= 0) {
            const std::string head
                = "Zavoren! crash report\n\nWhat happened: uncaught exception " + typeName + ": " + what + "\n";
            WriteText(fd, head.c_str());
            FinishReport(fd, helper);
        }
    }
    ::signal(SIGABRT, SIG_DFL);
    std::abort();
}

} // namespace

void InstallCrashHandler(const char* helper)
{
    if (helper) {
        std::snprintf(g_helperPath, sizeof g_helperPath, "%s", helper);
    } else {
        const ssize_t n = ::readlink("/proc/self/exe", g_helperPath, sizeof g_helperPath - 1);
        g_helperPath[n > 0 ? n : 0] = '\0';
    }
    // backtrace() loads its unwinder on first use; do that now, not inside a handler.
    void* warmUp[2];
    ::backtrace(warmUp, 2);
    std::set_terminate(OnTerminate);
    stack_t alternate{};
    alternate.ss_sp = g_alternateStack;
    alternate.ss_size = sizeof g_alternateStack;
    ::sigaltstack(&alternate, nullptr); // so that a stack overflow can still be reported
    struct sigaction action { };
    action.sa_sigaction = OnFatalSignal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_RESETHAND;
    sigemptyset(&action.sa_mask);
    for (int signal : FatalSignals)
        ::sigaction(signal, &action, nullptr);
}

QString CrashReportFileName(const QDateTime& localTime)
{
    return QStringLiteral("Zavoren-%1.dmp").arg(localTime.toString(QStringLiteral("yyyyMMdd-HHmmss")));
}

QString CrashReportFolder()
{
    return QCoreApplication::applicationDirPath();
}

bool WriteCrashReport(const QString& folder, const QDateTime& localTime, const QByteArray& report)
{
    QSaveFile file(QDir(folder).filePath(CrashReportFileName(localTime)));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(report) != report.size())
        return false;
    return file.commit();
}

QByteArray DemangleStackTrace(const QByteArray& report)
{
    // Frames read "module(mangled+0x12)[0xaddress]": make the function names readable.
    QByteArray out;
    for (const QByteArray& line : report.split('\n')) {
        const int open = line.indexOf('(');
        const int plus = line.indexOf('+', open);
        if (open < 0 || plus <= open + 1) {
            out += line + '\n';
            continue;
        }
        const QByteArray name = line.mid(open + 1, plus - open - 1);
        int status = 0;
        char* readable = abi::__cxa_demangle(name.constData(), nullptr, nullptr, &status);
        out += status == 0 && readable ? line.left(open + 1) + readable + line.mid(plus) + '\n' : line + '\n';
        std::free(readable);
    }
    out.chop(1);
    return out;
}

int RunCrashReportHelper(Prompt& prompt, const QString& folder)
{
    // Everything the crashed process sent first, so that it is never left blocked writing.
    QFile input;
    QByteArray report;
    if (input.open(stdin, QIODevice::ReadOnly))
        report = input.readAll();
    return AskAndWriteCrashReport(prompt, folder, report);
}

int AskAndWriteCrashReport(Prompt& prompt, const QString& folder, const QByteArray& captured)
{
    const QByteArray report = DemangleStackTrace(captured);
    const QDateTime now = QDateTime::currentDateTime();
    const QString question = QCoreApplication::translate(
        "CrashHandler", "Oops...\r\nFatal error in Zavoren.\r\n\r\nDo you want to get minidump for it?");
    // The box shows the line breaks as line breaks.
    QString shown = question;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    const auto answer
        = prompt.Ask(nullptr, QMessageBox::Critical, QCoreApplication::translate("CrashHandler", "Unhandled Exception"),
            shown, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    if (answer != QMessageBox::Yes)
        return 0;
    if (!report.isEmpty() && WriteCrashReport(folder, now, report))
        prompt.Ask(nullptr, QMessageBox::Information, QCoreApplication::translate("CrashHandler", "MiniDump"),
            QCoreApplication::translate("CrashHandler", "Minidump successfuly created in application folder."));
    else
        prompt.Ask(nullptr, QMessageBox::Critical, QCoreApplication::translate("CrashHandler", "Error"),
            QCoreApplication::translate("CrashHandler", "Unable to generate minidump."));
    return 0;
}
