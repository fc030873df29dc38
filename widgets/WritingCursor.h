#pragma once

#include <QCursor>

/// The program's own cursor over a writing canvas: a pen whose tip is the hot spot.
QCursor WritingCursor();
