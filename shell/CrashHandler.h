#pragma once

/// Installs the handlers of fatal faults (an exception nobody catches, fatal signals). Called
/// first of all at start-up, so that every later fault is covered.
void InstallCrashHandler(const char* programPath);
