#include "AtomicFile.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

bool WriteAll(int fd, const std::string& text)
{
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        done += static_cast<std::size_t>(n);
    }
    return true;
}

FileWrite ReplaceFileAtomically(const std::string& path, const std::string& text)
{
    const std::filesystem::path target = std::filesystem::absolute(path);
    std::string temporary = (target.parent_path() / (target.filename().string() + ".XXXXXX")).string();
    const int fd = ::mkstemp(temporary.data());
    if (fd < 0)
        return errno == EACCES || errno == EPERM ? FileWrite::NoRights : FileWrite::Failed;
    struct stat info { };
    if (::stat(path.c_str(), &info) == 0)
        ::fchmod(fd, info.st_mode & 07777);
    const bool written = WriteAll(fd, text) && ::fsync(fd) == 0;
    const bool closed = ::close(fd) == 0;
    if (!written || !closed || ::rename(temporary.c_str(), path.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return FileWrite::Failed;
    }
    const int dir = ::open(target.parent_path().c_str(), O_RDONLY | O_DIRECTORY);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }
    return FileWrite::Written;
}
