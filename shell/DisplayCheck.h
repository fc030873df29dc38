#pragma once

#include <string>

/// What stands in the way of opening a window, in one line for standard error; empty when
/// nothing does. Without a platform named by QT_QPA_PLATFORM (or `-platform`), a window needs
/// DISPLAY or WAYLAND_DISPLAY. Reads the environment and the command line only.
std::string MissingDisplayProblem(int argc, char** argv);

/// Watches the start of the graphical session: when Qt finds it cannot open any display, it
/// prints one line naming the display on standard error and ends the process with `exitCode`
/// instead of letting Qt abort (which would look like a crash); a quiet watch prints nothing.
/// Messages Qt gives while it starts are held and passed on once it has started. Call before
/// creating the QApplication and `Started` right after.
class DisplayStartWatch {
public:
    DisplayStartWatch(int exitCode, bool quiet);
    ~DisplayStartWatch();
    DisplayStartWatch(const DisplayStartWatch&) = delete;
    DisplayStartWatch& operator=(const DisplayStartWatch&) = delete;

    /// The session is open: restores Qt's message handling and passes on the held messages.
    void Started();
};
