#pragma once

#include "ProgressViewFactory.h"

#include <QString>

#include <functional>

/// Gives the maker of progress windows, or null with the reason in `error`.
using ProgressViewSource = std::function<ProgressViewFactory*(QString& error)>;

/// The progress module beside the program (zavoren-progress.so), loaded on first use and kept
/// for the life of the program; null with the loader's reason when it cannot be loaded.
ProgressViewFactory* LoadProgressModule(QString& error);
