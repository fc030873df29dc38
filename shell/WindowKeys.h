#pragma once

class QWidget;

/// Gives `window` the keys of the program's main window: the editing and window keys
/// (Ctrl+C, Ctrl+V, Ctrl+Z, Ctrl+N, F6…) are taken and ignored, so that no page ever sees them;
/// Shift+F1 starts context help (a click on a control then shows its help text).
void InstallWindowKeys(QWidget* window);
